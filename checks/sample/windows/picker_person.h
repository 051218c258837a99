#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

/// A person at the sample host's picker: does one step after the other while the dialog waits for him. Fails
/// the check, and cancels, when the dialog closes too early or not at all.
class PickerPerson {
public:
    using Step = std::function<void(const PickerPerson&)>;

    /// Each step is taken when all that the one before caused has been done.
    explicit PickerPerson(std::vector<Step> steps);
    PickerPerson(const PickerPerson&) = delete;
    PickerPerson& operator=(const PickerPerson&) = delete;
    ~PickerPerson();

    std::wstring title() const;
    /// The lines of a list by its name, the selected one in brackets.
    std::string reads(const wchar_t* list) const;
    std::string label() const;
    bool can_press(const wchar_t* button) const { return IsWindowEnabled(control(button)) != FALSE; }
    bool has_focus(const wchar_t* name) const { return GetFocus() == control(name); }

    void hit(WPARAM key) const;
    void click_line(const wchar_t* list, int line, bool twice = false) const;
    void press(const wchar_t* button) const;

private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD);
    void next();
    HWND control(const wchar_t* name) const;

    HWND dialog_ = nullptr;
    std::vector<Step> steps_;
    std::size_t done_ = 0;
    int waits_ = 0;
    UINT_PTR timer_;
};

} // namespace brx::checks
