#pragma once

#include "common/trap.h"

#include <atomic>
#include <string>

/// What is written down for whoever supports a host, while that is wanted: a line for each showing, each call
/// of the host's objects that failed, each report, each message box.
namespace brx::trace {

using Sink = void (*)(const std::string& line);

/// Null while nobody wants it.
inline std::atomic<Sink> sink = nullptr;

/// Writes down what `text` gives, which is not asked without a sink.
template <class Text> void line(Text&& text) noexcept {
    if (const Sink write = sink.load(std::memory_order_relaxed)) attempt([&] { write(text()); });
}

} // namespace brx::trace
