#include "forms/headless/screen_state.h"

#include "forms/form.h"

namespace brx {

HeadlessPeer::HeadlessPeer(Control& control) : Peer(control), control_(control) {
    refresh(Aspect::everything);
}

void HeadlessPeer::refresh(Aspect aspects) {
    control_.forget_changes();
    control_.read(aspects, shown_);
}

HeadlessWindow::HeadlessWindow(Form& form) : Peer(form), form_(form) {
    for (Control* control : form.controls()) peers_.push_back(std::make_unique<HeadlessPeer>(*control));
    refresh(Aspect::everything);
}

const HeadlessPeer* HeadlessWindow::find(const std::string& name) const {
    for (const auto& peer : peers_)
        if (peer->control().name() == name) return peer.get();
    return nullptr;
}

void HeadlessWindow::refresh(Aspect aspects) {
    if (has(aspects, Aspect::text)) caption_ = form_.caption();
    if (has(aspects, Aspect::focus)) focused_ = form_.focused();
}

} // namespace brx
