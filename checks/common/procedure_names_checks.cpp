#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

// A report names the procedure whose trap it came from. Most procedures hardly ever fail, so the names are
// read from the sources.

namespace {

/// The procedure of a class whose definition begins in the line, "" for none.
std::string begun_by(const std::string& line) {
    static const std::regex definition(R"(^\w.*?(\w+)::(\w+)\()");
    std::smatch found;
    return std::regex_search(line, found, definition) ? found[2].str() : std::string();
}

/// The name that a trap in the line reports under.
std::string named_in(const std::string& line) {
    static const std::regex trap(R"re(\b(?:trap|find_id|find_name)\((?:ErrorLibrary::\w+, )?"(\w+)")re");
    std::smatch found;
    return std::regex_search(line, found, trap) ? found[1].str() : std::string();
}

/// Those that were compiled, or those that somebody else wants looked at.
std::filesystem::path sources() {
    const char* others = std::getenv("BRX_SOURCES");
    return others ? others : BRX_SOURCES;
}

} // namespace

TEST(ProcedureNames, EveryDialogReportsUnderTheNameOfItsClass) {
    static const std::regex constructor(
        R"re((\w+)::\w+\(Environment& environment\)\s*: Form\(environment,\s*\{\.name = "(\w+)")re");
    int dialogs = 0;
    for (const char* folder : {"browse", "configuration", "servers", "tests"})
        for (const auto& file : std::filesystem::directory_iterator(sources() / folder)) {
            std::ifstream source(file.path());
            const std::string text{std::istreambuf_iterator<char>(source), {}};
            std::smatch found;
            if (!std::regex_search(text, found, constructor)) continue;
            ++dialogs;
            EXPECT_EQ(found[2].str(), found[1].str()) << file.path();
        }
    EXPECT_EQ(dialogs, 9);
}

TEST(ProcedureNames, EveryTrapReportsUnderTheNameOfItsProcedure) {
    int traps = 0;
    for (const char* folder : {"browse", "classes", "common", "configuration", "servers", "tests"})
        for (const auto& file : std::filesystem::directory_iterator(sources() / folder)) {
            if (file.path().extension() != ".cpp") continue;
            std::ifstream source(file.path());
            std::string procedure;
            std::string line;
            for (int number = 1; std::getline(source, line); ++number) {
                if (const std::string begun = begun_by(line); !begun.empty()) procedure = begun;
                const std::string named = named_in(line);
                if (named.empty()) continue;
                ++traps;
                EXPECT_EQ(named, procedure) << file.path() << " line " << number;
            }
        }
    EXPECT_GT(traps, 100) << "The sources are not where they were.";
}
