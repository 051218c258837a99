#pragma once

#include "forms/form.h"

namespace brx {

/// The hourglass for a form, from its creation to the end of the procedure that created it.
class BusyCursor {
public:
    explicit BusyCursor(Form& form) : form_(form) { form_.environment().engine.hourglass(form_, true); }
    ~BusyCursor() { form_.environment().engine.hourglass(form_, false); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;

private:
    Form& form_;
};

} // namespace brx
