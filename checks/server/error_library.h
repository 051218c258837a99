#pragma once

#include "server/class_for_process.h"
#include "server/script_object.h"

#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

/// One call of the error library's Show: the kinds of the values and the values, in their order.
struct HeardReport {
    std::vector<VARTYPE> kinds;
    std::int32_t number = 0;
    std::vector<std::wstring> texts; ///< description, source, location, application

    std::wstring location() const { return texts.size() == 4 ? texts[2] : L""; }
};

/// The host's error library, in this process, known by the identifier of brxError6.Error.
class ErrorLibrary6 {
public:
    ErrorLibrary6();
    explicit ErrorLibrary6(REFCLSID clsid);

    std::vector<HeardReport> heard;
    /// What happens while a report is shown.
    std::function<HRESULT()> while_shown = [] { return S_OK; };

private:
    ScriptObject object_;
    ClassForProcess class_;
};

} // namespace brx::checks
