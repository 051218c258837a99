#include "random/play.h"

#include "random/finding.h"
#include "random/retelling.h"
#include "random/sitting.h"
#include "random/source.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif
#ifndef _WIN32
#include <unistd.h>
#endif

namespace brx::checks {

namespace {

/// Looking for lost memory takes as long as many deeds.
constexpr int deeds_between_looks = 4'000;
/// Few deeds show not everything that there is.
constexpr int deeds_that_show_all = 5'000;

/// A sitting that takes longer hangs. Real windows have a limit of their own for each deed.
void end_if_it_hangs() {
#ifndef _WIN32
    constexpr unsigned seconds = 10;
    alarm(seconds);
#endif
}

/// Looking for lost memory takes its time.
void nothing_hangs_now() {
#ifndef _WIN32
    alarm(0);
#endif
}

void look_for_lost_memory() {
    nothing_hangs_now();
#ifdef __SANITIZE_ADDRESS__
    if (__lsan_do_recoverable_leak_check() != 0) throw Finding("lost memory", "");
#endif
}

std::vector<std::string> dialogs_of(const std::string& class_name) {
    static const std::map<std::string, std::vector<std::string>> all = {
        {"ServerSelect", {"dlgServerSelect", "dlgServerAdd", "message"}},
        {"ServerAdd", {"dlgServerAdd", "message"}},
        {"ServerInformation", {"dlgServerInformation"}},
        {"LeafSelect", {"dlgItemSelect", "message"}},
        {"TestConfiguration", {"dlgOPCTest", "dlgItemSelect", "message"}},
        {"ConfigurationSetup",
         {"dlgConfiguration", "dlgDescriptorType", "dlgDescriptorProperties", "dlgEvaluation", "dlgOPCTest",
          "dlgItemSelect", "message"}}};
    return all.at(class_name);
}

/// Notes each deed before it is done, for whoever reads it after a crash.
class Journal {
public:
    explicit Journal(std::string file) : file_(std::move(file)) { forget(); }
    void note(const Deed& deed) { lines_ << line_of(deed) << std::endl; }
    void forget() {
        lines_.close();
        lines_.open(file_, std::ios::trunc);
    }

private:
    std::string file_;
    std::ofstream lines_;
};

/// What is to be told at the end.
struct Tally {
    int deeds = 0;
    int possible = 0;
    int sittings = 0;
    std::map<std::string, int> seen; ///< in how many sittings each form was
};

void sit(Source& source, Journal& journal, Tally& tally) {
    end_if_it_hangs();
    const Deeds beginning = source.beginning();
    Sitting sitting(beginning.front().number);
    const auto does = [&](const Deed& deed) {
        journal.note(deed);
        ++tally.deeds;
        tally.possible += sitting.plays(deed) ? 1 : 0;
    };
    for (const Deed& deed : beginning) does(deed);
    for (int left = source.length(); left > 0; --left)
        does(source.next(sitting.screen(), sitting.is_showing()));
    sitting.ends();
    ++tally.sittings;
    for (const std::string& form : sitting.seen()) ++tally.seen[form];
}

} // namespace

int play(const std::string& class_name, std::uint64_t seed, int deeds, const std::string& file) {
    const std::vector<std::string> dialogs = dialogs_of(class_name);
    Source source(seed, class_name);
    Journal journal(file);
    Tally tally;
    for (int looked = 0; tally.deeds < deeds;) {
        sit(source, journal, tally);
        if (tally.deeds - looked < deeds_between_looks && tally.deeds < deeds) continue;
        looked = tally.deeds;
        look_for_lost_memory();
        journal.forget();
    }
    std::printf("%d deeds in %d sittings, %d %% of them possible.\n", tally.deeds, tally.sittings,
                tally.possible * 100 / tally.deeds);
    for (const auto& [form, sittings] : tally.seen)
        if (!form.empty()) std::printf("%s: in %d sittings\n", form.c_str(), sittings);
    for (const std::string& dialog : dialogs)
        if (deeds >= deeds_that_show_all && !tally.seen.contains(dialog)) throw Finding("never seen", dialog);
    return 0;
}

int retell(const std::string& file) {
    auto sitting = std::make_unique<Sitting>();
    end_if_it_hangs();
    for (const Deed& deed : read_story(file)) {
        if (deed.verb == Verb::begins) {
            sitting->ends();
            sitting = std::make_unique<Sitting>(deed.number);
            end_if_it_hangs();
        } else {
            sitting->plays(deed);
        }
    }
    sitting->ends();
    sitting.reset();
    look_for_lost_memory();
    return 0;
}

} // namespace brx::checks
