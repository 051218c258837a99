#pragma once

#include "collect/collector.h"
#include "common/values/locale.h"

#include <optional>
#include <string>

namespace brx::host {

class Configuration;
class ServerEntry;

/// The collection of a configuration: it runs, or it has stopped and shows what it had.
class Collection {
public:
    explicit Collection(Configuration& configuration) : configuration_(configuration) {}

    /// Starts afresh with the present settings.
    void run();
    void stop() { running_ = false; }
    bool is_running() const { return running_; }
    /// While somebody edits the settings nothing is collected.
    void hold() { held_ = true; }
    /// Goes on with the settings as they are now.
    void take_over();
    /// Collects what is due; the local time. Gives what is to be told once: why nothing is collected from now
    /// on, or that it goes on; otherwise "".
    std::string tick(ServerEntry& server, Date now);

    // Of the test at a position from 1; nothing where there is none any more, as while a dialog removes some.
    const collect::Series& series(std::int32_t position) const;
    /// Two lines: how far it is, and how it goes on.
    std::string text(std::int32_t position, const Locale& locale) const;
    /// When the test's own trigger fires; "" for a test without one.
    std::string trigger_text(std::int32_t position, const Locale& locale) const;

private:
    /// 0 for none.
    std::int64_t id_at(std::int32_t position) const;
    std::string state_text(std::int64_t test, const Locale& locale) const;

    Configuration& configuration_;
    std::optional<collect::Collector> collector_;
    bool running_ = false;
    bool held_ = false;
    std::string obstacle_;
};

} // namespace brx::host
