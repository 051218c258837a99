#pragma once

#include "server/dll.h"

#include <filesystem>
#include <string>

namespace brx::checks {

/// A copy of the component in a folder of its own.
class DllCopy {
public:
    explicit DllCopy(const std::wstring& folder) : folder_(std::filesystem::temp_directory_path() / folder) {
        std::filesystem::create_directories(folder_);
        std::filesystem::copy_file(dll_path(), path(), std::filesystem::copy_options::overwrite_existing);
    }
    DllCopy(const DllCopy&) = delete;
    DllCopy& operator=(const DllCopy&) = delete;
    ~DllCopy() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    std::wstring path() const { return folder_ / L"brxOpcDlgs6.dll"; }

private:
    std::filesystem::path folder_;
};

} // namespace brx::checks
