#include "faults/looking_back.h"
#include "host/call_log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <set>
#include <string>
#include <vector>

// docs/calls.md says for each dialog which members of the host's objects it calls. After all stories: these
// are the calls that dialogs made, no more and no less.

using namespace brx::checks;

namespace {

/// As the type libraries have them.
std::string published_name(const std::string& member) {
    static const std::regex record("^hlx(Record|Selection)[.]");
    if (member == "hlxOPCDescriptors.NewEnum") return "hlxOPCDescriptors._NewEnum";
    if (member == "hlxOPCDescriptors.Next") return "IEnumVARIANT.Next";
    return std::regex_replace(member, record, "_hlx$1.");
}

constexpr const char* every_dialog = "Every dialog";
constexpr const char* how_called = "How members are called"; ///< has a table of another kind

bool is_service(const std::string& member) {
    return member.find("hlxHelp") != std::string::npos || member.find("hlxMessage") != std::string::npos;
}

/// The services are told of once, for all dialogs.
std::set<CallOfDialog> calls_made() {
    std::set<CallOfDialog> made;
    for (const auto& [dialog, member] : calls_of_all_dialogs())
        made.insert({is_service(member) ? every_dialog : dialog, published_name(member)});
    return made;
}

std::vector<std::string> all_in(const std::string& text, const std::regex& pattern) {
    std::vector<std::string> found;
    for (std::sregex_iterator each(text.begin(), text.end(), pattern), end; each != end; ++each)
        found.push_back((*each)[1].str());
    return found;
}

std::vector<std::string> cells_of(const std::string& row) {
    static const std::regex cell("[|]([^|]*)");
    return all_in(row, cell);
}

struct Tables {
    std::set<CallOfDialog> calls;
    std::set<std::string> told; ///< members that the text tells something of
};

/// Under a heading that begins with the dialog's name, each row has an interface, what is called or read, and
/// what is written. Classes that are created are in a row of their own.
Tables read_tables() {
    static const std::regex name("`(\\w+)`");
    static const std::regex full_name("`(\\w+[.]\\w+)`");
    Tables tables;
    std::string dialog;
    std::ifstream file(BRX_TABLES);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("#")) {
            const auto named = all_in(line, name);
            dialog = named.empty() ? line.substr(line.find(' ') + 1) : named.front();
        }
        for (const std::string& member : all_in(line, full_name)) tables.told.insert(member);
        const std::vector<std::string> cells = cells_of(line);
        if (cells.size() < 3 || dialog == how_called) continue;
        const std::vector<std::string> owner = all_in(cells[0], name);
        const std::string begin = owner.empty() ? "create " : owner.front() + ".";
        for (const std::string& member : all_in(cells[1], name))
            tables.calls.insert({dialog, begin + member});
        for (const std::string& member : all_in(cells[2], name))
            tables.calls.insert({dialog, begin + member + "="});
    }
    return tables;
}

} // namespace

TEST(TablesOfCalls, HaveAllThatTheDialogsCall) {
    const Tables tables = read_tables();
    ASSERT_FALSE(tables.calls.empty()) << "There are no tables in " << BRX_TABLES;
    for (const CallOfDialog& call : calls_made())
        EXPECT_TRUE(tables.calls.contains(call))
            << call.dialog << " calls " << call.member << ", which its table in docs/calls.md does not have.";
}

TEST(TablesOfCalls, HaveNothingThatNoDialogCalls) {
    const auto is_meant = [](const std::string& suite) {
        const bool has_parameters = suite.find('/') != std::string::npos; // those run last
        return !has_parameters && suite != "TablesOfCalls" && suite != "PlacesOfFailure";
    };
    if (const std::string why = why_not_all_ran(is_meant); !why.empty()) GTEST_SKIP() << why;
    const Tables tables = read_tables();
    const std::set<CallOfDialog> made = calls_made();
    for (const CallOfDialog& call : tables.calls)
        EXPECT_TRUE(made.contains(call)) << "The table of " << call.dialog << " in docs/calls.md has "
                                         << call.member << ", which it never calls.";
    for (const std::string& member : tables.told)
        EXPECT_TRUE(std::any_of(
            made.begin(), made.end(),
            [&](const auto& call) { return call.member == member || call.member == member + "="; }))
            << "docs/calls.md tells of " << member << ", which no dialog calls.";
}
