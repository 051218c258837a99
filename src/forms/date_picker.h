#pragma once

#include "common/values/variant.h"
#include "forms/form.h"

#include <string>

namespace brx {

/// Which part of its date-time a picker shows and lets a person change.
enum class DatePart { date, time };

struct DatePickerDesign {
    Place place;
    DatePart part = DatePart::date;
    int tab = 0;
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    Handler Change = {}; ///< the date-time became different, by a person or by code
};

/// A date, or a time of day, in the user's own format. It is accurate to the second.
class DatePicker : public Control {
public:
    DatePicker(Container& container, const char* name, const DatePickerDesign& design)
        : Control(container, name, window_look_of(design)), design_(design) {}

    const char* kind() const override { return "date_picker"; }
    bool focusable() const override { return true; }
    DatePart part() const { return design_.part; }

    Date value() const { return value_; }
    /// From 1 January 1601 to the end of 9999; error 5 otherwise.
    void set_value(Date value);

    /// What it shows, written as 2026-11-21 or as 13:04:05.
    std::string text() const;

    /// A person set the date or, in a picker of times, the time of day. The other part of the value stays.
    bool user_set(Date value);

    void reset() override;

protected:
    void read_content(Aspect aspects, Reading& into, int) const override {
        if (has(aspects, Aspect::value)) into.text = text();
    }

private:
    DatePickerDesign design_;
    Date value_;
};

} // namespace brx
