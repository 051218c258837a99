#include "forms/accessible_name.h"

#include "forms/frame.h"
#include "forms/label.h"

namespace brx {

namespace {

/// "&" marks the accelerator, "&&" is one.
std::string without_mark(const std::string& caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        plain += caption[i];
    }
    return plain;
}

/// A label beside it, or the frame around it.
std::string label_before(const Control& control) {
    const Control* before = nullptr;
    for (const Control* each : control.form().controls_in_tab_order()) {
        if (each == &control) break;
        before = each;
    }
    const Container& around = control.container();
    const bool names =
        before && (dynamic_cast<const Label*>(before) ? &before->container() == &around
                                                      : dynamic_cast<const Frame*>(before) == &around);
    return names ? before->accelerator_text() : std::string();
}

} // namespace

std::string accessible_name_of(const Control& control) {
    if (!control.accessible_name().empty()) return control.accessible_name();
    const std::string caption = control.accelerator_text();
    return without_mark(caption.empty() ? label_before(control) : caption);
}

} // namespace brx
