#include "forms/win32/date_picker_peer.h"
#include "forms/win32/list_peer.h"
#include "forms/win32/list_view_peer.h"
#include "forms/win32/simple_peers.h"
#include "forms/win32/tab_peer.h"
#include "forms/win32/text_box_peer.h"
#include "forms/win32/timer_peer.h"
#include "forms/win32/tree_peer.h"

namespace brx {

namespace {

template <class PeerType, class ControlType>
std::unique_ptr<Peer> make(FormWindow& window, Control& control) {
    return std::make_unique<PeerType>(window, dynamic_cast<ControlType&>(control));
}

} // namespace

std::unique_ptr<Peer> make_peer(FormWindow& window, Control& control) {
    switch (control.kind()) {
    case Kind::label:
        return make<LabelPeer, Label>(window, control);
    case Kind::text_box:
        return make<TextBoxPeer, TextBox>(window, control);
    case Kind::button:
        return make<ButtonPeer, Button>(window, control);
    case Kind::check_box:
        return make<CheckBoxPeer, CheckBox>(window, control);
    case Kind::list_box:
        return make<ListBoxPeer, ListBox>(window, control);
    case Kind::combo_box:
        return make<ComboBoxPeer, ComboBox>(window, control);
    case Kind::tree_view:
        return make<TreePeer, TreeView>(window, control);
    case Kind::list_view:
        return make<ListViewPeer, ListView>(window, control);
    case Kind::tab_strip:
        return make<TabPeer, TabStrip>(window, control);
    case Kind::date_picker:
        return make<DatePickerPeer, DatePicker>(window, control);
    case Kind::frame:
        return make<FramePeer, Frame>(window, control);
    case Kind::panel:
        return make<PanelPeer, Panel>(window, control);
    case Kind::timer:
        return make<TimerPeer, Timer>(window, control);
    }
    throw Error(error::internal);
}

} // namespace brx
