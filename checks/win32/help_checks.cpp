// Which file, command and topic the system's viewers are handed.

#include "forms/win32/help.h"

#include "forms/win32/wide.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include <htmlhelp.h>

namespace brx::checks {

namespace {

using Names = std::vector<std::wstring>;

struct Shown {
    std::string viewer;
    std::wstring file;
    UINT command = 0;
    DWORD topic = 0;
    bool operator==(const Shown&) const = default;
};
void PrintTo(const Shown& shown, std::ostream* to) {
    *to << shown.viewer << " shows " << from_wide(shown.file) << " by " << shown.command << " at "
        << shown.topic;
}

std::filesystem::path program_folder() {
    std::wstring program(32'768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return std::filesystem::path(program).parent_path();
}

/// A help file that is there as long as this lives.
class File {
public:
    explicit File(std::filesystem::path path) : path_(std::move(path)) { std::ofstream(path_) << "no help"; }
    ~File() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

private:
    std::filesystem::path path_;
};

/// The current folder is a fresh one with a folder `deep` in it.
class HelpTest : public testing::Test {
protected:
    HelpTest() {
        std::filesystem::create_directories(folder / "deep");
        std::filesystem::current_path(folder);
    }
    ~HelpTest() override {
        std::filesystem::current_path(before_);
        std::filesystem::remove_all(folder);
    }

    HelpOutcome open(const std::wstring& name, DWORD topic = 7) {
        const auto viewer = [&](const char* which) {
            return [this, which](HWND, const std::wstring& file, UINT command, DWORD at) {
                shown.push_back({which, file, command, at});
                return takes_it;
            };
        };
        return open_help_file(nullptr, name, topic, {viewer("html"), viewer("older")});
    }
    /// The file that is opened by this name, "" when that is missing.
    std::wstring opened_by(const std::wstring& name) {
        shown.clear();
        const HelpOutcome outcome = open(name);
        EXPECT_EQ(outcome, shown.empty() ? HelpOutcome::missing : HelpOutcome::opened) << from_wide(name);
        return shown.empty() ? L"" : shown[0].file;
    }

    std::vector<Shown> shown;
    bool takes_it = true;
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("brx help " + std::to_string(GetCurrentProcessId()));

private:
    std::filesystem::path before_ = std::filesystem::current_path();
};

} // namespace

TEST_F(HelpTest, AnHtmlFileOpensAtTheTopicAndWithoutOneAtItsFirstPage) {
    const File file(folder / "plant.chm");
    const std::wstring path = (folder / "plant.chm").wstring();
    EXPECT_EQ(open(path, 195), HelpOutcome::opened);
    EXPECT_EQ(open(path, 0), HelpOutcome::opened);
    EXPECT_EQ(shown, (std::vector<Shown>{{"html", path, HH_HELP_CONTEXT, 195},
                                         {"html", path, HH_DISPLAY_TOPIC, 0}}));
}

TEST_F(HelpTest, AnOlderFileOpensInItsOwnViewer) {
    const File file(folder / "plant.HLP");
    const std::wstring path = (folder / "plant.HLP").wstring();
    EXPECT_EQ(open(path, 195), HelpOutcome::opened);
    EXPECT_EQ(open(path, 0), HelpOutcome::opened);
    EXPECT_EQ(shown,
              (std::vector<Shown>{{"older", path, HELP_CONTEXT, 195}, {"older", path, HELP_FINDER, 0}}));
}

TEST_F(HelpTest, WhatFollowsTheNameOfTheFileStaysForItsViewer) {
    const File file(folder / "plant.chm");
    const File older(folder / "plant.hlp");
    const std::wstring path = (folder / "plant").wstring();
    for (const wchar_t* rest : {L".chm::/first.htm", L".chm>main", L".chm::/first.htm>main", L".hlp>main"})
        EXPECT_EQ(opened_by(path + rest), path + rest);
    EXPECT_EQ(shown.back().viewer, "older");
    EXPECT_EQ(opened_by(path + L"s.chm::/first.htm"), L"");
    EXPECT_EQ(opened_by(path + L"s.chm>main"), L"");
}

TEST_F(HelpTest, NamesOfEveryFormLeadToTheWholePath) {
    const File file(folder / "brx plant.chm");
    const File inside(folder / "deep" / "brx plant.chm");
    const std::wstring here = (folder / "brx plant.chm").wstring();
    const std::wstring below = (folder / "deep" / "brx plant.chm").wstring();
    const std::wstring drive = here.substr(0, 2);
    EXPECT_EQ(opened_by(here), here);
    EXPECT_EQ(opened_by(L"brx plant.chm"), here);
    EXPECT_EQ(opened_by(L".\\brx plant.chm"), here);
    EXPECT_EQ(opened_by(L"deep\\brx plant.chm"), below);
    EXPECT_EQ(opened_by(L"deep/brx plant.chm"), below);
    EXPECT_EQ(opened_by(L"deep\\..\\brx plant.chm"), here);
    EXPECT_EQ(opened_by(here.substr(2)), here) << "on the current drive";
    EXPECT_EQ(opened_by(drive + L"brx plant.chm"), here) << "in the current folder of a drive";
    EXPECT_EQ(opened_by(L"\\\\?\\" + here), L"\\\\?\\" + here);
    EXPECT_EQ(opened_by(L"deep\\brx plant.chm::/first.htm"), below + L"::/first.htm");
}

TEST_F(HelpTest, AFileThatIsNotThereIsMissingWhateverTheFormOfItsName) {
    const std::wstring here = folder.wstring();
    for (const std::wstring& name : Names{L"brx none.chm", L".\\brx none.chm", L"deep\\brx none.chm",
                                          L"\\brx none.chm", L"C:brx none.chm", here + L"\\brx none.chm",
                                          L"\\\\?\\" + here + L"\\brx none.chm", L"brx none.hlp", L"deep"})
        EXPECT_EQ(opened_by(name), L"") << from_wide(name);
}

TEST_F(HelpTest, TheProgramsOwnFolderComesBeforeTheCurrentOne) {
    const File here(folder / "brx plant.chm");
    const File beside(program_folder() / "brx plant.chm");
    EXPECT_EQ(opened_by(L"brx plant.chm"), (program_folder() / "brx plant.chm").wstring());
    EXPECT_EQ(opened_by(L"C:brx plant.chm").find(program_folder().wstring()), std::wstring::npos);
}

TEST_F(HelpTest, ABareNameIsFoundWhereItWasRegisteredAndInTheSystemsFolderForHelp) {
    const std::pair<const wchar_t*, const wchar_t*> kinds[] = {
        {L"brx registered.chm", L"SOFTWARE\\Microsoft\\Windows\\HTML Help"},
        {L"brx registered.hlp", L"SOFTWARE\\Microsoft\\Windows\\Help"}};
    const std::wstring deep = (folder / "deep").wstring();
    for (const auto& [name, key] : kinds) {
        const File file(folder / "deep" / name);
        EXPECT_EQ(opened_by(name), L"");
        ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, name, REG_SZ, deep.c_str(),
                                  static_cast<DWORD>((deep.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
        EXPECT_EQ(opened_by(name), deep + L"\\" + name);
        RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, key, name);
    }
    wchar_t windows[MAX_PATH] = L"";
    GetSystemWindowsDirectoryW(windows, MAX_PATH);
    const std::filesystem::path help = std::filesystem::path(windows) / L"Help";
    std::filesystem::create_directories(help);
    const File file(help / "brx plant.chm");
    EXPECT_EQ(opened_by(L"brx plant.chm"), (help / "brx plant.chm").wstring());
    EXPECT_EQ(opened_by(L".\\brx plant.chm"), L"") << "It is no bare name.";
}

TEST_F(HelpTest, WhatIsNoNameOfAFileIsTheViewersToFind) {
    for (const std::wstring& name :
         Names{L"ms-its:C:\\none\\plant.chm::/first.htm", L"mk:@MSITStore:plant.chm::/first.htm"})
        EXPECT_EQ(opened_by(name), name);
}

TEST_F(HelpTest, AFileThatNoViewerTakesIsNotOpened) {
    const File file(folder / "plant.chm");
    const File older(folder / "plant.hlp");
    takes_it = false;
    EXPECT_EQ(open(L"plant.chm"), HelpOutcome::not_opened);
    EXPECT_EQ(open(L"plant.hlp"), HelpOutcome::not_opened);
    EXPECT_EQ(shown.size(), 2U);
}

TEST_F(HelpTest, TheSystemsViewerTakesNoFileThatIsNoHelp) {
    const File file(folder / "plant.chm");
    for (const DWORD topic : {0U, 195U})
        EXPECT_EQ(open_help_file(nullptr, L"plant.chm", topic, HelpViewers::of_the_system()),
                  HelpOutcome::not_opened);
}

} // namespace brx::checks
