#include "apart/only_wrapper.h"

#include <objbase.h>

#include <string>

// What the server program writes for clients of other processes, and takes back.

namespace brx::checks {

namespace {

const std::wstring classes = L"Software\\Classes\\";
constexpr const wchar_t* own_name = L"brxSample.Server";
const std::wstring interface_key = L"Interface\\{28E68F92-8D75-11D1-8DC3-3C302A000000}\\TypeLib";
const std::wstring library_key = L"TypeLib\\{28E68F91-8D75-11D1-8DC3-3C302A000000}\\1.0";

#ifdef _WIN64
const std::wstring file_key = library_key + L"\\0\\win64";
#else
const std::wstring file_key = library_key + L"\\0\\win32";
#endif

bool has_key(const std::wstring& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, (classes + path).c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

/// "" where there is none.
std::wstring text_at(const std::wstring& path) {
    std::wstring text(1024, L'\0');
    DWORD size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (RegGetValueW(HKEY_LOCAL_MACHINE, (classes + path).c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
                     text.data(), &size) != ERROR_SUCCESS)
        return {};
    return text.c_str();
}

std::wstring class_of(const std::wstring& name) { return text_at(name + L"\\CLSID"); }

void write(const std::wstring& path, const std::wstring& text) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, (classes + path).c_str(), nullptr, REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void expect_nothing_left(const std::wstring& id) {
    for (const std::wstring& key :
         {L"CLSID\\" + id, std::wstring(own_name), std::wstring(wrapper_name), interface_key, library_key})
        EXPECT_FALSE(has_key(key));
}

/// Another program's wrapper, by its name only, on a computer that has none.
class ForeignWrapper {
public:
    ForeignWrapper() { write(std::wstring(wrapper_name) + L"\\CLSID", id); }
    ForeignWrapper(const ForeignWrapper&) = delete;
    ForeignWrapper& operator=(const ForeignWrapper&) = delete;
    ~ForeignWrapper() { RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + wrapper_name).c_str()); }

    const std::wstring id = L"{0F7C5A11-54B1-4F0B-9E0E-6A5C6F1B2D01}";
};

/// The server program in a folder of its own, which can be moved.
class MovingProgram {
public:
    MovingProgram()
        : folder_(std::filesystem::temp_directory_path() /
                  ("brx-moving-" + std::to_string(GetCurrentProcessId()))) {
        for (const char* place : {"one", "other"}) std::filesystem::create_directories(folder_ / place);
        std::filesystem::copy_file(server_program(), at("one"),
                                   std::filesystem::copy_options::overwrite_existing);
    }
    MovingProgram(const MovingProgram&) = delete;
    MovingProgram& operator=(const MovingProgram&) = delete;
    ~MovingProgram() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    std::filesystem::path at(const char* place) const { return folder_ / place / "brxSampleServer.exe"; }
    void moves() const { std::filesystem::rename(at("one"), at("other")); }

private:
    std::filesystem::path folder_;
};

/// On a computer without a library of the interfaces either, but one that these checks have left behind.
class Installing : public OnlyWrapper<> {
protected:
    void SetUp() override {
        OnlyWrapper::SetUp();
        const std::filesystem::path library = text_at(file_key);
        if (std::filesystem::exists(library) && library != server_program())
            GTEST_SKIP()
                << "This computer has the interfaces' library of another program, which is left alone: "
                << library;
    }
};

TEST_F(Installing, IsFoundByItsNamesAndLeavesNothingBehind) {
    std::wstring id;
    {
        const InstalledServer installed;
        id = class_of(own_name);
        EXPECT_TRUE(has_key(L"CLSID\\" + id + L"\\LocalServer32"));
        EXPECT_EQ(class_of(wrapper_name), id);
        EXPECT_EQ(other_wrapper(), "") << "It is no other program's.";
        EXPECT_TRUE(has_key(interface_key));
        EXPECT_EQ(text_at(file_key), server_program().wstring());
    }
    expect_nothing_left(id);
}

TEST_F(Installing, LeavesTheNameOfAWrapperThatIsThereAlone) {
    const ForeignWrapper foreign;
    EXPECT_NE(other_wrapper(), "") << "What needs the name has to be skipped here.";
    {
        const InstalledServer installed;
        EXPECT_EQ(class_of(wrapper_name), foreign.id);
        EXPECT_NE(class_of(own_name), L"");
    }
    EXPECT_EQ(class_of(wrapper_name), foreign.id);
}

TEST_F(Installing, AgainFromAnotherFolderTakesTheLibraryAlong) {
    const MovingProgram program;
    const InstalledServer before(program.at("one"));
    const std::wstring id = class_of(own_name);
    EXPECT_EQ(text_at(file_key), program.at("one").wstring());
    program.moves();
    {
        const InstalledServer now(program.at("other"));
        EXPECT_EQ(text_at(file_key), program.at("other").wstring());
    }
    expect_nothing_left(id);
}

TEST_F(Installing, TakesThePlaceOfALibraryWhoseFileIsGone) {
    write(file_key, L"C:\\no such folder\\wrapper.dll\\2");
    std::wstring id;
    {
        const InstalledServer installed;
        id = class_of(own_name);
        EXPECT_EQ(text_at(file_key), server_program().wstring());
    }
    expect_nothing_left(id);
}

TEST_F(Installing, LeavesTheLibraryOfAnotherProgramAlone) {
    const MovingProgram other;
    for (const std::wstring& path : {other.at("one").wstring(), other.at("one").wstring() + L"\\2"}) {
        write(file_key, path);
        { const InstalledServer installed; }
        EXPECT_EQ(text_at(file_key), path);
    }
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + library_key).c_str());
}

} // namespace

} // namespace brx::checks
