#include "sample/windows/objects_stage.h"

#include "adapters/to_com.h"
#include "common/values/text.h"
#include "win32/module.h"

#include <fstream>

namespace brx::checks {

std::filesystem::path host_program() {
    const std::filesystem::path program = module_path();
    return (program.parent_path() / BRX_HOST_FROM_PROGRAM).lexically_normal().make_preferred();
}

HostManifest::HostManifest() {
    const std::wstring program = host_program().wstring();
    const std::wstring folder = host_program().parent_path().wstring();
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
    description.lpSource = program.c_str();
    description.lpAssemblyDirectory = folder.c_str();
    description.lpResourceName = MAKEINTRESOURCEW(1);
    context_ = CreateActCtxW(&description);
    if (context_ == INVALID_HANDLE_VALUE || !ActivateActCtx(context_, &cookie_))
        ADD_FAILURE() << "the manifest of the sample host cannot be used: error " << GetLastError();
}

HostManifest::~HostManifest() {
    if (context_ == INVALID_HANDLE_VALUE) return;
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
}

CheckFolder::CheckFolder()
    : path_(std::filesystem::temp_directory_path() / ("brx-sample-" + std::to_string(GetCurrentProcessId()) +
                                                      "-" + std::to_string(GetTickCount64()))) {
    std::filesystem::create_directories(path_);
}

CheckFolder::~CheckFolder() {
    std::error_code ignored;
    for (const auto& each : std::filesystem::directory_iterator(path_, ignored))
        SetFileAttributesW(each.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    std::filesystem::remove_all(path_, ignored);
}

std::string CheckFolder::name_of(const wchar_t* file_name) const {
    return to_utf8(file(file_name).u16string());
}

void write_file(const std::filesystem::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

com_ptr<IDispatch> create_by_name(const wchar_t* class_name) {
    CLSID clsid{};
    com_ptr<IDispatch> object;
    HRESULT result = CLSIDFromProgID(class_name, &clsid);
    if (SUCCEEDED(result))
        result = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                  reinterpret_cast<void**>(object.out()));
    if (FAILED(result)) ADD_FAILURE() << "no object of the class could be made: 0x" << std::hex << result;
    return object;
}

Variant get(IDispatch* object, const std::string& property, const std::vector<Variant>& arguments) {
    return invoke(object, property, DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments);
}

void put(IDispatch* object, const std::string& property, const Variant& value) {
    invoke(object, property, DISPATCH_PROPERTYPUT, {value});
}

Variant call(IDispatch* object, const std::string& method, const std::vector<Variant>& arguments) {
    return invoke(object, method, DISPATCH_METHOD, arguments);
}

com_ptr<IDispatch> get_object(IDispatch* object, const std::string& property,
                              const std::vector<Variant>& arguments) {
    const Variant value = get(object, property, arguments);
    const auto* const found = std::get_if<ObjectPtr>(&value);
    return found ? dispatch_of(*found) : nullptr;
}

Error error_of_getting(IDispatch* object, const std::string& property,
                       const std::vector<Variant>& arguments) {
    try {
        get(object, property, arguments);
    } catch (const Error& error) {
        return error;
    }
    return {0, "no error", ""};
}

ObjectsCheck::ObjectsCheck() : host(create_by_name(L"brxSample.Host")) {
    if (host) put(host.get(), "DatabaseFile", folder.name_of(L"host.db"));
}

/// The file must be closed before its folder goes.
ObjectsCheck::~ObjectsCheck() { host = nullptr; }

} // namespace brx::checks
