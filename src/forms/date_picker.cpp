#include "forms/date_picker.h"

#include "common/error.h"
#include "common/values/calendar.h"

#include <array>
#include <cstdio>

namespace brx {

void DatePicker::set_value(Date value) {
    const Moment moment = to_moment(value);
    if (moment.day < day_number(1601, 1, 1)) throw Error(error::invalid_procedure_call);
    const Date accurate = to_date(moment);
    if (accurate == value_) return;
    value_ = accurate;
    changed(Aspect::value);
    fire(design_.Change);
}

std::string DatePicker::text() const {
    const Moment moment = to_moment(value_);
    std::array<char, 32> text{};
    if (part() == DatePart::date) {
        const auto day = moment.calendar_day();
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(day.year()),
                      static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    } else {
        std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", moment.second / 3600,
                      moment.second / 60 % 60, moment.second % 60);
    }
    return text.data();
}

bool DatePicker::user_set(Date value) {
    return by_person([&] {
        Moment meant = to_moment(value);
        const Moment present = to_moment(value_);
        if (part() == DatePart::date)
            meant.second = present.second;
        else
            meant.day = present.day;
        set_value(to_date(meant));
    });
}

void DatePicker::reset() {
    Control::reset();
    value_ = {};
}

} // namespace brx
