#include "forms/services.h"

#include "common/trace.h"

namespace brx {

std::int32_t Services::show_message(const Message& message) {
    trace::line([&] { return "message box: " + message.shown_title() + ": " + message.text; });
    const std::int32_t answer = answer_to(message);
    trace::line([&] { return "message box answered: " + std::to_string(answer); });
    return answer;
}

std::int32_t Services::answer_to(const Message& message) {
    if (!looked_for_message_) {
        looked_for_message_ = true;
        // A host without the service leaves message boxes to the system.
        attempt([&] { message_ = create<hlxMessage>(objects_, class_name::hlxMessage); });
    }
    if (message_) return message_->Show(message.text, message.style, message.title, Missing{});
    return engine_.message_box(message);
}

void Services::tell(const Message& message) {
    if (!attempt([&] { show_message(message); })) engine_.message_box(message);
}

std::string Services::help_file() {
    if (!help_) help_ = create<hlxHelp>(objects_, class_name::hlxHelp);
    return help_->HelpFile();
}

} // namespace brx
