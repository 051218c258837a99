#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace brx::checks {

/// A dialog made of the system's controls alone, with names as the component's windows have them, that notes
/// what happens to it:
///
///   lblBox "&Text:", txtBox, chkBox "Tic&k", lstBox and cboBox with the lines "Line 0" to "Line 49",
///   treBox with "Node 0" to "Node 29", of which Node 1 and Node 28 have "Inner 0" and "Inner 1" in them,
///   lvwBox with the columns "Name" and "Value" and "Row 0" to "Row 29", where Row 2 is bold and its value
///   red, tabBox with "&One", "&Two" and "T&hree", dtpDay with 2026-11-21 and dtpTime, dtpOff (disabled),
///   bnMessage
///   "&Message...", bnChain (posts itself messages, one after the other), bnOff (disabled), bnHidden
///   (hidden), bnUnder (something lies over it), bnOK (default), bnCancel; a timer of one second
class PlainDialog {
public:
    explicit PlainDialog(HWND owner) : owner_(owner) {}
    ~PlainDialog() { DeleteObject(bold_); }
    PlainDialog(const PlainDialog&) = delete;
    PlainDialog& operator=(const PlainDialog&) = delete;

    /// Shows it over the owner and comes back when it has closed.
    void run();

    /// How it answers "brx.Describe".
    std::wstring description;

    /// What happened, in order, since the last time.
    std::vector<std::string> take_events();

private:
    static INT_PTR CALLBACK procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    static LRESULT CALLBACK box_procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                          DWORD_PTR self) noexcept;
    INT_PTR describe(HWND asking) const;
    void make_controls();
    HWND add(const wchar_t* window_class, const wchar_t* text, DWORD style, RECT place, WORD id,
             const wchar_t* name);
    void happened(WORD id, WORD code);
    void happened_in_tree(const NMTREEVIEWW& notification);
    void fill_tree(HWND tree);
    static void fill_table(HWND table);
    static void fill_tabs(HWND tabs);
    INT_PTR happened_in_table(NMHDR& notification);
    void happened_elsewhere(const NMHDR& notification);
    void note(std::string event) { events_.push_back(std::move(event)); }

    HWND owner_;
    HFONT bold_ = CreateFontW(-11, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    HWND handle_ = nullptr;
    std::vector<std::string> events_;
};

} // namespace brx::checks
