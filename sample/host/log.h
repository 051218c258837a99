#pragma once

#include <cstddef>
#include <deque>
#include <string>

namespace brx::host {

/// What happened, for whoever looks after the program. Old lines make room for new ones.
class Log {
public:
    /// Line breaks in the text become blanks.
    void add(const std::string& text);

    /// How many lines there ever were.
    std::size_t count() const { return forgotten_ + lines_.size(); }
    /// A line by its number from 1; "" for one that is forgotten or not yet there.
    std::string line(std::size_t number) const;

private:
    std::deque<std::string> lines_;
    std::size_t forgotten_ = 0;
};

} // namespace brx::host
