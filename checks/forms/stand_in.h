#pragma once

#include "forms/peer.h"

namespace brx::checks {

/// Stands in for a window: notes what it would have to show again.
class StandIn : public Peer {
public:
    explicit StandIn(Element& element) : Peer(element) {}
    void refresh(Aspect aspects) override { seen = seen | aspects; }
    Aspect seen = Aspect::none;
};

} // namespace brx::checks
