#include "desk/spoken.h"

#include "com/bstr.h"
#include "desk/native.h"
#include <algorithm>

namespace brx::checks {

namespace {

VARIANT self() {
    VARIANT id{};
    id.vt = VT_I4;
    id.lVal = CHILDID_SELF;
    return id;
}

/// What a member that gives a text gives, "" when it fails.
template <class Member> std::string text_by(IAccessible& object, Member member) {
    BSTR given = nullptr;
    if (FAILED((object.*member)(self(), &given)) || !given) return {};
    std::string text = brx::text_of(given, SysStringLen(given));
    SysFreeString(given);
    return text;
}
template <class Member> long number_by(IAccessible& object, Member member) {
    VARIANT given{};
    return SUCCEEDED((object.*member)(self(), &given)) && given.vt == VT_I4 ? given.lVal : 0;
}

std::string label_before(HWND control) {
    const HWND label = GetWindow(control, GW_HWNDPREV);
    if (!label || kind_of(label) != NativeKind::label) return {};
    std::string text = text_of(label);
    text.erase(std::remove(text.begin(), text.end(), '&'), text.end());
    return text;
}

} // namespace

com_ptr<IAccessible> accessible_of(HWND control) {
    void* found = nullptr;
    if (FAILED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                          &found)))
        return nullptr;
    return com_ptr<IAccessible>::adopt(static_cast<IAccessible*>(found));
}

Spoken spoken_of(HWND control) {
    const com_ptr<IAccessible> object = accessible_of(control);
    if (!object) return {};

    return {.name = text_by(*object.get(), &IAccessible::get_accName),
            .role = number_by(*object.get(), &IAccessible::get_accRole),
            .state = number_by(*object.get(), &IAccessible::get_accState),
            .action = text_by(*object.get(), &IAccessible::get_accDefaultAction)};
}

std::string spoken_name_of(HWND control) {
    switch (kind_of(control)) {
    case NativeKind::combo_box:
    case NativeKind::date_picker:
        return label_before(control);
    default:
        return spoken_of(control).name;
    }
}

} // namespace brx::checks
