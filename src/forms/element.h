#pragma once

#include "forms/peer.h"

namespace brx {

class Form;

/// Something that an engine shows: a form or one of its controls.
class Element {
public:
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    virtual ~Element() = default;

    virtual Form& form() = 0;
    const Form& form() const { return const_cast<Element*>(this)->form(); }

    /// The engine's side of this element while its form is open, otherwise null.
    Peer* peer() const { return peer_; }

    /// Brings the peer up to date with everything that has changed since the last time.
    void flush();

protected:
    Element() = default;

    /// Notes that the peer has to read these aspects again, at the next flush of the form.
    void changed(Aspect aspects);

private:
    friend class Peer;
    Peer* peer_ = nullptr;
    Aspect stale_ = Aspect::none;
};

} // namespace brx
