#include "windows/host_classes.h"

#include "com/bstr.h"
#include "com/com_object.h"
#include "com/failure.h"
#include "com/guid_text.h"
#include "win32/this_module.h"
#include "windows/class_name.h"
#include "windows/error_object.h"

#include <brxDatabase6.h>
#include <brxError6.h>
#include <brxOpcAuto6.h>

#include <array>
#include <utility>

namespace brx::checks {

namespace {

/// The host's own, under which the other error library's class is found by its name.
constexpr CLSID error_class_by_name = {
    0x1CC7C4FE, 0x229C, 0x47DC, {0x83, 0x1A, 0xE3, 0xF6, 0x19, 0x53, 0xD4, 0x74}};
constexpr const wchar_t* error_class_name = L"hlxER01.Error";

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
    offer(CLSID_hlxOPCServer, class_name::hlxOPCServer);
    for (const auto& [clsid, name] : database_classes) offer(*clsid, name);
    offer(CLSID_Error, make_factory([&host] { return make_error_object(host, ErrorLibrary::brxError6); }));
    offer(error_class_by_name,
          make_factory([&host] { return make_error_object(host, ErrorLibrary::hlxER01); }));
    register_class_name(error_class_name, guid_text(error_class_by_name));
    offer_services();
}

HostClasses::~HostClasses() {
    unregister_class_name(error_class_name);
    for (const auto& [clsid, cookie] : offered_) CoRevokeClassObject(cookie);
}

void HostClasses::offer_services() {
    offer_service(CLSID_hlxMessage, class_name::hlxMessage, host_.message_service != nullptr);
    offer_service(CLSID_hlxHelp, class_name::hlxHelp, host_.help_service != nullptr);
}

void HostClasses::offer_service(const CLSID& clsid, const char* name, bool has_it) {
    const bool offered = offered_.contains(guid_text(clsid));
    if (has_it && !offered)
        offer(clsid, name);
    else if (!has_it && offered)
        withdraw(clsid);
}

/// The class of the host's that has this name.
void HostClasses::offer(const CLSID& clsid, const char* name) {
    offer(clsid, make_factory([this, name] { return to_dispatch(host_.create(name)); }));
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
    const com_ptr<IDispatch> object = to_dispatch(database);
    if (!object) return false;
    HMODULE maker = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       *reinterpret_cast<const wchar_t* const*>(object.get()), &maker);
    return maker == this_module();
}

} // namespace brx::checks
