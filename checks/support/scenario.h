#pragma once

#include "host/fake_host.h"
#include "person.h"
#include "stage.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace brx::checks {

/// A public class of the component as the host of a scenario uses it: `show` starts `Show` and comes back
/// when the dialog waits for the person; `result` is what `Show` returned.
class Showing {
public:
    Showing(Stage& stage, const std::string& class_name);
    ~Showing();
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

    void set_ServerIndex(std::int16_t index);
    std::int16_t ServerIndex();

    void set_ItemID(const std::string& item_id);
    std::string ItemID();

    /// With the one or two objects that the class is shown with.
    void show(const ObjectPtr& object) { show_with({object}); }
    void show(const ObjectPtr& first, const ObjectPtr& second) { show_with({first, second}); }
    /// What the last `show` returned; the story ends here when a dialog is still open.
    bool result();

private:
    void show_with(const std::vector<ObjectPtr>& objects);

    /// Outlives a story that gave up in the middle of `Show`, which still uses it.
    struct Instance {
        std::unique_ptr<PublicClass> class_object;
        bool result = false;
    };

    Stage& stage_;
    std::shared_ptr<Instance> instance_ = std::make_shared<Instance>();
};

/// Everything that a scenario has at hand.
struct Play {
    Play() = default;
    Play(const Play&) = delete;
    Play& operator=(const Play&) = delete;

    FakeHost host;
    std::unique_ptr<Stage> stage = make_stage(host);
    Person person{stage->screen()};

    /// Whatever a check forgot is closed: the stage's thread cannot end under an open dialog.
    ~Play() { close_everything(); }

    /// The oldest report that nobody has looked at yet must be this one.
    void expect_report(std::int32_t number, const std::string& location,
                       ErrorLibrary library = ErrorLibrary::brxError6);

    /// Answers and closes whatever is open, as a person would who wants to go home.
    void close_everything();
    /// Nothing may be open, unread, unreported or leaked at the end.
    void expect_clean_end();
};

using Story = std::function<void(Play&)>;

/// Plays the story once and checks that it ended clean.
void play(const Story& story);

/// Plays the story once for each call that it makes to the host, with that call failing: the right procedure
/// reports it (or nobody, where errors are ignored), every dialog can still be closed, and nothing leaks.
/// Gives the places where calls failed, as "member in location".
std::set<std::string> play_with_failing_calls(const Story& story);

/// Plays the story once for each call that it makes to the host, and in that call a person has waited for a
/// second and stops the work: it ends within one call, and everything is whole. Gives how often it was
/// stopped.
int play_with_stops(const Story& story);

/// Every place where a host call can fail and whose trap must tell of it.
const std::set<std::string>& known_places_of_failure();

} // namespace brx::checks

/// A check that is told as a story, with everything at hand in `its`. Where the stage is fast enough the
/// story is also played with a host whose calls fail.
#ifdef BRX_FAILING_HOSTS
#define SCENARIO(suite, name)                                                                                \
    static void suite##_##name(brx::checks::Play& its);                                                      \
    TEST(suite, name) { brx::checks::play(suite##_##name); }                                                 \
    TEST(suite##WithAFailingHost, name) {                                                                    \
        for (const std::string& place : brx::checks::play_with_failing_calls(suite##_##name))                \
            EXPECT_TRUE(brx::checks::known_places_of_failure().contains(place)) << place;                    \
    }                                                                                                        \
    static void suite##_##name([[maybe_unused]] brx::checks::Play& its)
#else
#define SCENARIO(suite, name)                                                                                \
    static void suite##_##name(brx::checks::Play& its);                                                      \
    TEST(suite, name) { brx::checks::play(suite##_##name); }                                                 \
    static void suite##_##name([[maybe_unused]] brx::checks::Play& its)
#endif
