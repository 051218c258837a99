#include "windows/component.h"

#include "com/bstr.h"
#include "com/failure.h"
#include "windows/bound_classes.h"

#include <brxOpcDlgs6.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace brx::checks {

namespace {

std::filesystem::path program_path() {
    std::wstring program(32'768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return program;
}

std::filesystem::path dll_path() {
    if (const wchar_t* named = _wgetenv(L"BRX_DLL")) return named;
    // The program lies somewhere in the build tree, the DLL at a known place of it.
    const std::filesystem::path in_tree = BRX_DLL_IN_BUILD_TREE;
    for (auto folder = program_path().parent_path(); folder.has_relative_path();
         folder = folder.parent_path())
        if (std::filesystem::exists(folder / in_tree)) return folder / in_tree;
    return program_path().parent_path() / in_tree.filename();
}

enum class Binding { early, late_by_reference, late_by_value };

Binding next_binding() {
    const char* wanted = std::getenv("BRX_BINDING");
    const std::string named = wanted ? wanted : "";
    if (named == "early") return Binding::early;
    if (named == "reference") return Binding::late_by_reference;
    if (named == "value") return Binding::late_by_value;
    static unsigned turn = 0;
    return static_cast<Binding>(turn++ % 3);
}

template <class Interface>
std::unique_ptr<PublicClass> bound(const com_ptr<IDispatch>& instance, VARTYPE result = VT_BOOL) {
    switch (next_binding()) {
    case Binding::early:
        break;
    case Binding::late_by_reference:
        return std::make_unique<LateBound>(instance, true, result);
    case Binding::late_by_value:
        return std::make_unique<LateBound>(instance, false, result);
    }
    return std::make_unique<EarlyBound<Interface>>(instance.as<Interface>());
}

} // namespace

Component::Component() : dll_(LoadLibraryExW(dll_path().c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {
    if (!dll_)
        throw std::runtime_error(
            text_of(dll_path().c_str(), dll_path().native().size()) +
            " cannot be loaded: " + error_of(HRESULT_FROM_WIN32(GetLastError())).description());
}

Component::~Component() { FreeLibrary(dll_); }

bool Component::is_loaded() { return GetModuleHandleW(dll_path().filename().c_str()) != nullptr; }

FARPROC Component::entry(const char* name) const {
    const FARPROC found = GetProcAddress(dll_, name);
    if (!found) throw std::runtime_error(std::string("The DLL lacks ") + name);
    return found;
}

bool Component::can_be_unloaded() const {
    using Function = HRESULT(STDAPICALLTYPE*)();
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(entry("DllCanUnloadNow")))() == S_OK;
}

com_ptr<IDispatch> Component::instance_of(const CLSID& clsid) const {
    using Function = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto get_class =
        reinterpret_cast<Function>(reinterpret_cast<void (*)()>(entry("DllGetClassObject")));
    void* found = nullptr;
    check(get_class(clsid, IID_IClassFactory, &found));
    const auto factory = com_ptr<IClassFactory>::adopt(static_cast<IClassFactory*>(found));
    void* made = nullptr;
    check(factory->CreateInstance(nullptr, IID_IDispatch, &made));
    return com_ptr<IDispatch>::adopt(static_cast<IDispatch*>(made));
}

std::unique_ptr<PublicClass> Component::create(const std::string& name) const {
    if (name == "LeafSelect") return bound<_LeafSelect>(instance_of(CLSID_LeafSelect));
    if (name == "ServerSelect") return bound<_ServerSelect>(instance_of(CLSID_ServerSelect));
    if (name == "ServerAdd") return bound<_ServerAdd>(instance_of(CLSID_ServerAdd));
    if (name == "ServerInformation") return bound<_ServerInformation>(instance_of(CLSID_ServerInformation));
    if (name == "ConfigurationSetup")
        return bound<_ConfigurationSetup>(instance_of(CLSID_ConfigurationSetup), VT_EMPTY);
    if (name == "TestConfiguration") return bound<_TestConfiguration>(instance_of(CLSID_TestConfiguration));
    throw std::runtime_error("There is no class " + name);
}

} // namespace brx::checks
