#pragma once

#include "forms/control.h"
#include "forms/held_deeds.h"
#include "forms/peer.h"

#include <memory>
#include <string>
#include <vector>

namespace brx {

/// A peer without a platform: it keeps what its control read when it was told to show it, so that a scripted
/// user sees what a real one would, and sees stale things where the peers were not brought up to date.
class HeadlessPeer : public Peer {
public:
    explicit HeadlessPeer(Control& control);

    Control& control() const { return control_; }
    const Reading& shown() const { return shown_; }

    void refresh(Aspect aspects) override;

private:
    Control& control_;
    Reading shown_;
};

/// The open window of a form.
class HeadlessWindow : public Peer {
public:
    explicit HeadlessWindow(Form& form);

    Form& form() const { return form_; }
    const std::string& caption() const { return caption_; }
    Control* focused() const { return focused_; }
    /// The peer of a control, or null when the form has none of this name.
    const HeadlessPeer* find(const std::string& name) const;

    HeldDeeds& held() { return held_; }

    void refresh(Aspect aspects) override;

private:
    Form& form_;
    HeldDeeds held_;
    std::string caption_;
    Control* focused_ = nullptr;
    std::vector<std::unique_ptr<HeadlessPeer>> peers_;
};

} // namespace brx
