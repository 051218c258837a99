#pragma once

#include "server/calls.h"
#include "window/screen.h"

#include <array>
#include <string>

namespace brx::server {

/// What is running, for a person: how many calls came, which one was the latest, what is still in use; and
/// the switches that can be changed meanwhile.
class Window {
public:
    Window(Calls& calls, long own_objects) : calls_(calls), own_objects_(own_objects) {}
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    bool open(HINSTANCE program, int show_command);
    /// From now on the window bears its name, by which tests find a server that clients can connect to.
    void says_that_it_serves() const;
    HWND handle() const { return window_; }
    /// Objects that clients hold on to.
    long objects_in_use() const;

private:
    static constexpr int lines = 4;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);
    void make_controls();
    HWND add(const wchar_t* kind, const wchar_t* text, DWORD style, int id);
    void lay_out();
    void refresh();
    void show_text(HWND control, const std::wstring& text);
    void change_delay();

    Calls& calls_;
    long own_objects_;
    HWND window_ = nullptr;
    UINT dpi_ = 96;
    sample::Font font_;
    std::array<HWND, lines> names_{};
    std::array<HWND, lines> values_{};
    HWND delay_name_ = nullptr;
    HWND delay_ = nullptr;
    HWND delay_unit_ = nullptr;
    HWND hold_ = nullptr;
};

} // namespace brx::server
