#include "bench/openings.h"

#include "bench/when_idle.h"

#include "desk/native.h"
#include "host/fake_host.h"
#include "windows/component.h"
#include "windows/host_classes.h"

#include "forms/win32/visual_styles.h"

#include <commctrl.h>

#include <functional>
#include <map>
#include <stdexcept>

namespace brx::bench {

namespace {

using checks::FakeHost;

/// What is done in the window in front, one thing at a time, as soon as there is nothing else to do.
using Deed = std::function<void(HWND)>;

/// How to come to a dialog.
struct Way {
    std::string public_class;
    std::function<std::vector<ObjectPtr>(FakeHost&)> objects;
    std::vector<Deed> deeds;
};

HWND control(HWND form, const char* name) { return checks::find_control(form, name); }

Deed press(const char* button) {
    return [=](HWND form) { SendMessageW(control(form, button), BM_CLICK, 0, 0); };
}

Deed turn_to(int tab) {
    return [=](HWND form) {
        const HWND tabs = control(form, "TabStrip1");
        RECT place{};
        SendMessageW(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&place));
        const LPARAM point = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        SendMessageW(tabs, WM_LBUTTONDOWN, MK_LBUTTON, point);
        SendMessageW(tabs, WM_LBUTTONUP, 0, point);
    };
}

void select_first_row(HWND form) {
    LVITEMW row{};
    row.state = row.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(control(form, "lvwDescriptors"), LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&row));
}

std::vector<ObjectPtr> configuration_of(FakeHost& host) {
    host.configuration->descriptors->has({.type = 8, .item = "", .group = ""});
    return {host.configuration};
}

const std::map<std::string, Way>& ways() {
    static const std::map<std::string, Way> all = {
        {"dlgServerSelect",
         {"ServerSelect", [](FakeHost& host) { return std::vector<ObjectPtr>{host.servers}; }, {}}},
        {"dlgServerAdd",
         {"ServerAdd", [](FakeHost& host) { return std::vector<ObjectPtr>{host.servers}; }, {}}},
        {"dlgServerInformation",
         {"ServerInformation", [](FakeHost& host) { return std::vector<ObjectPtr>{host.connection}; }, {}}},
        {"dlgItemSelect",
         {"LeafSelect",
          [](FakeHost& host) {
              return std::vector<ObjectPtr>{host.connection, host.group};
          },
          {}}},
        {"dlgOPCTest",
         {"TestConfiguration",
          [](FakeHost& host) { return std::vector<ObjectPtr>{host.has_test(7, "Length")}; },
          {}}},
        {"dlgConfiguration", {"ConfigurationSetup", configuration_of, {}}},
        {"dlgEvaluation",
         {"ConfigurationSetup", configuration_of, {turn_to(1), press("cmdSubgroupTrigger")}}},
        {"dlgDescriptorType", {"ConfigurationSetup", configuration_of, {turn_to(2), press("bnAddDesc")}}},
        {"dlgDescriptorProperties",
         {"ConfigurationSetup", configuration_of, {turn_to(2), select_first_row, press("bnEditDesc")}}},
    };
    return all;
}

/// Goes the way, measures its last step, looks at the dialog there, and closes everything.
class Walk {
public:
    Walk(const std::string& name, std::function<void(HWND)> look)
        : name_(name), way_(ways().at(name)), look_(std::move(look)) {}

    Opening go() {
        FakeHost host;
        const checks::HostClasses classes(host);
        const checks::Component component;
        const auto opener = component.create(way_.public_class);
        const std::vector<ObjectPtr> objects = way_.objects(host);
        const WhenIdle idle([this](const Cost& cost) { next(cost); });
        start_ = spent();
        opener->Show(objects);
        if (!arrived_) throw std::runtime_error(name_ + " did not open");
        return opening_;
    }

private:
    void next(const Cost& cost) {
        const HWND front = GetActiveWindow();
        if (arrived_ || done_ > way_.deeds.size()) {
            PostMessageW(front, WM_CLOSE, 0, 0);
        } else if (done_ < way_.deeds.size()) {
            const Deed& deed = way_.deeds[done_++];
            start_ = spent();
            deed(front);
        } else {
            ++done_;
            arrived_ = checks::name_of(front) == name_;
            opening_.shown = cost - start_;
            if (arrived_) look_(front);
            PostMessageW(front, WM_CLOSE, 0, 0);
        }
    }

    std::string name_;
    const Way& way_;
    std::function<void(HWND)> look_;
    Cost start_;
    std::size_t done_ = 0;
    bool arrived_ = false;
    Opening opening_;
};

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

const std::vector<std::string>& dialogs() {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> names;
        for (const auto& [name, way] : ways()) names.push_back(name);
        return names;
    }();
    return all;
}

Opening open_dialog(const std::string& name) {
    return Walk(name, [](HWND) {}).go();
}

Template template_of(const std::string& name) {
    Template made;
    Walk(name, [&](HWND form) {
        made.window = part_of(form);
        for (HWND each = GetWindow(form, GW_CHILD); each; each = GetWindow(each, GW_HWNDNEXT)) {
            made.controls.push_back(part_of(each));
            MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&made.controls.back().place), 2);
        }
    }).go();
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
