// Tells function and line for each place of a stack dump that names a module with its debug information at
// hand.
//
//     brxResolve DUMP DLL..
//
// A place is written "NAME.dll+0x1234", the distance from where the module was loaded. The PDB is looked for
// beside the DLL, beside this program, and where the system's debugger looks for it (_NT_SYMBOL_PATH). Every
// line of the dump is printed, with what was found behind it. Ends with 0 when something was.

#include <windows.h>

#include <dbghelp.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <cwctype>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

std::wstring lower(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
    return text;
}

struct Module {
    std::wstring name;
    DWORD64 base;
};

/// What the system's own reader of debug information knows.
class Symbols {
public:
    Symbols() {
        SymSetOptions(SYMOPT_UNDNAME | SYMOPT_LOAD_LINES | SYMOPT_EXACT_SYMBOLS |
                      SYMOPT_FAIL_CRITICAL_ERRORS);
        std::array<wchar_t, MAX_PATH> program{};
        GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
        path_ = std::filesystem::path(program.data()).parent_path().wstring();
    }
    Symbols(const Symbols&) = delete;
    Symbols& operator=(const Symbols&) = delete;
    ~Symbols() {
        if (begun_) SymCleanup(session());
    }

    bool load(const std::filesystem::path& file) {
        std::wstring path = std::filesystem::absolute(file).parent_path().wstring() + L";" + path_;
        if (const wchar_t* more = _wgetenv(L"_NT_SYMBOL_PATH")) path += L";" + std::wstring(more);
        if (begun_)
            SymSetSearchPathW(session(), path.c_str());
        else
            begun_ = SymInitializeW(session(), path.c_str(), FALSE) != FALSE;
        // Somewhere that no other one is.
        const DWORD64 wanted = 0x10000000u * (modules_.size() + 1);
        const DWORD64 base = SymLoadModuleExW(session(), nullptr, std::filesystem::absolute(file).c_str(),
                                              nullptr, wanted, 0, nullptr, 0);
        if (base == 0) return false;
        modules_.push_back({lower(file.filename().wstring()), base});
        return true;
    }

    std::string at(const Module& module, DWORD64 distance) const {
        constexpr std::size_t longest = 2000;
        struct {
            SYMBOL_INFOW symbol;
            std::array<wchar_t, longest> rest;
        } found{};
        found.symbol.SizeOfStruct = sizeof found.symbol;
        found.symbol.MaxNameLen = longest;
        DWORD64 into = 0;
        if (!SymFromAddrW(session(), module.base + distance, &into, &found.symbol)) return {};
        std::string text = narrow(found.symbol.Name);
        IMAGEHLP_LINEW64 line{};
        line.SizeOfStruct = sizeof line;
        DWORD into_line = 0;
        if (SymGetLineFromAddrW64(session(), module.base + distance, &into_line, &line))
            text += " (" + narrow(line.FileName) + ":" + std::to_string(line.LineNumber) + ")";
        return text;
    }

    /// What is known of the place that a line of a dump names.
    std::string told(const std::string& line) const {
        const std::size_t plus = line.find("+0x");
        if (plus == std::string::npos) return {};
        const std::size_t before = line.find_last_of(" \t\\/", plus);
        const std::size_t start = before == std::string::npos ? 0 : before + 1;
        const std::wstring name = lower(std::wstring(line.begin() + static_cast<std::ptrdiff_t>(start),
                                                     line.begin() + static_cast<std::ptrdiff_t>(plus)));
        const DWORD64 distance = std::strtoull(line.c_str() + plus + 3, nullptr, 16);
        for (const Module& module : modules_)
            if (module.name == name) return at(module, distance);
        return {};
    }

private:
    static HANDLE session() { return GetCurrentProcess(); }

    static std::string narrow(const wchar_t* text) {
        const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
        std::string result(static_cast<std::size_t>(std::max(size, 1)) - 1, '\0');
        if (size > 1) WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), size, nullptr, nullptr);
        return result;
    }

    std::wstring path_;
    bool begun_ = false;
    std::vector<Module> modules_;
};

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 3) {
        std::fputs("brxResolve DUMP DLL..\n", stderr);
        return 2;
    }
    Symbols symbols;
    for (int i = 2; i < count; ++i) {
        if (symbols.load(arguments[i])) continue;
        std::fwprintf(stderr, L"%ls cannot be read.\n", arguments[i]);
        return 2;
    }
    std::ifstream dump{std::filesystem::path(arguments[1])};
    if (!dump) {
        std::fwprintf(stderr, L"%ls cannot be read.\n", arguments[1]);
        return 2;
    }
    bool known = false;
    for (std::string line; std::getline(dump, line);) {
        while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.pop_back();
        const std::string told = symbols.told(line);
        known = known || !told.empty();
        std::printf("%s%s%s\n", line.c_str(), told.empty() ? "" : "  ", told.c_str());
    }
    return known ? 0 : 1;
}
