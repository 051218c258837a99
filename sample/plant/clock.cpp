#include "plant/clock.h"

#include <thread>

namespace brx::plant {

namespace {

constexpr double first_of_january_1970 = 25569;

} // namespace

Date SystemClock::now() {
    const std::chrono::duration<double> since_1970 = std::chrono::system_clock::now().time_since_epoch();
    return {first_of_january_1970 + since_1970.count() / seconds_per_day};
}

void SystemClock::wait(std::chrono::milliseconds duration) { std::this_thread::sleep_for(duration); }

} // namespace brx::plant
