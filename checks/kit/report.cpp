#include "kit/report.h"

#include "kit/sentence.h"

#include <cstdio>
#include <map>
#include <sstream>
#include <vector>

namespace brx::kit {

namespace {

constexpr std::size_t most_failures = 50;
constexpr int most_lines = 12;

} // namespace

void Report::say_at_once(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
    file_ << text << std::flush;
}

void Report::say(const std::string& line) { say_at_once(line + "\n"); }

void Report::tell(const Outcome& outcome, const std::string& wrong, unsigned long long seconds) {
    say((wrong.empty() ? closing_line(outcome) : "FAILED") + " (" + std::to_string(seconds) + " s)");
    tell_failures(outcome);
    // One that did not close may have told failures, which count; its own end counts once more.
    const bool counted = outcome.closed;
    sum_.passed += outcome.passed;
    sum_.skipped += outcome.skipped;
    sum_.failed += counted ? outcome.failed : static_cast<long long>(outcome.failures.size());
    if (!wrong.empty()) {
        say("FAILED: " + wrong);
        ++sum_.failed;
    } else if (outcome.failed > static_cast<long long>(outcome.failures.size())) {
        say("FAILED: more than that, outside any one check; see its log");
    }
    tell_skips(outcome);
}

void Report::tell_failures(const Outcome& outcome) {
    std::size_t told = 0;
    for (const Told& each : outcome.failures) {
        if (++told > most_failures) {
            say("and " + std::to_string(outcome.failures.size() - most_failures) + " more; see its log");
            return;
        }
        const std::string words = sentence(each.check);
        say("FAILED: " + words + (words == each.check ? "" : "   [" + each.check + "]"));
        std::istringstream text(each.text);
        int lines = 0;
        for (std::string line; lines < most_lines && std::getline(text, line); ++lines) say("    " + line);
    }
}

void Report::tell_skips(const Outcome& outcome) {
    std::map<std::string, std::vector<std::string>> by_reason;
    for (const Told& each : outcome.skips) by_reason[each.text].push_back(each.check);
    for (const auto& [reason, checks] : by_reason) {
        say("SKIPPED: " + std::to_string(checks.size()) + ": " + reason);
        for (const std::string& each : checks)
            if (!each.empty()) file_ << "    " << sentence(each) << "   [" << each << "]\n";
    }
}

void Report::skip(const std::string& why) {
    say("");
    say("SKIPPED: " + why);
    ++sum_.skipped;
}

} // namespace brx::kit
