// Runs the check programs of the kit, 64-bit and 32-bit ones, and tells in sentences what came of it.
//
//   brxCheck [PROGRAM..] [--gtest_filter=PATTERN]
//
// It lies in the folder x64 or x86 of the kit. The whole logs go to the folder results beside those.
// Ends with "N passed, N failed, N skipped", and with 1 when something failed.

#include "common/version.h"
#include "kit/process.h"
#include "kit/programs.h"
#include "kit/report.h"
#include "system/this_system.h"

#include <algorithm>
#include <cstdio>
#include <exception>

namespace {

using namespace brx;
using namespace brx::kit;
namespace fs = std::filesystem;

struct Wanted {
    std::vector<std::wstring> programs; ///< none: all
    std::wstring filter;                ///< --gtest_filter=.., none: every check

    bool wants(const Program& program) const {
        if (!filter.empty() && !program.is_gtest) return false;
        const std::wstring name(program.name.begin(), program.name.end());
        return programs.empty() || std::find(programs.begin(), programs.end(), name) != programs.end();
    }
};

constexpr const wchar_t* own_bits = sizeof(void*) == 8 ? L"x64" : L"x86";
constexpr const wchar_t* other_bits = sizeof(void*) == 8 ? L"x86" : L"x64";
std::string in_words(const std::wstring& bits) { return bits == L"x64" ? "64 bits" : "32 bits"; }

fs::path own_folder() {
    std::wstring program(32'768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return fs::path(program).parent_path();
}

/// A 64-bit Windows may be without the part that runs 32-bit programs; a 32-bit one has none for the others.
bool runs_other_bits() {
    std::wstring folder(MAX_PATH, L'\0');
    folder.resize(sizeof(void*) == 8 ? GetSystemWow64DirectoryW(folder.data(), MAX_PATH) : 0);
    return !folder.empty() && fs::exists(fs::path(folder) / L"kernel32.dll");
}

std::string this_system() {
    const SIZE screen = checks::screen_size();
    const std::string wine = checks::wine_version();
    return checks::windows_version() + (wine.empty() ? "" : " (Wine " + wine + ")") + ", screen " +
           std::to_string(screen.cx) + " x " + std::to_string(screen.cy) + ", " +
           (checks::has_us_settings() ? "" : "not ") + "the settings of the United States, " +
           (checks::is_elevated() ? "" : "not ") + "as administrator";
}

void run_program(Report& report, const Program& program, const fs::path& folder, const fs::path& logs,
                 const Wanted& wanted) {
    const fs::path log = logs / (program.name + ".txt");
    const std::wstring own(program.arguments.begin(), program.arguments.end());
    const ULONGLONG begun = GetTickCount64();
    Outcome outcome;
    std::string wrong;
    try {
        const End end =
            run(folder / program.file, program.is_gtest ? wanted.filter : own, log, program.seconds);
        std::ifstream lines(log, std::ios::binary);
        outcome = outcome_of(lines);
        wrong = complaint(outcome, end, !wanted.filter.empty());
    } catch (const std::exception& error) {
        wrong = error.what();
    }
    report.tell(outcome, wrong, (GetTickCount64() - begun) / 1000);
}

void run_bits(Report& report, const fs::path& kit, const std::wstring& bits, const Wanted& wanted) {
    const fs::path logs = kit / L"results" / bits;
    fs::create_directories(logs);
    for (const Program& program : programs_in(kit / bits / L"programs.txt")) {
        if (!wanted.wants(program)) continue;
        report.say_at_once(in_words(bits) + ", " + program.name + ": ");
        if (bits != own_bits && !runs_other_bits())
            report.skip("this system runs no programs with " + in_words(bits));
        else
            run_program(report, program, kit / bits, logs, wanted);
    }
}

int check(const Wanted& wanted) {
    const fs::path kit = own_folder().parent_path(), results = kit / L"results";
    std::error_code ignored;
    fs::create_directories(results, ignored);
    Report report(results / L"summary.txt");
    if (!report.is_kept()) {
        std::fputs("Nothing can be written beside the programs. Unpack the zip into a folder of your own.\n",
                   stderr);
        return 2;
    }
    report.say("brxOpcDlgs6 " BRX_VERSION_TEXT " on " + this_system());
    report.say(
        "Windows will open and close by themselves. Do not touch keyboard and mouse until the last line.");
    for (const wchar_t* bits : {own_bits, other_bits})
        if (fs::exists(kit / bits)) run_bits(report, kit, bits, wanted);
    report.say("All of it: " + results.string());
    report.say(closing_line(report.sum()));
    const Outcome& sum = report.sum();
    return sum.failed == 0 && sum.passed > 0 ? 0 : 1;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    Wanted wanted;
    for (int i = 1; i < argc; ++i) {
        const std::wstring each = argv[i];
        if (each.starts_with(L"--gtest_filter=")) {
            wanted.filter = each;
        } else if (each.starts_with(L"-")) {
            std::fputs("use: brxCheck [PROGRAM..] [--gtest_filter=PATTERN]\n", stderr);
            return 2;
        } else {
            wanted.programs.push_back(each);
        }
    }
    SetConsoleOutputCP(CP_UTF8);
    // Counted and told in a log, not in a box that waits for somebody; the programs inherit it.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    SetEnvironmentVariableW(L"GTEST_COLOR", L"no");
    try {
        return check(wanted);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brxCheck: %s\n", error.what());
        return 2;
    }
}
