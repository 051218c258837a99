// What a form says of its controls, against what its windows show.

#include "windows/described.h"
#include "windows/screen_test.h"

namespace brx::checks {

TEST_F(WindowsScreenTest, ADescriptionIsReadWithItsEscapesUndone) {
    ui.call([&] {
        dialog.description = L"dlgPlain\tform\t1\t1\t-1\t0\ttab\\t return\\r line\\n slash\\\\0 NUL\\0 end\n";
        using namespace std::string_literals;
        EXPECT_EQ(described(window("dlgPlain"), 0).front().held.text,
                  "tab\t return\r line\n slash\\0 NUL\0 end"s);
    });
}

TEST_F(WindowsScreenTest, DifferencesBetweenWindowsAndControlsAreTold) {
    const auto differences = [&](const wchar_t* description) {
        std::string found;
        ui.call([&] {
            dialog.description = description;
            found = differences_in(window("dlgPlain"));
        });
        return found;
    };
    EXPECT_EQ(differences(L"dlgPlain\tform\t1\t1\t-1\t0\tPlain\n"
                          L"lblBox\tlabel\t1\t1\t-1\t0\t&Text:\n"
                          L"chkBox\tcheck_box\t1\t1\t0\t0\tTic&k\n"
                          L"lstBox\tlist_box\t1\t1\t-1\t50\t\n"
                          L"treBox\ttree_view\t1\t1\t-1\t30\t\n"
                          L"treBox\trow\t1\t1\t-1\t0\t Node 0\n"
                          L"treBox\trow\t1\t1\t-1\t0\t+Node 1\n"
                          L"lvwBox\tlist_view\t1\t1\t-1\t30\t\n"
                          L"lvwBox\tcolumn\t1\t1\t-1\t0\tName\n"
                          L"lvwBox\tcolumn\t1\t1\t-1\t0\tValue\n"
                          L"lvwBox\trow\t1\t1\t-1\t0\tRow 0\n"
                          L"lvwBox\tcell\t1\t1\t-1\t0\tValue 0\n"
                          L"lvwBox\trow\t1\t1\t-1\t0\tRow 1\n"
                          L"lvwBox\tcell\t1\t1\t-1\t0\tValue 1\n"
                          L"lvwBox\trow\t1\t1\t-1\t1\tRow 2\n"
                          L"lvwBox\tcell\t1\t1\t255\t0\tValue 2\n"
                          L"tabBox\ttab_strip\t1\t1\t0\t3\t&One\n"
                          L"tabBox\trow\t1\t1\t-1\t0\t&One\n"
                          L"dtpDay\tdate_picker\t1\t1\t-1\t0\t2026-11-21\n"
                          L"bnOff\tbutton\t0\t1\t-1\t0\tOff\n"
                          L"bnHidden\tbutton\t1\t0\t-1\t0\tHidden\n"
                          L"Timer1\ttimer\t1\t0\t-1\t0\t\n"),
              "");
    EXPECT_EQ(differences(L"dlgPlain\tform\t1\t1\t-1\t0\tPl\\tain\n"
                          L"chkBox\tcheck_box\t1\t0\t1\t0\tTic&k\n"
                          L"lstBox\tlist_box\t1\t1\t3\t49\tLine 3\n"
                          L"treBox\ttree_view\t1\t1\t2\t31\tNode 2\n"
                          L"treBox\trow\t1\t1\t-1\t0\t Node 0\n"
                          L"treBox\trow\t1\t1\t-1\t0\t-Node 1\n"
                          L"lvwBox\tlist_view\t1\t1\t1\t31\tRow 1\n"
                          L"lvwBox\tcolumn\t1\t1\t-1\t0\tItem\n"
                          L"lvwBox\trow\t1\t1\t-1\t0\tRow 0\n"
                          L"lvwBox\tcell\t1\t1\t255\t0\tValue 0\n"
                          L"tabBox\ttab_strip\t1\t1\t1\t3\t&Two\n"
                          L"tabBox\trow\t1\t1\t-1\t0\tOne\n"
                          L"dtpDay\tdate_picker\t1\t1\t-1\t0\t2026-11-22\n"
                          L"lblBox\tpanel\t1\t1\t1\t0\t&Text:\n"
                          L"bnOff\tbutton\t1\t1\t-1\t0\tOff\n"
                          L"bnNone\tbutton\t1\t1\t-1\t0\tNone\n"),
              "dlgPlain: the caption is \"Plain\", but should be \"Pl\tain\"\n"
              "dlgPlain.chkBox: visible is true, but should be false\n"
              "dlgPlain.chkBox: the selected line or value is 0, but should be 1\n"
              "dlgPlain.lstBox: the text is \"\", but should be \"Line 3\"\n"
              "dlgPlain.lstBox: the number of lines is 50, but should be 49\n"
              "dlgPlain.lstBox: the selected line or value is -1, but should be 3\n"
              "dlgPlain.treBox: the text is \"\", but should be \"Node 2\"\n"
              "dlgPlain.treBox: a row is \"+Node 1\", but should be \"-Node 1\"\n"
              "dlgPlain.treBox: the number of lines is 30, but should be 31\n"
              "dlgPlain.treBox: the selected line or value is -1, but should be 2\n"
              "dlgPlain.lvwBox: the text is \"\", but should be \"Row 1\"\n"
              "dlgPlain.lvwBox: the number of columns is 2, but should be 1\n"
              "dlgPlain.lvwBox: a column is \"Name\", but should be \"Item\"\n"
              "dlgPlain.lvwBox: a row is \"Row 0 | Value 0\", but should be \"Row 0 | red:Value 0\"\n"
              "dlgPlain.lvwBox: the number of lines is 30, but should be 31\n"
              "dlgPlain.lvwBox: the selected line or value is -1, but should be 1\n"
              "dlgPlain.tabBox: the text is \"&One\", but should be \"&Two\"\n"
              "dlgPlain.tabBox: a row is \"&One\", but should be \"One\"\n"
              "dlgPlain.tabBox: the selected line or value is 0, but should be 1\n"
              "dlgPlain.dtpDay: the text is \"2026-11-21\", but should be \"2026-11-22\"\n"
              "dlgPlain.lblBox: in front is false, but should be true\n"
              "dlgPlain.bnOff: enabled is false, but should be true\n"
              "dlgPlain.bnNone: it has no window\n");
    EnableWindow(ui.window(), TRUE);
    EXPECT_EQ(differences(L"dlgPlain\tform\t1\t1\t-1\t0\tPlain\n"),
              "dlgPlain: \"Host\" takes input at the same time\n");
}

} // namespace brx::checks
