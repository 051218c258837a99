#include "forms/win32/common_controls.h"

#include "forms/win32/visual_styles.h"

#include <windows.h>

#include <commctrl.h>

namespace brx {

const wchar_t* common_control(const wchar_t* window_class) {
    const VisualStyles styles;
    const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES |
                                                         ICC_DATE_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&wanted);
    return window_class;
}

} // namespace brx
