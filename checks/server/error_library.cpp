#include "server/error_library.h"

#include <brxError6.h>

namespace brx::checks {

namespace {

HeardReport report_in(const std::vector<const VARIANT*>& arguments) {
    HeardReport report;
    for (const VARIANT* each : arguments) {
        report.kinds.push_back(V_VT(each));
        if (V_VT(each) == VT_I4) report.number = V_I4(each);
        if (V_VT(each) == VT_BSTR) report.texts.emplace_back(V_BSTR(each), SysStringLen(V_BSTR(each)));
    }
    return report;
}

} // namespace

ErrorLibrary6::ErrorLibrary6() : ErrorLibrary6(CLSID_Error) {}

ErrorLibrary6::ErrorLibrary6(REFCLSID clsid)
    : object_(L"Show",
              [this](const std::vector<const VARIANT*>& arguments) {
                  heard.push_back(report_in(arguments));
                  return while_shown();
              }),
      class_(clsid, [this] { return com_ptr<IDispatch>(&object_); }) {}

} // namespace brx::checks
