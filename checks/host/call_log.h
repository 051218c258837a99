#pragma once

#include "common/call_gate.h"
#include "common/error.h"
#include "common/values/variant.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brx::checks {

/// One call that a dialog made to the host.
struct HostCall {
    std::string member;   ///< interface, full stop, member
    std::string location; ///< whose trap a failure would go to; "" where errors are ignored
    bool failed = false;  ///< because a check said so
    bool watched = false; ///< a person sees what the work waits for, or has stopped it
    bool undoes = false;  ///< what calls before it did
};

/// A member of the host's, and the dialog or public class that called it.
struct CallOfDialog {
    std::string dialog;
    std::string member; ///< as in HostCall, without what it was given
    auto operator<=>(const CallOfDialog&) const = default;
};

/// All that were called in this program so far, of whatever host. Natively: elsewhere the dialogs are in
/// another module, which does not tell.
std::set<CallOfDialog> calls_of_all_dialogs();

/// Every call to the host's objects, in order. One of them can be made to fail.
class CallLog {
public:
    static constexpr std::int32_t failure_number = -2147220501; // 0x800403EB, a code of no other meaning
    static constexpr const char* failure_source = "FakeHost";

    /// The description of the failure of the n-th call.
    static std::string failure_text(int n, const std::string& member) {
        return "The host failed at call " + std::to_string(n) + ", " + member;
    }

    /// Notes the call; throws when it is the one to fail.
    void note(const std::string& member) {
        if (!member.starts_with("create ")) pass_gate();
        made_.push_back({.member = member,
                         .location = current_location_text(),
                         .watched = call_gate::minded != 0,
                         .undoes = call_gate::is_wide_open});
        remember_who_calls(member);
        if (static_cast<int>(made_.size()) == deed_at_) deed_();
        instead_.reset();
        if (in_each) in_each(made_.size() - 1);
        if (const auto found = during_.find(member); found != during_.end()) {
            const std::function<void()> deed = std::move(found->second);
            during_.erase(found);
            deed();
        }
        const bool is_to_fail = member == failing_member_ && ++asked_of_it_ > spared_;
        made_.back().failed = static_cast<int>(made_.size()) == fail_at_ || is_to_fail;
        if (made_.back().failed)
            throw Error(failure_number, failure_text(static_cast<int>(made_.size()), member), failure_source);
    }

    /// The n-th call from now on (from 1) fails; 0 for none.
    void fail_at(int n) { fail_at_ = n == 0 ? 0 : static_cast<int>(made_.size()) + n; }

    /// Runs in the n-th call from now on (from 1).
    void at(int n, std::function<void()> deed) {
        deed_at_ = static_cast<int>(made_.size()) + n;
        deed_ = std::move(deed);
    }
    /// How many calls were not made, since a person had stopped the work.
    int refused() const { return refused_; }

    /// Every call of this member fails from now on but the first `spared`; "" for none.
    void fail_on(const std::string& member, int spared = 0) {
        failing_member_ = member;
        spared_ = spared;
        asked_of_it_ = 0;
    }

    /// Runs in every call, with its position among those made.
    std::function<void(std::size_t)> in_each;

    /// The call under way fails.
    [[noreturn]] void fail(std::size_t position, const Error& error) {
        made_[position].failed = true;
        throw error;
    }

    /// The call under way answers this in place of what it has, as far as it is of that kind.
    void answer_instead(const Variant& value) { instead_ = value; }
    const std::optional<Variant>& instead() const { return instead_; }

    /// Runs the next time that this member is called, in the call.
    void during(const std::string& member, std::function<void()> deed) { during_[member] = std::move(deed); }

    const std::vector<HostCall>& made() const { return made_; }
    /// For a host that lasts: as if nothing had been called yet.
    void forget() {
        made_.clear();
        fail_at_ = 0;
        deed_at_ = 0;
    }
    std::vector<std::string> members() const {
        std::vector<std::string> members;
        for (const HostCall& call : made_) members.push_back(call.member);
        return members;
    }
    int count(const std::string& member) const {
        int count = 0;
        for (const HostCall& call : made_) count += call.member == member ? 1 : 0;
        return count;
    }

private:
    static std::string current_location_text();
    static void remember_who_calls(const std::string& member);
    /// As calls of members do in the component.
    void pass_gate() {
        try {
            call_gate::pass();
        } catch (const Error&) {
            ++refused_;
            throw;
        }
    }

    std::vector<HostCall> made_;
    std::optional<Variant> instead_;
    int fail_at_ = 0;
    int deed_at_ = 0;
    std::function<void()> deed_;
    int refused_ = 0;
    std::map<std::string, std::function<void()>> during_;
    std::string failing_member_;
    int spared_ = 0;
    int asked_of_it_ = 0;
};

} // namespace brx::checks
