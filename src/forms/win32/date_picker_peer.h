#pragma once

#include "forms/date_picker.h"
#include "forms/win32/control_peer.h"

namespace brx {

/// A date with a calendar that drops down, or a time of day, in the user's own format. The system's picker
/// begins on 14 September 1752: the control holds an earlier date, but its window goes on showing the one
/// before.
class DatePickerPeer : public ControlPeer {
public:
    DatePickerPeer(FormWindow& window, DatePicker& picker);
    LRESULT notified_of(NMHDR& notification) override;
    void finish_typing() override;

protected:
    void show(Aspect aspects) override;

private:
    void set(Date date);

    DatePicker& picker_;
};

} // namespace brx
