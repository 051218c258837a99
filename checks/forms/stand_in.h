#pragma once

#include "forms/control.h"
#include "forms/peer.h"

namespace brx::checks {

/// Stands in for a window: notes what it would have to show again.
class StandIn : public Peer {
public:
    explicit StandIn(Element& element) : Peer(element) {}
    void refresh(Aspect aspects) override { seen = seen | aspects; }
    Aspect seen = Aspect::none;
};

/// What a window of the control has to show again after the deed.
template <class Deed> Aspect told_of(Control& control, const Deed& deed) {
    StandIn window(control);
    deed();
    control.flush();
    return window.seen;
}

} // namespace brx::checks
