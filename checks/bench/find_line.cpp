#include "bench/find_line.h"

#include "bench/address_space.h"
#include "bench/component.h"
#include "bench/when_idle.h"

#include "com/failure.h"
#include "desk/native.h"

#include <brxOpcDlgs6.h>

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace brx::bench {

namespace {

/// Seven digits end each name; of a million there are ten thousand that have this.
constexpr std::string_view sought = "tag099";

/// What a list has to hold at least: the names, one behind the other.
class AllNames {
public:
    explicit AllNames(int count) {
        Names names = Names::of_leaves();
        for (int i = 1; i <= count; ++i)
            for (const wchar_t each : names.of(i)) text_.push_back(static_cast<char>(each));
    }

    /// How many have that part, in any case.
    int with(std::string_view part) const {
        int hits = 0;
        for (std::size_t at = 0; at < text_.size(); at += Names::length_of_leaf)
            if (has({text_.data() + at, Names::length_of_leaf}, part)) ++hits;
        return hits;
    }

private:
    static char small(char each) {
        return each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
    }
    static bool has(std::string_view name, std::string_view part) {
        for (std::size_t from = 0; from + part.size() <= name.size(); ++from) {
            std::size_t same = 0;
            while (same < part.size() && small(name[from + same]) == part[same]) ++same;
            if (same == part.size()) return true;
        }
        return false;
    }

    std::string text_;
};

/// What a person does in the line of the dialog that is open.
class Typing {
public:
    Typing(int leaves, int runs) : names_(leaves), runs_(runs) {}

    const Answers& answers() const { return answers_; }
    bool complete() const { return complete_; }

private:
    void next() {
        const HWND dialog = GetActiveWindow();
        const HWND line = checks::find_control(dialog, "txtFind");
        if (!std::exchange(asked_, true)) return hold_control_and_press_f(dialog);
        idle_.stop();
        SetKeyboardState(keys_before_.data());
        const HWND found = checks::find_control(dialog, "lblFound");
        for (const char each : sought) type(line, each);
        complete_ = IsWindowVisible(line);
        for (int run = 0; run < runs_; ++run) {
            type(line, VK_BACK);
            UpdateWindow(dialog);
            Cost start = spent();
            const int hits = names_.with(sought);
            answers_.passes.add(spent() - start);
            start = spent();
            type(line, sought.back());
            UpdateWindow(dialog);
            answers_.keys.add(spent() - start);
            complete_ = complete_ && hits == 10'000 && checks::text_of(found) == "1 of 10,000";
        }
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    }

    void hold_control_and_press_f(HWND dialog) {
        GetKeyboardState(keys_before_.data());
        auto keys = keys_before_;
        keys[VK_CONTROL] = 0x80;
        SetKeyboardState(keys.data());
        PostMessageW(checks::find_control(dialog, "TrView"), WM_KEYDOWN, 'F', 1);
    }
    static void type(HWND line, int character) {
        SendMessageW(line, WM_CHAR, static_cast<WPARAM>(character), 1);
    }

    AllNames names_;
    int runs_;
    bool asked_ = false;
    bool complete_ = false;
    std::array<BYTE, 256> keys_before_{};
    Answers answers_;
    WhenIdle idle_{[this](const Cost&) { next(); }};
};

} // namespace

Answers find_leaves(int leaves, int runs) {
    const auto server = make_server({.flat = true, .leaves = leaves});
    const auto group = make_group();
    const auto browser = make_instance(CLSID_LeafSelect).as<_LeafSelect>();
    VARIANT_BOOL confirmed = VARIANT_FALSE;
    const Typing typing(leaves, runs);
    check(browser->Show(server.get(), group.get(), &confirmed));
    if (!typing.complete()) throw std::runtime_error("the dialog did not find the leaves");
    return typing.answers();
}

} // namespace brx::bench
