#pragma once

#include "collect/collector.h"
#include "common/values/locale.h"
#include "host/subgroup_store.h"

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brx::host {

class Configuration;
class ServerEntry;

/// The collection of a configuration: it runs, or it has stopped and shows what it had.
class Collection {
public:
    /// Those that the file does not take are kept for later, the last so many.
    static constexpr std::size_t kept_for_later = 1000;

    explicit Collection(Configuration& configuration) : configuration_(configuration) {}

    /// How many subgroups the file has of each test, by its id.
    void has_stored(std::map<std::int64_t, std::int64_t> counts) { stored_ = std::move(counts); }

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
    /// Puts what has become complete into the file, each subgroup by itself; what it does not take, again
    /// after a while. Gives what is to be told once, like the other one.
    std::string store_complete(SubgroupStore store, Date now);

    // Of the test at a position from 1; nothing where there is none any more, as while a dialog removes some.
    const collect::Series& series(std::int32_t position) const;
    /// How many complete subgroups the file has, of this time and of those before.
    std::int32_t stored_subgroups(std::int32_t position) const;
    /// Two lines: how far it is, and how it goes on.
    std::string text(std::int32_t position, const Locale& locale) const;
    /// When the test's own trigger fires; "" for a test without one.
    std::string trigger_text(std::int32_t position, const Locale& locale) const;

private:
    /// 0 for none.
    std::int64_t id_at(std::int32_t position) const;
    std::int64_t stored_of(std::int64_t test) const;
    std::string state_text(std::int64_t test, const Locale& locale) const;
    std::string trouble_of(std::int64_t test) const;
    void take_complete(Date now);

    Configuration& configuration_;
    std::optional<collect::Collector> collector_;
    bool running_ = false;
    bool held_ = false;
    std::string obstacle_;
    std::map<std::string, std::string> troubles_; ///< why an item had no value at the last look; "" for none

    std::map<std::int64_t, std::int32_t> taken_; ///< the last subgroup of each test that was complete
    std::deque<StoredSubgroup> waiting_;         ///< for the file
    std::size_t lost_ = 0;                       ///< of those that waited too long
    Date tried_;
    std::string store_failure_;
    std::map<std::int64_t, std::int64_t> stored_;
};

} // namespace brx::host
