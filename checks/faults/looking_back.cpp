#include "faults/looking_back.h"

#include <gtest/gtest.h>

std::string brx::checks::why_not_all_ran(const std::function<bool(const std::string& suite)>& is_meant) {
    const auto& all = *testing::UnitTest::GetInstance();
    for (int i = 0; i < all.total_test_suite_count(); ++i) {
        const testing::TestSuite& suite = *all.GetTestSuite(i);
        if (!is_meant(suite.name())) continue;
        for (int j = 0; j < suite.total_test_count(); ++j) {
            const testing::TestInfo& each = *suite.GetTestInfo(j);
            const std::string name = std::string(suite.name()) + "." + each.name();
            if (!each.should_run()) return name + " is left out of this run.";
            if (each.result()->start_timestamp() != 0) continue;
            if (!GTEST_FLAG_GET(shuffle)) ADD_FAILURE() << name << " comes after this check.";
            return name + " comes later in this order.";
        }
    }
    return {};
}
