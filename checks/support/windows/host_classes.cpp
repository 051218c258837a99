#include "windows/host_classes.h"

#include "adapters/to_com.h"
#include "com/bstr.h"
#include "com/failure.h"
#include "com/guid_text.h"
#include "win32/this_module.h"
#include "windows/error_object.h"

#include <brxDatabase6.h>
#include <brxError6.h>
#include <brxOpcAuto6.h>
#include <hlxER01.h>

#include <array>
#include <utility>

namespace brx::checks {

namespace {

constexpr auto database_classes = std::to_array<std::pair<const CLSID*, const char*>>({
    {&CLSID_hlxTestGroup, class_name::hlxTestGroup},
    {&CLSID_hlxTestSelection, class_name::hlxTestSelection},
    {&CLSID_hlxPart, class_name::hlxPart},
    {&CLSID_hlxPartGroup, class_name::hlxPartGroup},
    {&CLSID_hlxPartSelection, class_name::hlxPartSelection},
    {&CLSID_hlxProcess, class_name::hlxProcess},
    {&CLSID_hlxProcessGroup, class_name::hlxProcessGroup},
    {&CLSID_hlxProcessSelection, class_name::hlxProcessSelection},
    {&CLSID_hlxJob, class_name::hlxJob},
    {&CLSID_hlxJobGroup, class_name::hlxJobGroup},
    {&CLSID_hlxJobSelection, class_name::hlxJobSelection},
    {&CLSID_hlxShift, class_name::hlxShift},
    {&CLSID_hlxShiftGroup, class_name::hlxShiftGroup},
    {&CLSID_hlxShiftSelection, class_name::hlxShiftSelection},
    {&CLSID_hlxDescriptor, class_name::hlxDescriptor},
    {&CLSID_hlxDescriptorGroup, class_name::hlxDescriptorGroup},
    {&CLSID_hlxDescriptorSelection, class_name::hlxDescriptorSelection},
});

} // namespace

HostClasses::HostClasses(FakeHost& host) : host_(host) {
    offer(CLSID_hlxOPCServer, factory_of(class_name::hlxOPCServer));
    for (const auto& [clsid, name] : database_classes) offer(*clsid, factory_of(name));
    offer_what_it_has();
}

HostClasses::~HostClasses() {
    for (const auto& [clsid, cookie] : offered_) CoRevokeClassObject(cookie);
}

void HostClasses::offer_what_it_has() {
    offer_if(host_.message_service != nullptr, CLSID_hlxMessage, factory_of(class_name::hlxMessage));
    offer_if(host_.help_service != nullptr, CLSID_hlxHelp, factory_of(class_name::hlxHelp));
    const auto error_class = [&](ErrorLibrary library, const CLSID& clsid) {
        offer_if(host_.error_classes.at(library) != ErrorClass::missing, clsid,
                 make_factory([this, library] { return make_error_object(host_, library); }));
    };
    error_class(ErrorLibrary::brxError6, CLSID_Error);
    error_class(ErrorLibrary::hlxER01, CLSID_hlxER01_Error);
}

void HostClasses::offer_if(bool has_it, const CLSID& clsid, const com_ptr<IClassFactory>& factory) {
    const bool offered = offered_.contains(guid_text(clsid));
    if (has_it && !offered)
        offer(clsid, factory);
    else if (!has_it && offered)
        withdraw(clsid);
}

/// Of the class of the host's that has this name.
com_ptr<IClassFactory> HostClasses::factory_of(const char* name) {
    return make_factory([this, name] { return dispatch_of(host_.create(name)); });
}

void HostClasses::offer(const CLSID& clsid, const com_ptr<IClassFactory>& factory) {
    DWORD cookie = 0;
    check(CoRegisterClassObject(clsid, factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie));
    offered_[guid_text(clsid)] = cookie;
}

void HostClasses::withdraw(const CLSID& clsid) {
    const auto found = offered_.find(guid_text(clsid));
    CoRevokeClassObject(found->second);
    offered_.erase(found);
}

bool is_the_hosts_database(const hlxDatabasePtr& database) {
    // The component hands on the object that it was given, and none of its own around it.
    const com_ptr<IDispatch> object = dispatch_of(database);
    if (!object) return false;
    HMODULE maker = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       *reinterpret_cast<const wchar_t* const*>(object.get()), &maker);
    return maker == this_module();
}

} // namespace brx::checks
