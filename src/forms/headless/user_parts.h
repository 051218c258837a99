#pragma once

namespace brx {

class Control;

/// The control as one of a kind, or null.
template <class Kind> Kind* as(Control* control) { return dynamic_cast<Kind*>(control); }

} // namespace brx
