#include "kit/outcome.h"

#include <cstdio>
#include <istream>
#include <utility>

namespace brx::kit {

namespace {

constexpr const char* run_mark = "[ RUN      ] ";
constexpr const char* ok_mark = "[       OK ] ";
constexpr const char* failed_mark = "[  FAILED  ] ";
constexpr const char* skipped_mark = "[  SKIPPED ] ";
constexpr const char* plain_failure = "FAILED: "; // of programs without GoogleTest
constexpr const char* plain_skip = "SKIPPED: ";

bool take(std::string& line, const char* mark) {
    const std::string beginning = mark;
    if (!line.starts_with(beginning)) return false;
    line.erase(0, beginning.size());
    return true;
}

/// "Suite.Name, where GetParam() = 3 (12 ms)" is "Suite.Name".
std::string name_in(const std::string& line) { return line.substr(0, line.find_first_of(", ")); }

/// The lines of its own begin after "file.cpp:12: Skipped".
std::string reason_in(const std::string& text) {
    const std::size_t mark = text.find(": Skipped\n");
    std::string reason = mark == std::string::npos ? text : text.substr(text.find('\n', mark) + 1);
    while (reason.ends_with('\n')) reason.pop_back();
    return reason.empty() ? "no reason told" : reason;
}

class Reader {
public:
    explicit Reader(Outcome& outcome) : outcome_(outcome) {}

    void read(std::string line) {
        if (line.ends_with('\r')) line.pop_back();
        long long passed = 0, failed = 0, skipped = 0;
        char rest = '\0';
        if (std::sscanf(line.c_str(), "%lld passed, %lld failed, %lld skippe%c", &passed, &failed, &skipped,
                        &rest) == 4 &&
            line.ends_with(" skipped")) {
            outcome_.passed = passed, outcome_.failed = failed, outcome_.skipped = skipped;
            outcome_.closed = true;
        } else if (take(line, run_mark)) {
            outcome_.under_way = line;
            text_.clear();
        } else if (outcome_.under_way.empty()) {
            if (take(line, plain_failure)) outcome_.failures.push_back({line, ""});
            if (take(line, plain_skip)) outcome_.skips.push_back({"", line});
        } else {
            read_within(std::move(line));
        }
    }

private:
    void read_within(std::string line) {
        if (take(line, failed_mark))
            outcome_.failures.push_back({name_in(line), text_});
        else if (take(line, skipped_mark))
            outcome_.skips.push_back({name_in(line), reason_in(text_)});
        else if (!take(line, ok_mark)) {
            text_ += line + '\n';
            return;
        }
        outcome_.under_way.clear();
    }

    Outcome& outcome_;
    std::string text_; ///< of the check that is under way
};

} // namespace

Outcome outcome_of(std::istream& log) {
    Outcome outcome;
    Reader reader(outcome);
    for (std::string line; std::getline(log, line);) reader.read(line);
    return outcome;
}

std::string complaint(const Outcome& outcome, const End& end, bool may_be_empty) {
    const std::string where = outcome.under_way.empty() ? "" : ", in " + outcome.under_way;
    if (!end.in_time) return "it was ended at its time limit" + where;
    const std::string status = "it ended with status " + std::to_string(end.status);
    if (!outcome.closed) return status + " before its closing line" + where;
    if (outcome.failed > 0) return {};
    if (outcome.passed + outcome.skipped == 0) return may_be_empty ? "" : "no check ran";
    return end.status == 0 ? "" : "all its checks passed, but " + status;
}

std::string closing_line(const Outcome& outcome) {
    return std::to_string(outcome.passed) + " passed, " + std::to_string(outcome.failed) + " failed, " +
           std::to_string(outcome.skipped) + " skipped";
}

} // namespace brx::kit
