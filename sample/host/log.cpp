#include "host/log.h"

#include <algorithm>

namespace brx::host {

namespace {
constexpr std::size_t lines_kept = 1000;
}

void Log::add(const std::string& text) {
    std::string line = text;
    line.erase(std::remove(line.begin(), line.end(), '\r'), line.end());
    std::replace(line.begin(), line.end(), '\n', ' ');
    lines_.push_back(std::move(line));
    if (lines_.size() > lines_kept) {
        lines_.pop_front();
        ++forgotten_;
    }
}

std::string Log::line(std::size_t number) const {
    return number > forgotten_ && number <= count() ? lines_[number - forgotten_ - 1] : std::string();
}

} // namespace brx::host
