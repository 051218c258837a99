#include "bench/openings.h"

#include "bench/walk.h"
#include "bench/when_idle.h"

#include "desk/native.h"

#include "forms/win32/visual_styles.h"

#include <stdexcept>

namespace brx::bench {

namespace {

Template::Part part_of(HWND window) {
    Template::Part part;
    wchar_t name[64] = L"";
    RealGetWindowClassW(window, name, 64);
    part.window_class = name;
    const std::string text = checks::text_of(window);
    part.text.assign(text.begin(), text.end());
    part.style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    part.ex_style = static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
    GetWindowRect(window, &part.place);
    return part;
}

/// Puts a dialog template together in memory.
class TemplateBytes {
public:
    explicit TemplateBytes(const Template& made) {
        const LONG units = GetDialogBaseUnits();
        const auto across = [&](LONG pixels) { return static_cast<short>(MulDiv(pixels, 4, LOWORD(units))); };
        const auto down = [&](LONG pixels) { return static_cast<short>(MulDiv(pixels, 8, HIWORD(units))); };
        const auto add_place = [&](const Template::Part& part) {
            const RECT& place = part.place;
            add(across(place.left));
            add(down(place.top));
            add(across(place.right - place.left));
            add(down(place.bottom - place.top));
        };
        add(made.window.style & ~static_cast<DWORD>(DS_SETFONT));
        add(made.window.ex_style);
        add(static_cast<WORD>(made.controls.size()));
        add_place(made.window);
        for (int i = 0; i < 2; ++i) add(WORD{0}); // no menu, the usual class
        add(made.window.text);
        for (const Template::Part& part : made.controls) {
            bytes_.resize((bytes_.size() + 3) / 4 * 4);
            add(part.style);
            add(part.ex_style);
            add_place(part);
            add(WORD{100});
            add(part.window_class);
            add(part.text);
            add(WORD{0});
        }
    }
    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(bytes_.data()); }

private:
    template <class Value> void add(Value value) {
        const auto* const first = reinterpret_cast<const unsigned char*>(&value);
        bytes_.insert(bytes_.end(), first, first + sizeof value);
    }
    void add(const std::wstring& text) {
        for (const wchar_t each : text) add(static_cast<WORD>(each));
        add(WORD{0});
    }

    std::vector<unsigned char> bytes_;
};

INT_PTR CALLBACK answer(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

} // namespace

Opening open_dialog(const std::string& name) { return LastingHost(name).open(); }

Template template_of(const std::string& name) {
    Template made;
    LastingHost(name).open([&](HWND form) {
        made.window = part_of(form);
        for (HWND each = GetWindow(form, GW_CHILD); each; each = GetWindow(each, GW_HWNDNEXT)) {
            made.controls.push_back(part_of(each));
            MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&made.controls.back().place), 2);
        }
    });
    return made;
}

Opening open_template(const Template& made) {
    Opening result;
    const VisualStyles styles;
    const TemplateBytes bytes(made);
    const Cost start = spent();
    const WhenIdle idle([&](const Cost& cost) {
        result.shown = cost - start;
        EndDialog(GetActiveWindow(), 0);
    });
    if (DialogBoxIndirectParamW(GetModuleHandleW(nullptr), bytes.get(), nullptr, answer, 0) == -1)
        throw std::runtime_error("the bare dialog did not open");
    return result;
}

} // namespace brx::bench
