#include "common/values/held_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

using brx::HeldText;

namespace {

bool hold(HeldText& held, std::string_view bytes) {
    return held.hold(bytes, [&](std::string& text) { text = "<" + std::string(bytes) + ">"; });
}

} // namespace

TEST(HeldTextTest, ConvertsWhatDiffersOnly) {
    HeldText held;
    EXPECT_TRUE(hold(held, "Line 1"));
    EXPECT_EQ(held.text(), "<Line 1>");
    EXPECT_FALSE(held.hold("Line 1", [](std::string&) { FAIL() << "It is converted again."; }));
    EXPECT_EQ(held.text(), "<Line 1>");
    EXPECT_TRUE(hold(held, "Line 2"));
    EXPECT_EQ(held.text(), "<Line 2>");
}

TEST(HeldTextTest, TakesAnEmptyTextToo) {
    HeldText held;
    EXPECT_TRUE(hold(held, "")) << "Nothing was held yet.";
    EXPECT_EQ(held.text(), "<>");
    EXPECT_FALSE(hold(held, ""));
}

TEST(HeldTextTest, ConvertsAgainAfterAFailure) {
    HeldText held;
    hold(held, "Line 1");
    const auto fails = [](std::string& text) {
        text = "half";
        throw std::runtime_error("no memory");
    };
    EXPECT_THROW(held.hold("Line 2", fails), std::runtime_error);
    EXPECT_TRUE(hold(held, "Line 1")) << "What was held is gone.";
    EXPECT_EQ(held.text(), "<Line 1>");
}
