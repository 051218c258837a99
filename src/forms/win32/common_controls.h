#pragma once

namespace brx {

/// The window class of one of the newer common controls, which some systems register only when asked to.
const wchar_t* common_control(const wchar_t* window_class);

} // namespace brx
