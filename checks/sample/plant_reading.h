#pragma once

#include "common/model/opc_automation.h"

#include <string>
#include <vector>

namespace brx::plant {

// What a browser lists, read as a dialog reads it.

inline std::vector<std::string> listed(const OPCBrowserPtr& browser) {
    std::vector<std::string> names;
    const std::int32_t count = browser->Count();
    for (std::int32_t i = 1; i <= count; ++i) names.push_back(browser->Item(i));
    return names;
}
inline std::vector<std::string> branches(const OPCBrowserPtr& browser) {
    browser->ShowBranches();
    return listed(browser);
}
inline std::vector<std::string> leaves(const OPCBrowserPtr& browser, bool flat = false) {
    browser->ShowLeafs(flat);
    return listed(browser);
}

} // namespace brx::plant
