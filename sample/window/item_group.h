#pragma once

#include "window/com.h"

#include <OPCAutomation.h>

namespace sample {

/// A group of an OPC server for as long as a dialog needs one.
class ItemGroup {
public:
    /// Throws a Failure when the server gives none.
    explicit ItemGroup(const Ref<IDispatch>& server);
    ItemGroup(const ItemGroup&) = delete;
    ItemGroup& operator=(const ItemGroup&) = delete;
    ~ItemGroup();

    IDispatch* get() const { return group_.get(); }

private:
    Ref<IOPCGroups> groups_;
    Ref<IOPCGroup> group_;
};

} // namespace sample
