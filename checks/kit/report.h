#pragma once

#include "kit/outcome.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace brx::kit {

/// What a person is told: on the console and in a file.
class Report {
public:
    explicit Report(const std::filesystem::path& file) : file_(file) {}

    bool is_kept() const { return file_.good(); }
    void say(const std::string& line);
    /// A piece of a line that goes on.
    void say_at_once(const std::string& text);

    /// What came of a program, in sentences, and into the sum. `wrong` is its complaint.
    void tell(const Outcome& outcome, const std::string& wrong, unsigned long long seconds);
    /// A program that cannot run here.
    void skip(const std::string& why);

    const Outcome& sum() const { return sum_; }

private:
    void tell_failures(const Outcome& outcome);
    void tell_skips(const Outcome& outcome);

    std::ofstream file_;
    Outcome sum_;
};

} // namespace brx::kit
