#include "forms/win32/date_picker_peer.h"

#include "common/values/calendar.h"
#include "forms/win32/common_controls.h"
#include "forms/win32/form_window.h"

#include <commctrl.h>

#include <optional>

namespace brx {

namespace {

SYSTEMTIME to_system_time(Date date) {
    const Moment moment = to_moment(date);
    const auto day = moment.calendar_day();
    const auto word = [](auto number) { return static_cast<WORD>(number); };
    SYSTEMTIME time{};
    time.wYear = word(static_cast<int>(day.year()));
    time.wMonth = word(static_cast<unsigned>(day.month()));
    time.wDay = word(static_cast<unsigned>(day.day()));
    time.wDayOfWeek = word(moment.weekday().c_encoding());
    time.wHour = word(moment.second / 3600);
    time.wMinute = word(moment.second / 60 % 60);
    time.wSecond = word(moment.second % 60);
    return time;
}

std::optional<Date> from_system_time(const SYSTEMTIME& time) {
    const std::optional<int> day = day_number(time.wYear, time.wMonth, time.wDay);
    if (!day) return std::nullopt;
    return to_date({.day = *day, .second = time.wHour * 3600 + time.wMinute * 60 + time.wSecond});
}

DWORD picker_style(const DatePicker& picker) {
    return picker.part() == DatePart::date ? DWORD{DTS_SHORTDATEFORMAT} : DTS_TIMEFORMAT | DTS_UPDOWN;
}

} // namespace

DatePickerPeer::DatePickerPeer(FormWindow& window, DatePicker& picker)
    : ControlPeer(window, picker, {common_control(DATETIMEPICK_CLASSW), WS_TABSTOP | picker_style(picker)}),
      picker_(picker) {}

void DatePickerPeer::show(Aspect aspects) {
    ControlPeer::show(aspects);
    if (!has(aspects, Aspect::value)) return;
    // Only what differs: setting it would end what a person is typing.
    SYSTEMTIME shown{};
    if (send(DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown)) == GDT_VALID &&
        from_system_time(shown) == picker_.value())
        return;
    SYSTEMTIME wanted = to_system_time(picker_.value());
    send(DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&wanted));
}

LRESULT DatePickerPeer::notified_of(NMHDR& notification) {
    if (notification.code != DTN_DATETIMECHANGE || window().is_showing()) return 0;
    const auto entered = from_system_time(reinterpret_cast<const NMDATETIMECHANGE&>(notification).st);
    if (!entered)
        refresh(Aspect::value);
    else if (window().has_to_wait()) // its calendar and its arrows are windows of their own
        window().hold([this, date = *entered] { set(date); });
    else
        set(*entered);
    return 0;
}

void DatePickerPeer::set(Date date) {
    if (!window().deliver([&] { return picker_.user_set(date); })) refresh(Aspect::value);
}

/// A picker takes over the digits of a field when a person goes on to the next one.
void DatePickerPeer::finish_typing() {
    if (!handle() || GetFocus() != handle()) return;
    send(WM_KEYDOWN, VK_RIGHT);
    if (handle()) send(WM_KEYDOWN, VK_LEFT);
}

} // namespace brx
