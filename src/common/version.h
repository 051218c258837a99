#pragma once

/// The component's version, in the two forms that the version resource needs. Also included by resource
/// scripts.
#define BRX_VERSION_NUMBERS 6, 0, 0, 0
#define BRX_VERSION_TEXT "6.0.0"

#ifdef __cplusplus
namespace brx {

/// What the component says of itself in error reports.
inline constexpr const char* application_text = "brxOpcDlgs6 " BRX_VERSION_TEXT;

} // namespace brx
#endif
