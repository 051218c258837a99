// The main of every check program. It closes with one line "N passed, N failed, N skipped"; a program that
// did not print it did not run to its end, whatever its exit status says.

#include <gmock/gmock.h>

#include <cstdio>

#ifdef _WIN32
#include "system/needs.h"

#include <windows.h>
#endif

namespace {

/// A crash must end the program, not wait in a dialog for somebody to press a button.
void end_at_a_crash() {
#ifdef _WIN32
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
#endif
}

/// What went wrong outside any one check: in the set-up of a suite or of the whole program.
int failures_outside_checks(const testing::UnitTest& all) {
    int count = all.ad_hoc_test_result().Failed() ? 1 : 0;
    for (int i = 0; i < all.total_test_suite_count(); ++i)
        if (all.GetTestSuite(i)->ad_hoc_test_result().Failed()) ++count;
    return count;
}

} // namespace

int main(int argc, char** argv) {
    end_at_a_crash();
    testing::InitGoogleMock(&argc, argv);
    if (argc > 1) {
        std::fprintf(stderr, "%s: unknown argument %s\n", argv[0], argv[1]);
        return 2;
    }
#ifdef _WIN32
    brx::checks::skip_what_the_system_lacks();
#endif
    const bool only_listed = testing::GTEST_FLAG(list_tests);
    const bool succeeded = RUN_ALL_TESTS() == 0;
    if (only_listed) return 0;

    const auto& all = *testing::UnitTest::GetInstance();
    const int passed = all.successful_test_count();
    const int failed = all.failed_test_count() + failures_outside_checks(all);
    const int skipped = all.skipped_test_count() + all.reportable_disabled_test_count();
    if (passed + failed + skipped == 0) std::fprintf(stderr, "%s: no check ran\n", argv[0]);
    std::fflush(stderr);
    std::printf("%d passed, %d failed, %d skipped\n", passed, failed, skipped);
    std::fflush(stdout);
    return succeeded && failed == 0 && passed + skipped > 0 ? 0 : 1;
}
