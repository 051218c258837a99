#include "endurance/lasting.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace brx::checks {

namespace {

std::string in_words(int done, const Footprint& now) {
    return std::to_string(done) + ": user " + std::to_string(now.user) + ", gdi " + std::to_string(now.gdi) +
           ", kernel " + std::to_string(now.kernel) + ", blocks " + std::to_string(now.blocks) + ", bytes " +
           std::to_string(now.bytes) + ", references " + std::to_string(now.references) + "\n";
}

long long more(std::size_t end, std::size_t mark) {
    return static_cast<long long>(end) - static_cast<long long>(mark);
}

} // namespace

void Lasting::count() {
    ++done_;
    if (done_ % (times_ / 10) != 0) return;
    latest_ = footprint_of(host_);
    if (done_ == times_ / 10) mark_ = latest_;
    course_ += in_words(done_, latest_);
}

void Lasting::close(int blocks_of_the_system) const {
    EXPECT_EQ(done_, times_);
    const int watched = times_ - times_ / 10;
    const std::string found = grown(mark_, latest_, static_cast<std::size_t>(watched * blocks_of_the_system));
    EXPECT_EQ(found, "") << what_ << "\n" << course_;
    std::printf("%-32s%8d  user %+d  gdi %+d  kernel %+d  blocks %+lld (system %d)  bytes %+.1f each  "
                "references %+ld\n",
                what_.c_str(), times_, latest_.user - mark_.user, latest_.gdi - mark_.gdi,
                latest_.kernel - mark_.kernel, more(latest_.blocks, mark_.blocks),
                watched * blocks_of_the_system,
                static_cast<double>(more(latest_.bytes, mark_.bytes)) / watched,
                latest_.references - mark_.references);
    std::fflush(stdout);
}

int times_from_environment(const char* name, int usual) {
    const char* const text = std::getenv(name);
    const int times = text ? std::atoi(text) : usual;
    if (times < 1'000) throw std::runtime_error(std::string(name) + " has to be a number from 1,000 up");
    return times / 10 * 10;
}

} // namespace brx::checks
