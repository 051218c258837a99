#include "dll/com_object_factory.h"

#include "com/bstr.h"
#include "com/com_object.h"
#include "common/error.h"
#include "common/trap.h"

#include "brxDatabase6.h"
#include "brxError6.h"
#include "brxOpcAuto6.h"
#include "hlxER01.h"

#include <algorithm>
#include <array>

namespace brx {

namespace {

struct PublishedClass {
    std::string_view name;
    const CLSID& clsid;
};

constexpr auto published = std::to_array<PublishedClass>({
    {error_class_name(ErrorLibrary::brxError6), CLSID_Error},
    {error_class_name(ErrorLibrary::hlxER01), CLSID_hlxER01_Error},

    {class_name::hlxOPCServer, CLSID_hlxOPCServer},
    {class_name::hlxMessage, CLSID_hlxMessage},
    {class_name::hlxHelp, CLSID_hlxHelp},

    {class_name::hlxTestGroup, CLSID_hlxTestGroup},
    {class_name::hlxPart, CLSID_hlxPart},
    {class_name::hlxPartGroup, CLSID_hlxPartGroup},
    {class_name::hlxProcess, CLSID_hlxProcess},
    {class_name::hlxProcessGroup, CLSID_hlxProcessGroup},
    {class_name::hlxJob, CLSID_hlxJob},
    {class_name::hlxJobGroup, CLSID_hlxJobGroup},
    {class_name::hlxShift, CLSID_hlxShift},
    {class_name::hlxShiftGroup, CLSID_hlxShiftGroup},
    {class_name::hlxDescriptor, CLSID_hlxDescriptor},
    {class_name::hlxDescriptorGroup, CLSID_hlxDescriptorGroup},

    {class_name::hlxTestSelection, CLSID_hlxTestSelection},
    {class_name::hlxPartSelection, CLSID_hlxPartSelection},
    {class_name::hlxProcessSelection, CLSID_hlxProcessSelection},
    {class_name::hlxJobSelection, CLSID_hlxJobSelection},
    {class_name::hlxShiftSelection, CLSID_hlxShiftSelection},
    {class_name::hlxDescriptorSelection, CLSID_hlxDescriptorSelection},
});

CLSID identifier_of(const std::string& class_name) {
    CLSID clsid{};
    if (SUCCEEDED(CLSIDFromProgID(wide(class_name).c_str(), &clsid))) return clsid;
    const auto found = std::find_if(published.begin(), published.end(),
                                    [&](const PublishedClass& each) { return each.name == class_name; });
    if (found == published.end()) throw Error(error::cannot_create_object);
    return found->clsid;
}

} // namespace

com_ptr<IDispatch> create_host_object(const std::string& class_name) {
    com_ptr<IDispatch> object;
    const HRESULT created =
        CoCreateInstance(identifier_of(class_name), nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                         IID_IDispatch, reinterpret_cast<void**>(object.out()));
    if (FAILED(created) || !object) throw Error(error::cannot_create_object);
    return object;
}

ObjectPtr ComObjectFactory::create(const std::string& class_name) {
    return from_dispatch(create_host_object(class_name));
}

} // namespace brx
