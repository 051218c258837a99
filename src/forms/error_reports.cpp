#include "forms/error_reports.h"

#include "common/trace.h"
#include "forms/form.h"
#include "forms/showing.h"
#include "forms/turn.h"

#include <algorithm>

namespace brx {

Message error_message(const ErrorReport& report) {
    std::string text = "Error " + std::to_string(report.number);
    if (!report.description.empty()) text += ": " + report.description;
    text += "\r\n\r\n" + report.location;
    std::replace(text.begin(), text.end(), '\0', ' '); // a message box would end there
    return {.text = std::move(text), .style = message::critical, .title = component_name};
}

void ErrorReports::Show(ErrorLibrary library, const ErrorReport& report) noexcept {
    trace::line([&] {
        return std::string("report to ") + error_class_name(library) + ": " + told_in_a_line(report);
    });
    const Work::Pause pause; // the host's way to tell may wait for the person
    attempt([&] { libraries_.Show(library, report, [&] { attempt([&] { tell(report); }); }); });
}

void ErrorReports::tell(const ErrorReport& report) {
    ShowingScope::tell_once(report, [&] {
        if (Form* form = turn::top_form()) form->settle();
        const ModalTurn waiting(nullptr);
        services_.tell(error_message(report));
    });
}

} // namespace brx
