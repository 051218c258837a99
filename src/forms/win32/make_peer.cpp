#include "forms/win32/combo_box_peer.h"
#include "forms/win32/date_picker_peer.h"
#include "forms/win32/list_box_peer.h"
#include "forms/win32/list_view_peer.h"
#include "forms/win32/simple_peers.h"
#include "forms/win32/tab_peer.h"
#include "forms/win32/text_box_peer.h"
#include "forms/win32/timer_peer.h"
#include "forms/win32/tree_peer.h"

namespace brx {

namespace {

template <class ControlClass, class PeerClass> struct ShownBy {
    using Control = ControlClass;
    using Peer = PeerClass;
};

template <class... Pairs> std::unique_ptr<Peer> make_first(FormWindow& window, Control& control) {
    std::unique_ptr<Peer> made;
    const auto fits = [&]<class Pair>(const Pair*) {
        if (auto* found = dynamic_cast<typename Pair::Control*>(&control))
            made = std::make_unique<typename Pair::Peer>(window, *found);
        return made != nullptr;
    };
    static_cast<void>((fits(static_cast<const Pairs*>(nullptr)) || ...));
    return made;
}

} // namespace

std::unique_ptr<Peer> make_peer(FormWindow& window, Control& control) {
    auto made =
        make_first<ShownBy<Label, LabelPeer>, ShownBy<TextBox, TextBoxPeer>, ShownBy<Button, ButtonPeer>,
                   ShownBy<CheckBox, CheckBoxPeer>, ShownBy<ListBox, ListBoxPeer>,
                   ShownBy<ComboBox, ComboBoxPeer>, ShownBy<TreeView, TreePeer>,
                   ShownBy<ListView, ListViewPeer>, ShownBy<TabStrip, TabPeer>,
                   ShownBy<DatePicker, DatePickerPeer>, ShownBy<Frame, FramePeer>, ShownBy<Panel, PanelPeer>,
                   ShownBy<Timer, TimerPeer>>(window, control);
    if (!made) throw Error(error::internal);
    return made;
}

} // namespace brx
