#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <objidl.h>

#include <functional>

namespace brx {

/// For its lifetime the system tries calls of this thread again that a busy server turns away. A message
/// filter of the host's own is left as it is, and a thread of a multithreaded apartment has none: then those
/// calls fail at once, unless the host's filter knows better. Of several on a thread the first one sees to
/// it.
class CallRetries {
public:
    /// How long a call is tried again, in milliseconds.
    static constexpr DWORD lasting = 10'000;

    /// `is_stopped`: whether a person wants what calls to end. The latest on the thread is asked.
    explicit CallRetries(std::function<bool()> is_stopped) noexcept;
    ~CallRetries();
    CallRetries(const CallRetries&) = delete;
    CallRetries& operator=(const CallRetries&) = delete;

private:
    class Filter;

    void take_away() noexcept;

    std::function<bool()> is_stopped_;
    CallRetries* outer_;
    com_ptr<IMessageFilter> filter_; ///< none where there is another one
};

} // namespace brx
