#pragma once

namespace brx {

/// Traces while the environment variable BRX_TRACE says where to: a file's path, or "debugger". A file that
/// cannot be written gives its lines to the debugger too.
void trace_as_asked() noexcept;

} // namespace brx
