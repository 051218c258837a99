#include "common/trace.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

using namespace brx;

namespace {

std::vector<std::string> written;

struct Trace : testing::Test {
    Trace() { written.clear(); }
    ~Trace() override { trace::sink = nullptr; }
};

} // namespace

TEST_F(Trace, MakesNoLineForNobody) {
    bool made = false;
    const auto make = [&] {
        made = true;
        return std::string("a line");
    };
    trace::line(make);
    EXPECT_FALSE(made);
    trace::sink = [](const std::string& line) { written.push_back(line); };
    trace::line(make);
    EXPECT_EQ(written, std::vector<std::string>{"a line"});
}

TEST_F(Trace, OfALineThatCannotBeMadeOrWrittenNobodyHears) {
    trace::sink = [](const std::string&) { throw std::runtime_error("full"); };
    trace::line([] { return std::string("a line"); });
    trace::sink = [](const std::string& line) { written.push_back(line); };
    trace::line([]() -> std::string { throw std::bad_alloc(); });
    EXPECT_TRUE(written.empty());
}
