#include "forms/element.h"

#include <utility>

namespace brx {

Peer::Peer(Element& element) : element_(element) {
    element_.peer_ = this;
    element_.stale_ = Aspect::none;
}

Peer::~Peer() { element_.peer_ = nullptr; }

void Element::changed(Aspect aspects) {
    if (peer_) stale_ = stale_ | aspects;
}

void Element::flush() {
    // A refresh can lead to further changes through the platform's own notifications.
    while (peer_ && stale_ != Aspect::none) peer_->refresh(std::exchange(stale_, Aspect::none));
}

} // namespace brx
