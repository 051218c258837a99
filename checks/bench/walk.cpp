#include "bench/walk.h"

#include "bench/when_idle.h"

#include "desk/native.h"
#include "host/fake_host.h"
#include "windows/component.h"
#include "windows/host_classes.h"

#include <commctrl.h>

#include <map>
#include <stdexcept>
#include <utility>

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

/// Goes the way, measures its last step, does something with the dialog there, and closes everything.
class Walk {
public:
    Walk(const std::string& name, const std::vector<Deed>& deeds, LastingHost::Stay stay)
        : name_(name), deeds_(deeds), stay_(std::move(stay)) {}

    Opening go(checks::PublicClass& opener, const std::vector<ObjectPtr>& objects) {
        const WhenIdle idle([this](const Cost& cost) { next(cost); });
        start_ = spent();
        opener.Show(objects);
        if (!arrived_) throw std::runtime_error(name_ + " did not open");
        return opening_;
    }

private:
    void next(const Cost& cost) {
        const HWND front = GetActiveWindow();
        if (done_ < deeds_.size()) {
            const Deed& deed = deeds_[done_++];
            start_ = spent();
            return deed(front);
        }
        if (!std::exchange(looked_, true)) {
            arrived_ = checks::name_of(front) == name_;
            opening_.shown = cost - start_;
        }
        stays_ = stays_ && arrived_ && !stay_(front);
        if (!stays_) PostMessageW(front, WM_CLOSE, 0, 0);
    }

    std::string name_;
    const std::vector<Deed>& deeds_;
    LastingHost::Stay stay_;
    Cost start_;
    std::size_t done_ = 0;
    bool looked_ = false;
    bool arrived_ = false;
    bool stays_ = true;
    Opening opening_;
};

} // namespace

const std::vector<std::string>& dialogs() {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> names;
        for (const auto& [name, way] : ways()) names.push_back(name);
        return names;
    }();
    return all;
}

struct LastingHost::Parts {
    explicit Parts(const std::string& dialog) : name(dialog), shown(ways().at(dialog).objects(host)) {}

    Opening go(const std::vector<Deed>& deeds, const Stay& stay) const {
        return Walk(name, deeds, stay).go(*component.create(ways().at(name).public_class), shown);
    }

    std::string name;
    FakeHost host;
    checks::HostClasses classes{host};
    checks::Component component;
    std::vector<ObjectPtr> shown;
};

LastingHost::LastingHost(const std::string& dialog) : parts_(std::make_unique<Parts>(dialog)) {}
LastingHost::~LastingHost() = default;

FakeHost& LastingHost::objects() { return parts_->host; }
const checks::Component& LastingHost::component() const { return parts_->component; }

Opening LastingHost::open(const std::function<void(HWND)>& look) {
    return parts_->go(ways().at(parts_->name).deeds, [&](HWND form) {
        look(form);
        return true;
    });
}

void LastingHost::keep_open(int tab, const Stay& stay) {
    std::vector<Deed> deeds;
    if (tab >= 0) deeds.push_back(turn_to(tab));
    parts_->go(deeds, stay);
}

} // namespace brx::bench
