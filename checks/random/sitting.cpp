#include "random/sitting.h"

#include "random/changes.h"
#include "random/finding.h"
#include "random/values.h"
#include "random/worlds.h"

#include <chrono>
#include <utility>

namespace brx::checks {

namespace {

bool is_a_persons(Verb verb) { return verb >= Verb::presses; }

constexpr std::chrono::milliseconds until_the_waiting_shows{1100};

} // namespace

Sitting::Sitting(int world) : alive_before_(Recorded::alive()), host_(std::make_unique<FakeHost>()) {
    if (world > 0) fill(*host_);
    stage_ = make_stage(*host_);
    watch_ = std::make_unique<Watch>(*host_, *stage_);
    host_->calls.in_each = [this](std::size_t position) { is_called(position); };
}

/// What is still open after something was found wrong cannot be taken down.
Sitting::~Sitting() {
    if (ended_ || !stage_->busy()) return;
    static_cast<void>(watch_.release());
    static_cast<void>(stage_.release());
    static_cast<void>(host_.release());
}

bool Sitting::plays(const Deed& deed) {
    disturbance_.failures = 0;
    disturbance_.by_a_person = false;
    const bool possible = does(deed);
    look();
    return possible;
}

void Sitting::look() {
    seen_.insert(screen().front());
    watch_->look(disturbance_);
}

bool Sitting::does(const Deed& deed) {
    if (deed.in_call > 0) {
        in_calls_.push_back(deed);
        return true;
    }
    if (deed.verb == Verb::shows) return shows(deed);
    if (is_a_persons(deed.verb)) return person_does(deed);
    if (deed.verb == Verb::changes) change(*host_, deed.on, deed.number, deed.text);
    return true;
}

bool Sitting::shows(const Deed& deed) {
    const std::vector<ObjectPtr> objects = objects_for(deed);
    if (stage_->busy() || objects.empty()) return false;
    Stage* const stage = stage_.get();
    stage_->start([=] {
        const auto shown = stage->create(deed.on);
        if (!deed.text.empty()) shown->set_ItemID(deed.text);
        shown->Show(objects);
    });
    return true;
}

/// For which objects: those that it is meant for, Nothing, or something else.
std::vector<ObjectPtr> Sitting::objects_for(const Deed& deed) const {
    const FakeHost& host = *host_;
    const auto& tests = host.configuration->tests->entries;
    const auto of_kind = [&](const ObjectPtr& right) -> ObjectPtr {
        if (deed.number == 1) return nullptr;
        return deed.number == 2 ? ObjectPtr(host.database) : right;
    };
    if (deed.on == "LeafSelect") return {host.connection, of_kind(host.group)};
    if (deed.on == "ServerInformation") return {of_kind(host.connection)};
    if (deed.on == "ConfigurationSetup") return {of_kind(host.configuration)};
    if (deed.on != "TestConfiguration") return {of_kind(host.servers)};
    if (tests.empty()) return {};
    return {of_kind(tests.back())};
}

bool Sitting::person_does(const Deed& deed) {
    Screen& at = screen();
    switch (deed.verb) {
    case Verb::presses:
        return at.press(deed.on);
    case Verb::chooses:
        return at.choose(deed.on, deed.number);
    case Verb::double_clicks:
        return at.double_click(deed.on, deed.number);
    case Verb::expands:
        return at.expand(deed.on, deed.number);
    case Verb::collapses:
        return at.collapse(deed.on, deed.number);
    case Verb::toggles:
        return at.toggle(deed.on);
    case Verb::sets:
        return at.set_date(deed.on, deed.text);
    case Verb::goes_to:
        return at.focus(deed.on);
    case Verb::types:
        return at.type(deed.text);
    case Verb::pastes:
        return at.paste(deed.text);
    case Verb::copies:
        return at.copy(deed.text);
    case Verb::hits:
        if (static_cast<Key>(deed.number) == Key::escape) disturbance_.stopped = true;
        return at.key(static_cast<Key>(deed.number));
    case Verb::uses_accelerator:
        return at.accelerator(deed.text.empty() ? 'a' : deed.text.front());
    case Verb::leaves:
        return at.close_box();
    case Verb::decides:
        return at.answer(deed.number);
    case Verb::waits:
        return at.pass_ticks(deed.number), true;
    case Verb::stops:
        stage_->pass(until_the_waiting_shows);
        disturbance_.stopped = true;
        return at.stop();
    default:
        return false;
    }
}

/// Of what is due in a call a failure comes last: nothing comes after it.
void Sitting::is_called(std::size_t position) {
    Deeds due;
    std::erase_if(in_calls_, [&](Deed& deed) {
        if (--deed.in_call > 0) return false;
        due.push_back(deed);
        return true;
    });
    const Deed* failure = nullptr;
    const Deed* answer = nullptr;
    for (const Deed& deed : due) {
        if (deed.verb == Verb::fails) {
            failure = &deed;
        } else if (deed.verb == Verb::answers) {
            answer = &deed;
        } else if (deed.verb == Verb::lasts) {
            stage_->pass(std::chrono::milliseconds(deed.number));
        } else if (deed.verb == Verb::changes) {
            change(*host_, deed.on, deed.number, deed.text);
        } else if (is_a_persons(deed.verb) && deed.verb != Verb::waits) {
            disturbance_.by_a_person = true;
            person_does(deed);
        }
    }
    if (answer) {
        disturbance_.strange_answer = true;
        host_->calls.answer_instead(value_at(answer->number));
    }
    if (!failure) return;
    ++disturbance_.failures;
    host_->calls.fail(position, error_at(failure->number, static_cast<int>(position)));
}

void Sitting::close_everything() {
    for (int patience = 40; patience > 0 && stage_->busy(); --patience) {
        disturbance_.failures = 0;
        if (const auto box = screen().message()) {
            const bool has_cancel = (box->style & 0xF) == message::ok_cancel;
            screen().answer(has_cancel ? message::cancel : message::ok);
        } else {
            screen().close_box();
        }
        look();
    }
}

void Sitting::ends() {
    close_everything();
    watch_->look_at_the_end();
    ended_ = true;
    watch_.reset();
    stage_.reset();
    host_.reset();
    if (const int more = Recorded::alive() - alive_before_; more != 0)
        throw Finding("alive", std::to_string(more) + " objects of the host are still there without it.");
}

} // namespace brx::checks
