#include "desk/native_table.h"

#include "com/bstr.h"
#include "desk/native.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cwchar>
#include <utility>

namespace brx::checks {

namespace {

HWND header_of(HWND list) { return reinterpret_cast<HWND>(ask(list, LVM_GETHEADER)); }

int column_count(HWND list) {
    return static_cast<int>(std::max<LRESULT>(0, ask(header_of(list), HDM_GETITEMCOUNT)));
}

HFONT font_of(HWND window) { return reinterpret_cast<HFONT>(ask(window, WM_GETFONT)); }

/// With the marks that tell how the cell is drawn.
std::string marked(HWND list, int row, int column, const std::string& text, HDC dc) {
    SelectObject(dc, font_of(list));
    NMLVCUSTOMDRAW drawing{};
    drawing.nmcd.hdr = {list, static_cast<UINT_PTR>(GetDlgCtrlID(list)), NM_CUSTOMDRAW};
    drawing.nmcd.dwDrawStage = CDDS_ITEMPREPAINT | CDDS_SUBITEM;
    drawing.nmcd.hdc = dc;
    drawing.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
    drawing.clrText = GetSysColor(COLOR_WINDOWTEXT);
    drawing.iSubItem = column;
    ask(GetParent(list), WM_NOTIFY, drawing.nmcd.hdr.idFrom, reinterpret_cast<LPARAM>(&drawing));
    LOGFONTW font{};
    GetObjectW(GetCurrentObject(dc, OBJ_FONT), sizeof font, &font);
    const bool bold = font.lfWeight >= FW_BOLD;
    const bool red = drawing.clrText == RGB(255, 0, 0);
    return (bold ? "*" : "") + std::string(red ? "red:" : "") + text + (bold ? "*" : "");
}

/// The user's short date or time format; "M/d/yyyy" for example.
std::wstring format_of(HWND picker) {
    const bool times = (GetWindowLongW(picker, GWL_STYLE) & DTS_UPDOWN) != 0;
    std::array<wchar_t, 80> format{};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, times ? LOCALE_STIMEFORMAT : LOCALE_SSHORTDATE, format.data(),
                   static_cast<int>(format.size()));
    return format.data();
}

std::string padded(const char* format, int number) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), format, number);
    return text.data();
}

} // namespace

int row_count(HWND list) { return static_cast<int>(ask(list, LVM_GETITEMCOUNT)); }

int selected_row_of(HWND list) {
    return static_cast<int>(ask(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

std::vector<std::string> column_captions(HWND list) {
    std::vector<std::string> captions;
    for (int i = 0; i < column_count(list); ++i) {
        std::wstring text(longest_text, L'\0');
        HDITEMW item{};
        item.mask = HDI_TEXT;
        item.pszText = text.data();
        item.cchTextMax = longest_text;
        ask(header_of(list), HDM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        captions.push_back(brx::text_of(text.data(), std::wcslen(text.c_str())));
    }
    return captions;
}

std::string cell_text(HWND list, int row, int column) {
    std::wstring text(longest_text, L'\0');
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = longest_text;
    ask(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return brx::text_of(text.data(), std::wcslen(text.c_str()));
}

std::vector<std::string> table_rows(HWND list, int most) {
    std::vector<std::string> rows;
    const int columns = std::max(1, column_count(list));
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = GetCurrentObject(dc, OBJ_FONT);
    for (int row = 0; row < std::min(most, row_count(list)); ++row) {
        std::string text;
        for (int column = 0; column < columns; ++column)
            text += (column > 0 ? " | " : "") + marked(list, row, column, cell_text(list, row, column), dc);
        rows.push_back(std::move(text));
    }
    SelectObject(dc, before);
    DeleteDC(dc);
    return rows;
}

bool point_on_row(HWND list, int row, POINT& point) {
    if (row < 0 || row >= row_count(list)) return false;
    ask(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    RECT place{};
    place.left = LVIR_LABEL;
    if (!ask(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place))) return false;
    RECT client{};
    GetClientRect(list, &client);
    point = {std::max<LONG>(place.left, 0) + 4, (place.top + place.bottom) / 2};
    return PtInRect(&client, point) != FALSE;
}

std::vector<std::string> tab_captions(HWND tabs) {
    std::vector<std::string> captions;
    const auto count = static_cast<WPARAM>(ask(tabs, TCM_GETITEMCOUNT));
    for (WPARAM i = 0; i < count; ++i) {
        std::wstring text(longest_text, L'\0');
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        item.cchTextMax = longest_text;
        ask(tabs, TCM_GETITEMW, i, reinterpret_cast<LPARAM>(&item));
        captions.push_back(brx::text_of(text.data(), std::wcslen(text.c_str())));
    }
    return captions;
}

bool point_on_tab(HWND tabs, int tab, POINT& point) {
    RECT place{};
    if (tab < 0 || !ask(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&place)))
        return false;
    RECT client{};
    GetClientRect(tabs, &client);
    point = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    return PtInRect(&client, point) != FALSE;
}

std::string date_text(HWND picker) {
    SYSTEMTIME held{};
    ask(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&held));
    if ((GetWindowLongW(picker, GWL_STYLE) & DTS_UPDOWN) != 0)
        return padded("%02d:", held.wHour) + padded("%02d:", held.wMinute) + padded("%02d", held.wSecond);
    return padded("%04d-", held.wYear) + padded("%02d-", held.wMonth) + padded("%02d", held.wDay);
}

std::vector<std::string> date_fields(HWND picker, const std::string& text) {
    int a = 0;
    int b = 0;
    int c = 0;
    if (std::sscanf(text.c_str(), "%d%*c%d%*c%d", &a, &b, &c) != 3) return {};
    std::vector<std::string> fields;
    wchar_t before = 0;
    for (const wchar_t letter : format_of(picker)) {
        if (std::exchange(before, letter) == letter) continue;
        switch (letter) {
        case L'y':
            fields.push_back(padded("%04d", a));
            break;
        case L'M':
            fields.push_back(padded("%02d", b));
            break;
        case L'd':
            fields.push_back(padded("%02d", c));
            break;
        case L'H':
            fields.push_back(padded("%02d", a));
            break;
        case L'h':
            fields.push_back(padded("%02d", a % 12 == 0 ? 12 : a % 12));
            break;
        case L'm':
            fields.push_back(padded("%02d", b));
            break;
        case L's':
            fields.push_back(padded("%02d", c));
            break;
        case L't':
            fields.emplace_back(a < 12 ? "a" : "p");
            break;
        default:
            break;
        }
    }
    return fields;
}

} // namespace brx::checks
