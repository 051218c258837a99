#include "window/item_group.h"

namespace sample {

ItemGroup::ItemGroup(const Ref<IDispatch>& server) {
    const auto automation = server.as<IOPCAutoServer>();
    if (!automation) check(E_NOINTERFACE);
    check(automation->get_OPCGroups(groups_.out()));
    VARIANT no_name{};
    V_VT(&no_name) = VT_ERROR;
    V_ERROR(&no_name) = DISP_E_PARAMNOTFOUND;
    check(groups_->Add(no_name, group_.out()));
}

ItemGroup::~ItemGroup() {
    Text text;
    if (FAILED(group_->get_Name(text.out()))) return; // gone with its connection
    VARIANT name{};
    V_VT(&name) = VT_BSTR;
    V_BSTR(&name) = text.get();
    groups_->Remove(name);
}

} // namespace sample
