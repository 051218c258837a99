#include "objects/classes.h"

#include "com/com_object.h"
#include "host/server_entry.h"
#include "objects/error_object.h"
#include "objects/host_object.h"
#include "objects/site.h"

#include "brxError6.h"
#include "brxOpcAuto6.h"
#include "brxSample.h"

namespace brx::host {

namespace {

/// hlxER01.Error is called by name only, so no type library describes it.
constexpr CLSID clsid_hlxER01_error{
    0xC8DF09B6, 0xB0E2, 0x4837, {0xB5, 0x97, 0x03, 0xAB, 0xAD, 0xD6, 0x0D, 0x18}};

com_ptr<IDispatch> new_fresh_entry() { return to_dispatch(std::make_shared<FreshEntry>(site().source)); }

const NamedClass all[] = {
    {{CLSID_Host, new_host_object}, L"brxSample.Host", L"The sample host"},
    {{CLSID_hlxOPCServer, new_fresh_entry}, L"brxOpcAuto6.hlxOPCServer", L"A fresh server entry"},
    {{CLSID_Error, new_error_object}, L"brxError6.Error", L"Reports an unexpected error"},
    {{clsid_hlxER01_error, new_error_object}, L"hlxER01.Error", L"Reports an unexpected error"},
};

} // namespace

std::span<const NamedClass> classes() { return all; }

} // namespace brx::host
