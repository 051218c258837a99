#pragma once

#include "forms/timer.h"
#include "forms/win32/form_window.h"

namespace brx {

/// A timer as one of the form's window.
class TimerPeer : public Peer {
public:
    TimerPeer(FormWindow& window, Timer& timer)
        : Peer(timer), window_(window), timer_(timer), id_(window.next_id()) {}

    UINT_PTR id() const { return id_; }

    void refresh(Aspect aspects) override {
        if (!window_.handle() || !has(aspects, Aspect::value | Aspect::enabled)) return;
        if (timer_.enabled() && timer_.interval() > 0)
            SetTimer(window_.handle(), id_, static_cast<UINT>(timer_.interval()), nullptr);
        else
            KillTimer(window_.handle(), id_);
    }

    void tick() {
        window_.deliver([&] { return timer_.tick(); });
    }

private:
    FormWindow& window_;
    Timer& timer_;
    UINT_PTR id_;
};

} // namespace brx
