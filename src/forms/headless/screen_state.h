#pragma once

#include "forms/control.h"
#include "forms/peer.h"

#include <memory>
#include <string>
#include <vector>

namespace brx {

/// What one control showed when its peer last read it.
struct Shown {
    std::string text;
    std::vector<std::string> lines; ///< of a tree: the nodes in view, see `rows_of`
    int selected = -1;
    int value = 0;
    bool enabled = false;
    bool visible = false;
    Color back_color = 0;
    Color fore_color = 0;
    Place place;
    bool in_front = false;
};

/// A peer without a platform: it keeps what it was told to show, so that a scripted user sees what a real one
/// would, and sees stale things where the peers were not brought up to date.
class HeadlessPeer : public Peer {
public:
    explicit HeadlessPeer(Control& control);

    Control& control() const { return control_; }
    const Shown& shown() const { return shown_; }

    void refresh(Aspect aspects) override;

private:
    Control& control_;
    Shown shown_;
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

    void refresh(Aspect aspects) override;

private:
    Form& form_;
    std::string caption_;
    Control* focused_ = nullptr;
    std::vector<std::unique_ptr<HeadlessPeer>> peers_;
};

} // namespace brx
