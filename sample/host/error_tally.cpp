#include "host/error_tally.h"

#include "host/log.h"
#include "host/words.h"

#include <algorithm>

namespace brx::host {

namespace {

constexpr double seconds_until_quiet = 60;

bool is_from_timer(const ReportedError& error) { return error.location.ends_with("_Timer"); }

std::string line_of(const ReportedError& error) {
    return "Error " + number_in_words(error.number) + " in " + error.location + ": " + error.description;
}

std::string more_in_words(std::size_t more) {
    return more == 0 ? std::string() : "and " + std::to_string(more) + " more like it";
}

} // namespace

std::vector<ErrorTally::Kind>::iterator ErrorTally::find(const ReportedError& error) {
    return std::ranges::find_if(kinds_, [&](const Kind& kind) {
        return kind.told.number == error.number && kind.told.location == error.location;
    });
}

bool ErrorTally::add(const ReportedError& error, double now) {
    end_quiet_ones(now);
    auto kind = find(error);
    if (kind != kinds_.end() && (kind->box_open || is_from_timer(error))) {
        ++kind->more;
        kind->came = now;
        kind->quiet_from = std::max(kind->quiet_from, now + seconds_until_quiet);
        return false;
    }
    if (kind == kinds_.end())
        kind = kinds_.insert(kind, Kind{});
    else
        end(*kind);
    *kind = {
        .told = error, .began = now, .came = now, .quiet_from = now + seconds_until_quiet, .box_open = true};
    log_.add(line_of(error));
    return true;
}

/// A timer whose tick took long rests for as long.
void ErrorTally::box_closed(const ReportedError& error, double now) {
    const auto kind = find(error);
    if (kind == kinds_.end()) return;
    kind->box_open = false;
    kind->quiet_from = now + (now - kind->began) + seconds_until_quiet;
}

void ErrorTally::end_quiet_ones(double now) {
    std::erase_if(kinds_, [&](const Kind& kind) {
        const bool quiet = !kind.box_open && now >= kind.quiet_from;
        if (quiet) end(kind);
        return quiet;
    });
}

void ErrorTally::end(const Kind& kind) {
    if (kind.more != 0) log_.add(line_of(kind.told) + ", " + more_in_words(kind.more));
}

std::string ErrorTally::more_like(const ReportedError& error) {
    const auto kind = find(error);
    return kind == kinds_.end() ? std::string() : more_in_words(kind->more);
}

std::string ErrorTally::last(double now) {
    end_quiet_ones(now);
    const auto kind = std::ranges::max_element(kinds_, {}, &Kind::came);
    if (kind == kinds_.end()) return {};
    const std::string more = more_in_words(kind->more);
    return line_of(kind->told) + (more.empty() ? "" : ", " + more);
}

} // namespace brx::host
