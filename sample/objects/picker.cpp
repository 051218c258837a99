#include "objects/picker.h"

#include "com/bstr.h"
#include "com/failure.h"
#include "forms/win32/window_name.h"
#include "objects/resource.h"
#include "win32/this_module.h"

#include <windows.h>

#include <windowsx.h>

#include <algorithm>
#include <exception>

namespace brx::host {

namespace {

struct Words {
    const wchar_t* title;
    const wchar_t* label;
};

Words words_for(RecordKind kind) {
    switch (kind) {
    case RecordKind::characteristic:
        return {L"Select Characteristic", L"&Characteristics:"};
    case RecordKind::part:
        return {L"Select Part", L"&Parts:"};
    case RecordKind::process:
        return {L"Select Process", L"&Processes:"};
    case RecordKind::job:
        return {L"Select Job", L"&Jobs:"};
    case RecordKind::shift:
        return {L"Select Shift", L"&Shifts:"};
    case RecordKind::descriptor:
        break;
    }
    return {L"Select Descriptor", L"&Descriptors:"};
}

BOOL CALLBACK note_first(HWND window, LPARAM place) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    *reinterpret_cast<HWND*>(place) = window;
    return FALSE;
}

/// The window that the person has in front of him; of a program that is not in front itself, its uppermost
/// that takes input.
HWND window_in_front() {
    if (const HWND active = GetActiveWindow()) return active;
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), note_first, reinterpret_cast<LPARAM>(&found));
    return found;
}

