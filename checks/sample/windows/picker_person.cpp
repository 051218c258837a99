#include "sample/windows/picker_person.h"

#include "com/bstr.h"

#include <windowsx.h>

#include <gtest/gtest.h>

#include <array>

namespace brx::checks {

namespace {

constexpr UINT pause = 60;        ///< milliseconds between two steps
constexpr int longest_wait = 500; ///< pauses

PickerPerson* person = nullptr;

std::wstring name_of(HWND window) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"brx.Name")));
    std::array<wchar_t, 100> name{};
    if (atom != 0) GlobalGetAtomNameW(atom, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::wstring text_of_window(HWND window) {
    std::array<wchar_t, 200> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

BOOL CALLBACK find_picker(HWND window, LPARAM place) {
    if (name_of(window) != L"frmPicker" || !IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(place) = window;
    return FALSE;
}

} // namespace

PickerPerson::PickerPerson(std::vector<Step> steps)
    : steps_(std::move(steps)), timer_(SetTimer(nullptr, 0, pause, tick)) {
    person = this;
}

PickerPerson::~PickerPerson() {
    KillTimer(nullptr, timer_);
    person = nullptr;
    EXPECT_EQ(done_, steps_.size()) << "the dialog closed before the person had done";
}

void CALLBACK PickerPerson::tick(HWND, UINT, UINT_PTR, DWORD) {
    if (person) person->next();
}

void PickerPerson::next() {
    dialog_ = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), find_picker, reinterpret_cast<LPARAM>(&dialog_));
    if (!dialog_) return;
    if (done_ < steps_.size()) return steps_[done_++](*this);
    if (++waits_ < longest_wait) return;
    ADD_FAILURE() << "the dialog stays open";
    waits_ = 0;
    PostMessageW(dialog_, WM_COMMAND, IDCANCEL, 0);
}

HWND PickerPerson::control(const wchar_t* name) const {
    for (HWND each = GetWindow(dialog_, GW_CHILD); each; each = GetWindow(each, GW_HWNDNEXT))
        if (name_of(each) == name) return each;
    ADD_FAILURE() << "the dialog lacks a control";
    return nullptr;
}

std::wstring PickerPerson::title() const { return text_of_window(dialog_); }

std::string PickerPerson::label() const {
    const std::wstring text = text_of_window(control(L"lblRecords"));
    return text_of(text.c_str(), text.size());
}

std::string PickerPerson::reads(const wchar_t* list) const {
    const HWND box = control(list);
    const int selected = ListBox_GetCurSel(box);
    std::string all;
    for (int line = 0; line < ListBox_GetCount(box); ++line) {
        std::array<wchar_t, 200> text{};
        ListBox_GetText(box, line, text.data());
        const std::string plain = text_of(text.data(), wcslen(text.data()));
        all += (all.empty() ? "" : ", ") + (line == selected ? "[" + plain + "]" : plain);
    }
    return all;
}

void PickerPerson::hit(WPARAM key) const {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void PickerPerson::click_line(const wchar_t* list, int line, bool twice) const {
    const HWND box = control(list);
    const int height = ListBox_GetItemHeight(box, 0);
    const LPARAM place = MAKELPARAM(10, line * height + height / 2);
    PostMessageW(box, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(box, WM_LBUTTONUP, 0, place);
    if (!twice) return;
    PostMessageW(box, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    PostMessageW(box, WM_LBUTTONUP, 0, place);
}

void PickerPerson::press(const wchar_t* button) const { PostMessageW(control(button), BM_CLICK, 0, 0); }

} // namespace brx::checks
