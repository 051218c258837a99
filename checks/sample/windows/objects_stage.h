#pragma once

#include "com/late_bound.h"
#include "common/error.h"
#include "win32/com_ptr.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <oleauto.h>

#include <filesystem>
#include <string>

namespace brx::checks {

/// The sample host's program as it was built, with both DLLs beside it.
std::filesystem::path host_program();

/// As long as it lives, classes are found by the manifest of the sample host's program and by nothing else.
class HostManifest {
public:
    HostManifest();
    HostManifest(const HostManifest&) = delete;
    HostManifest& operator=(const HostManifest&) = delete;
    ~HostManifest();

private:
    HANDLE context_;
    ULONG_PTR cookie_ = 0;
};

/// A folder of this check's own.
class CheckFolder {
public:
    CheckFolder();
    CheckFolder(const CheckFolder&) = delete;
    CheckFolder& operator=(const CheckFolder&) = delete;
    ~CheckFolder();
    std::filesystem::path file(const wchar_t* name) const { return path_ / name; }
    std::string name_of(const wchar_t* file_name) const;

private:
    std::filesystem::path path_;
};

void write_file(const std::filesystem::path& path, const std::string& content);

/// A new object by its class name; none, after failing the check, when it cannot be made.
com_ptr<IDispatch> create_by_name(const wchar_t* class_name);

// Members by name, as a script uses them.
Variant get(IDispatch* object, const std::string& property, const std::vector<Variant>& arguments = {});
void put(IDispatch* object, const std::string& property, const Variant& value);
Variant call(IDispatch* object, const std::string& method, const std::vector<Variant>& arguments = {});
com_ptr<IDispatch> get_object(IDispatch* object, const std::string& property,
                              const std::vector<Variant>& arguments = {});
/// The error that a property ends with.
Error error_of_getting(IDispatch* object, const std::string& property,
                       const std::vector<Variant>& arguments = {});

/// A brxSample.Host on a database file of its own.
class ObjectsCheck : public testing::Test {
protected:
    ObjectsCheck();
    ~ObjectsCheck() override;

    com_ptr<IDispatch> servers() { return get_object(host.get(), "Servers"); }

private:
    struct Apartment {
        Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
        Apartment(const Apartment&) = delete;
        Apartment& operator=(const Apartment&) = delete;
        ~Apartment() { CoUninitialize(); }
    } apartment_;
    HostManifest manifest_;

protected:
    CheckFolder folder;
    com_ptr<IDispatch> host;
};

} // namespace brx::checks