/// Over the middle of its owner, as far as the screen goes.
void centre_over_owner(HWND dialog) {
    RECT own{};
    RECT owner{};
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    const HWND over = GetWindow(dialog, GW_OWNER);
    GetMonitorInfoW(MonitorFromWindow(over ? over : dialog, MONITOR_DEFAULTTONEAREST), &monitor);
    GetWindowRect(dialog, &own);
    if (!over || !GetWindowRect(over, &owner)) owner = monitor.rcWork;
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const RECT& work = monitor.rcWork;
    const LONG left = std::min((owner.left + owner.right - width) / 2, work.right - width);
    const LONG top = std::min((owner.top + owner.bottom - height) / 2, work.bottom - height);
    SetWindowPos(dialog, nullptr, std::max(left, work.left), std::max(top, work.top), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

class Picker {
public:
    Picker(RecordKind kind, RecordStore store, std::int32_t id, std::int32_t group_id)
        : kind_(kind), store_(store), id_(id), group_id_(group_id) {}

    std::optional<StoredRecord> show() {
        const INT_PTR ended = DialogBoxParamW(this_module(), MAKEINTRESOURCEW(ID_PICKER), window_in_front(),
                                              procedure, reinterpret_cast<LPARAM>(this));
        if (failure_) std::rethrow_exception(failure_);
        if (ended < 0) check(HRESULT_FROM_WIN32(GetLastError()));
        return ended == IDOK ? picked_ : std::nullopt;
    }

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message == WM_INITDIALOG) SetWindowLongPtrW(dialog, DWLP_USER, lparam);
        auto* const self = reinterpret_cast<Picker*>(GetWindowLongPtrW(dialog, DWLP_USER));
        if (!self) return FALSE;
        try {
            self->dialog_ = dialog;
            return self->handle(message, wparam);
        } catch (...) {
            self->failure_ = std::current_exception();
            EndDialog(dialog, IDCANCEL);
            return TRUE;
        }
    }

    INT_PTR handle(UINT message, WPARAM wparam) {
        switch (message) {
        case WM_INITDIALOG:
            begin();
            return FALSE; // begin has set the focus
        case WM_COMMAND:
            return command(LOWORD(wparam), HIWORD(wparam));
        case WM_DESTROY:
            for_each_named([](HWND window, const char*) { remove_window_name(window); });
            return FALSE;
        default:
            return FALSE;
        }
    }

    INT_PTR command(int control, int notification) {
        if (control == IDCANCEL) return EndDialog(dialog_, IDCANCEL);
        if (control == IDOK || (control == ID_RECORDS && notification == LBN_DBLCLK)) take();
        if (control == ID_GROUPS && notification == LBN_SELCHANGE) show_records(0);
        if (control == ID_RECORDS && notification == LBN_SELCHANGE) allow_taking();
        return TRUE;
    }

    /// The current choice, or else the first group.
    void begin() {
        for_each_named([](HWND window, const char* name) { set_window_name(window, name); });
        const Words words = words_for(kind_);
        SetWindowTextW(dialog_, words.title);
        SetDlgItemTextW(dialog_, ID_RECORDS_LABEL, words.label);
        groups_ = store_.groups();
        fill(ID_GROUPS, groups_);
        const auto current = store_.record(id_);
        select(ID_GROUPS, groups_, current ? current->group_id : group_id_);
        if (chosen(ID_GROUPS, groups_) == nullptr) ListBox_SetCurSel(child(ID_GROUPS), 0);
        show_records(current ? current->id : 0);
        SetFocus(child(current || group_id_ != 0 ? ID_RECORDS : ID_GROUPS));
        centre_over_owner(dialog_);
    }

    void show_records(std::int32_t selected_id) {
        const StoredRecord* const group = chosen(ID_GROUPS, groups_);
        records_ = group ? store_.records_of(group->id) : std::vector<StoredRecord>();
        fill(ID_RECORDS, records_);
        select(ID_RECORDS, records_, selected_id);
        allow_taking();
    }

    void allow_taking() const { EnableWindow(child(IDOK), chosen(ID_RECORDS, records_) != nullptr); }

    void take() {
        const StoredRecord* const record = chosen(ID_RECORDS, records_);
        if (!record) return;
        picked_ = *record;
        EndDialog(dialog_, IDOK);
    }

    void fill(int list, const std::vector<StoredRecord>& lines) const {
        SendMessageW(child(list), WM_SETREDRAW, FALSE, 0);
        ListBox_ResetContent(child(list));
        for (const StoredRecord& each : lines) ListBox_AddString(child(list), wide(each.name).c_str());
        SendMessageW(child(list), WM_SETREDRAW, TRUE, 0);
        InvalidateRect(child(list), nullptr, TRUE);
    }

    void select(int list, const std::vector<StoredRecord>& lines, std::int32_t id) const {
        const auto found = std::ranges::find(lines, id, &StoredRecord::id);
        if (found != lines.end()) ListBox_SetCurSel(child(list), static_cast<int>(found - lines.begin()));
    }

    const StoredRecord* chosen(int list, const std::vector<StoredRecord>& lines) const {
        const int line = ListBox_GetCurSel(child(list));
        return line >= 0 && static_cast<std::size_t>(line) < lines.size()
                   ? &lines[static_cast<std::size_t>(line)]
                   : nullptr;
    }

    template <class Step> void for_each_named(Step&& step) const {
        step(dialog_, "frmPicker");
        step(child(ID_GROUPS_LABEL), "lblGroups");
        step(child(ID_GROUPS), "lstGroups");
        step(child(ID_RECORDS_LABEL), "lblRecords");
        step(child(ID_RECORDS), "lstRecords");
        step(child(IDOK), "bnOK");
        step(child(IDCANCEL), "bnCancel");
    }

    HWND child(int id) const { return GetDlgItem(dialog_, id); }

    RecordKind kind_;
    RecordStore store_;
    std::int32_t id_;
    std::int32_t group_id_;
    HWND dialog_ = nullptr;
    std::vector<StoredRecord> groups_;
    std::vector<StoredRecord> records_;
    std::optional<StoredRecord> picked_;
    std::exception_ptr failure_;
};

} // namespace

std::optional<StoredRecord> pick_record(RecordKind kind, RecordStore store, std::int32_t id,
                                        std::int32_t group_id) {
    return Picker(kind, store, id, group_id).show();
}

} // namespace brx::host
