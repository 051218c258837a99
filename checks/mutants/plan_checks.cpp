#include "mutants/left_out.h"
#include "mutants/plan.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace brx::mutants;

namespace {

TEST(MutantTurns, AreTheChecksThatReachTheEdit) {
    const std::string reach = "before all checks\t0\t 1\nA.b\t2000\t 7 17\nA.c\t0\t 27 71\nA.d\t0\t 7\n";
    const std::vector<Turn> turns = turns_for(reach, "7");
    ASSERT_EQ(turns.size(), 1U);
    EXPECT_EQ(turns[0].filter, "A.d:A.b") << "the most specific and quickest one first";
    EXPECT_EQ(turns[0].seconds, 30);
    EXPECT_TRUE(turns_for(reach, "2").empty());
    EXPECT_EQ(turns_for(reach, "1").at(0).filter, "*") << "reached outside any check";
}

TEST(MutantTurns, TryAFewChecksBeforeTheRest) {
    std::string reach;
    for (int i = 0; i < 13; ++i) reach += "A.b\t0\t 7\n";
    const std::vector<Turn> turns = turns_for(reach, "7");
    ASSERT_EQ(turns.size(), 2U);
    EXPECT_EQ(turns[1].filter, "A.b");
}

TEST(MutantExceptions, NameAFileALineAndAnEdit) {
    Exceptions exceptions("# a comment\nsrc/a.cpp | b == c | comparison | equal\nsrc/d* | * | text | seen\n");
    EXPECT_TRUE(exceptions.leave_out("src/a.cpp", "if (b == c) return;", "comparison =="));
    EXPECT_FALSE(exceptions.leave_out("src/a.cpp", "if (b == c) return;", "statement return;"));
    EXPECT_FALSE(exceptions.leave_out("src/a.cpp", "if (b == d) return;", "comparison =="));
    EXPECT_FALSE(exceptions.leave_out("src/a.h", "if (b == c) return;", "comparison =="));
    EXPECT_EQ(exceptions.idle().size(), 1U);
    EXPECT_TRUE(exceptions.leave_out("src/dir/e.h", "anything", "text \"a\""));
    EXPECT_TRUE(exceptions.idle().empty());
}

TEST(MutantExceptions, HaveAReason) {
    EXPECT_THROW(Exceptions("src/a.cpp | * | *"), std::runtime_error);
    EXPECT_THROW(Exceptions("src/a.cpp | * | * | "), std::runtime_error);
}

} // namespace
