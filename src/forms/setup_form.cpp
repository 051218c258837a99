#include "forms/setup_form.h"

namespace brx {

void SetupForm(Form& form, std::int16_t help_topic) {
    attempt([&] { form.environment().help_file = form.environment().services.help_file(); });
    attempt([&] { form.set_help_topic(help_topic); });
}

} // namespace brx
