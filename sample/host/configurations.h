#pragma once

#include "host/configuration.h"

#include <optional>
#include <vector>

namespace brx::host {

class OpcSource;

/// The collection configurations of one server entry.
class Configurations {
public:
    Configurations(Host& host, ServerEntry& server) : host_(host), server_(server) {}
    Configurations(const Configurations&) = delete;
    Configurations& operator=(const Configurations&) = delete;

    /// As the file has them.
    void load();
    std::int32_t count() const { return static_cast<std::int32_t>(configurations_.size()); }
    /// At a position from 1; error 9 for any other.
    std::shared_ptr<Configuration> at(std::int32_t position);
    /// Appends a new one, with a group when the server is connected.
    std::shared_ptr<Configuration> add();
    void remove(std::int32_t position);
    /// To be called when a dialog on the configuration has closed: one without tests is removed, the group of
    /// any other holds what it needs from now on. True when it is still there.
    bool settle(std::int32_t position);

    /// Collects in all that run, with the local time.
    void collect(Date now);
    void fill_groups();
    void drop_groups() noexcept;

private:
    Host& host_;
    ServerEntry& server_;
    std::vector<std::shared_ptr<Configuration>> configurations_;
};

} // namespace brx::host
