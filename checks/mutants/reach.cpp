// Part of a check program with edits compiled in: the edit is named by BRX_MUTANT; where BRX_MUTANT_REACH
// names a file, it gets a line for each check: its name, its milliseconds, the edits that it reached.

#include "mutants/mutant.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fstream>

namespace brx_mutant {

int selected = -1;

namespace {

constexpr std::size_t most = 1 << 20;
constinit std::array<unsigned char, most> flags{};

/// Before anything of the program is initialised.
[[gnu::constructor(101)]] void select() {
    if (const char* number = std::getenv("BRX_MUTANT")) selected = std::atoi(number);
}

class Listener : public testing::EmptyTestEventListener {
public:
    explicit Listener(const char* file) : file_(file) { write("before all checks", 0); }

private:
    void OnTestEnd(const testing::TestInfo& check) override {
        write(std::string(check.test_suite_name()) + "." + check.name(), check.result()->elapsed_time());
    }

    void write(const std::string& name, long long milliseconds) {
        file_ << name << '\t' << milliseconds << '\t';
        for (std::size_t i = 0; i < flags.size(); ++i)
            if (flags[i] != 0) file_ << ' ' << i;
        file_ << std::endl;
        flags.fill(0);
    }

    std::ofstream file_;
};

const bool listens = [] {
    const char* const file = std::getenv("BRX_MUTANT_REACH");
    if (file) testing::UnitTest::GetInstance()->listeners().Append(new Listener(file));
    return file != nullptr;
}();

} // namespace

unsigned char* const reached = flags.data();

} // namespace brx_mutant
