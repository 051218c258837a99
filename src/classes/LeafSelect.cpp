#include "classes/LeafSelect.h"

#include "browse/dlgItemSelect.h"

namespace brx {

bool LeafSelect::Show(const ObjectPtr& OPCServer, const ObjectPtr& OPCGroup) {
    bool chosen = false;
    run_show([&] {
        dlgItemSelect form(environment_);
        form.set_OPCServer(tools_.ResolveOPCServer(OPCServer));
        form.set_OPCGroup(tools_.ResolveOPCGroup(OPCGroup));
        if (!form.OPCServer() || !form.OPCGroup()) return;
        form.set_Leaf(ItemID());
        form.show_modal();
        if (!form.OkClicked()) return;
        set_ItemID(form.Leaf());
        chosen = true;
    });
    return chosen;
}

} // namespace brx
