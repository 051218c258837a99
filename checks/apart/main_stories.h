#pragma once

#include "apart/apart_play.h"

#include <ostream>

namespace brx::checks {

// What each dialog is there for, with a server in another process.

void chooses_a_server(ApartPlay& play);
void looks_at_a_server(ApartPlay& play);
void browses_for_an_item(ApartPlay& play);
void sets_up_a_test(ApartPlay& play);
void sets_a_trigger(ApartPlay& play);
void adds_a_descriptor(ApartPlay& play);
void watches_a_server(ApartPlay& play);

struct MainStory {
    const char* name;
    ApartStory tell;
    /// Milliseconds for each call, of which some deed then takes more than a second.
    unsigned delay;
    /// The server is read by a timer only, and nobody waits for that.
    bool in_ticks = false;
};
const std::vector<MainStory>& main_stories();
inline void PrintTo(const MainStory& story, std::ostream* out) { *out << story.name; }

} // namespace brx::checks
