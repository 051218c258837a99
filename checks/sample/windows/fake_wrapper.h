#pragma once

#include "common/values/variant.h"

#include <map>
#include <string>
#include <vector>

namespace brx::checks {

/// An OPC automation wrapper installed for the user while it lives, with the peculiarities of real ones: its
/// groups begin without a subscription, all its objects but servers deny having IDispatch, its items keep
/// what came last, and no time is told, so that it is in 1601. It connects to anything but servers called
/// "Broken". Whatever is set is so for all servers, and as below when the next one is installed.
class FakeWrapper {
public:
    struct Item {
        Variant value;
        std::int32_t quality = 0xC0;
    };

    FakeWrapper();
    FakeWrapper(const FakeWrapper&) = delete;
    FakeWrapper& operator=(const FakeWrapper&) = delete;
    ~FakeWrapper();

    /// "connect SERVER on NODE", "disconnect SERVER", "subscribe GROUP every N ms", "validate ITEM".
    static inline std::vector<std::string> diary;
    /// What the servers have, as it is now.
    static inline std::map<std::string, Item> items;
    /// What a browser lists instead of its first name, and an enumeration of servers first of all.
    static inline std::string garbage = "\x01?";
    static inline bool takes_subscriptions = true;
    static inline bool tells_changes = true; ///< of groups that are subscribed
    static inline bool answers = true;       ///< when an item is read

private:
    unsigned long registered_ = 0;
};

} // namespace brx::checks
