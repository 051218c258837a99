#pragma once

#include "common/trap.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>

namespace brx {

/// The Show of a public class, or of a form, from its first line to its last. What a form reports is told
/// once while it is shown, and again in its next showing. All that begins within another showing on its
/// thread belongs to that one too: of what timers run into, whoever works with these dialogs is told once.
class ShowingScope {
public:
    /// `form` is the form's name, null for a public class.
    explicit ShowingScope(const char* form = nullptr) noexcept;
    ~ShowingScope();
    ShowingScope(const ShowingScope&) = delete;
    ShowingScope& operator=(const ShowingScope&) = delete;

    /// Tells the person of the error unless she has been told of it, or is being told of one. Of timers she
    /// is never told while another message waits for her.
    template <class Tell> static void tell_once(const ErrorReport& report, Tell&& tell) {
        const ShowingScope here; // of its own for an error that comes outside of any
        if (!here.whole_.begins_to_tell(report)) return;
        struct Telling {
            bool& goes_on;
            ~Telling() { goes_on = false; }
        } const telling{here.whole_.telling_};
        tell();
    }

private:
    bool begins_to_tell(const ErrorReport& report);
    static ShowingScope& showing_of(const ErrorReport& report);

    const char* form_;
    ShowingScope* outer_;
    ShowingScope& whole_; ///< the outermost one
    std::set<std::pair<std::int32_t, std::string>> told_;
    bool timer_told_ = false;
    bool telling_ = false;
};

} // namespace brx
