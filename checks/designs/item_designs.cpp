#include "browse/dlgItemSelect.h"
#include "designs/one_design.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

TEST(Designs, OfItemBrowserKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgItemSelect>(), R"(dlgItemSelect 'Select Item' 560x443 resizable
Label1: label 11,15 92x15 tab 1 'Server Name:'
txtServer: text box 107,11 442x23 tab 2 wide display only
Label2: label 11,45 265x15 tab 3 '&A. Groups:'
TrView: tree view 11,63 265x265 tab 4 high half-wide
picTrView: panel 11,63 265x265 tab 0 high half-wide edge
Label3: label 283,45 266x15 tab 5 middle '&B. Items:'
lstItem: list box 283,63 266x265 tab 6 high middle half-wide
lblNotice: label 11,332 538x15 tab 0 bottom wide '' as data
Label4: label 11,357 538x15 tab 7 bottom wide '&C. Item (Examples: somegroup.someitem or [mytopic]myitem)'
txtFullPath: text box 11,375 538x23 tab 8 bottom wide
cmdRefresh: button 11,409 75x23 tab 9 bottom '&Refresh'
lblFind: label 97,413 34x15 tab 10 bottom hidden '&Find:'
txtFind: text box 135,409 150x23 tab 11 bottom hidden
lblFound: label 292,413 96x15 tab 0 bottom hidden '' as data
bnOK: button 392,409 75x23 tab 12 right bottom 'OK' default
bnCancel: button 474,409 75x23 tab 13 right bottom '&Cancel' cancel
)");
}
