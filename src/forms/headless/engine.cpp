#include "forms/headless/engine.h"

#include "forms/form.h"

#include <filesystem>
#include <utility>

namespace brx {

void HeadlessEngine::show_modal(Form& form) {
    miss_held();
    HeadlessWindow window(form);
    ++opened_;
    windows_.push_back(&window);
    baton_.serve([&] {
        while (form.loaded()) {
            const HeldDeeds::Deed deed = window.held().next();
            if (!deed) return false;
            deed();
        }
        return true;
    });
    windows_.pop_back();
}

void HeadlessEngine::miss_held() {
    if (!windows_.empty()) windows_.back()->held().miss();
}

bool HeadlessWork::keeps_a_person_waiting() { return engine_.front() && !engine_.front()->held().empty(); }

bool HeadlessEngine::person_does(std::function<bool()> deed, bool leaves) {
    if (!front() || !turn::is_code_running()) return deed();
    if (leaves) work_.leave();
    front()->held().hold([deed = std::move(deed)] { deed(); });
    return true;
}

/// The peers are up to date already, and there is nothing to draw.
void HeadlessEngine::repaint(Form&) {}

void HeadlessEngine::hourglass(Form&, bool on) { hourglasses_ += on ? 1 : -1; }

std::int32_t HeadlessEngine::message_box(const Message& message) {
    const auto outer_message = std::exchange(message_, message);
    answer_ = 0;
    ++opened_;
    baton_.serve([&] { return answer_ != 0; });
    message_ = outer_message;
    return std::exchange(answer_, 0);
}

HelpOutcome HeadlessEngine::show_help(const std::string& help_file, std::int32_t topic) {
    if (!std::filesystem::exists(help_file)) return HelpOutcome::missing;
    help_shown_ = help_file + " at " + std::to_string(topic);
    return HelpOutcome::opened;
}

HeadlessWindow* HeadlessEngine::front() const {
    return message_ || windows_.empty() ? nullptr : windows_.back();
}

} // namespace brx
