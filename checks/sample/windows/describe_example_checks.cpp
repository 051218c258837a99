// The guide's example, a program that shares no code with the component, reads a dialog of the host.

#include "sample/windows/host_program.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace brx::checks {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

struct Ended {
    DWORD code = 0;
    std::string printed;
};

/// Runs the example to its end.
Ended run_example(const std::wstring& dialog) {
    const CheckFolder folder;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const auto file = folder.file(L"printed.txt");
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
    const auto program = host_program().parent_path().parent_path() / L"describe" / L"brxDescribe.exe";
    std::wstring line = L"\"" + program.wstring() + L"\" " + dialog;
    PROCESS_INFORMATION process{};
    Ended ended;
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) {
        EXPECT_EQ(WaitForSingleObject(process.hProcess, 60'000), WAIT_OBJECT_0);
        GetExitCodeProcess(process.hProcess, &ended.code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    } else {
        ADD_FAILURE() << "it does not start";
    }
    CloseHandle(start.hStdOutput);
    std::ifstream printed(file, std::ios::binary);
    ended.printed.assign(std::istreambuf_iterator<char>(printed), {});
    std::erase(ended.printed, '\r');
    return ended;
}

TEST(DescribeExample, ReadsADialogOfAnotherProgram) {
    const OpenHost host;
    EXPECT_EQ(run_example(L"dlgItemSelect").code, 1U) << "None is open.";
    host.press(L"bnBrowse");
    const HWND dialog = host.program().window(L"#32770", L"Select Item");
    ASSERT_TRUE(dialog);
    const Ended ended = run_example(L"dlgItemSelect");
    EXPECT_EQ(ended.code, 0U);
    EXPECT_THAT(ended.printed, AllOf(StartsWith("dlgItemSelect\tform\t1\t1\t-1\t0\tSelect Item\n"),
                                     HasSubstr("\nbnOK\tbutton\t0\t1\t-1\t0\tOK\n"),
                                     HasSubstr("\nTrView\trow\t1\t1\t-1\t0\t+")));
    PostMessageW(dialog, WM_CLOSE, 0, 0);
    EXPECT_TRUE(comes_true([&] { return host.is_open_to_input(); }));
}

} // namespace

} // namespace brx::checks
