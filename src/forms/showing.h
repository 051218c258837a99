#pragma once

#include "common/trap.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>

namespace brx {

/// The Show of a public class, from its first line to its last. One that begins within another on its thread
/// is a part of it, and so are the dialogs that both open: whoever works with them has been told of an error
/// once it was told in any of them.
class ShowingScope {
public:
    ShowingScope() noexcept;
    ~ShowingScope();
    ShowingScope(const ShowingScope&) = delete;
    ShowingScope& operator=(const ShowingScope&) = delete;

    /// Tells the person of the error unless she has been told of it, or is being told of one. Of what timers
    /// run into she is told only once, and never while another message waits for her.
    template <class Tell> void tell_once(const ErrorReport& report, Tell&& tell) {
        if (!whole_.begins_to_tell(report)) return;
        struct Telling {
            bool& goes_on;
            ~Telling() { goes_on = false; }
        } const telling{whole_.telling_};
        tell();
    }

private:
    bool begins_to_tell(const ErrorReport& report);

    ShowingScope& whole_; ///< the outermost one
    std::set<std::pair<std::int32_t, std::string>> told_;
    bool timer_told_ = false;
    bool telling_ = false;
};

} // namespace brx
