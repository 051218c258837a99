// A host with a whole model of its own: lets a person set up a configuration, and tells what was set. Ends
// with 0.

#include "model.h"

#include <brxOpcDlgs6.h>

#include <cstdio>

namespace {

DWORD cookies[32];
int offered = 0;

template <class Class> void offer(REFCLSID clsid) { brxModel::offer<Class>(clsid, &cookies[offered++]); }
template <const Table& table> void offer_kind(REFCLSID record, REFCLSID group, REFCLSID selection) {
    offer<RecordOf<table>>(record);
    offer<GroupOf<table>>(group);
    offer<SelectionOf<table>>(selection);
}

/// What the dialogs make by themselves, from this program and for it alone: nothing is registered.
void offer_all() {
    offer<ServerEntry>(CLSID_hlxOPCServer);
    offer<GroupOf<characteristics>>(CLSID_hlxTestGroup);
    offer<SelectionOf<characteristics>>(CLSID_hlxTestSelection);
    offer_kind<parts>(CLSID_hlxPart, CLSID_hlxPartGroup, CLSID_hlxPartSelection);
    offer_kind<processes>(CLSID_hlxProcess, CLSID_hlxProcessGroup, CLSID_hlxProcessSelection);
    offer_kind<jobs>(CLSID_hlxJob, CLSID_hlxJobGroup, CLSID_hlxJobSelection);
    offer_kind<shifts>(CLSID_hlxShift, CLSID_hlxShiftGroup, CLSID_hlxShiftSelection);
    offer_kind<descriptors_table>(CLSID_hlxDescriptor, CLSID_hlxDescriptorGroup,
                                  CLSID_hlxDescriptorSelection);
}

bool set_up(Configuration& configuration) {
    _ConfigurationSetup* dialog = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ConfigurationSetup, nullptr, CLSCTX_INPROC_SERVER,
                                IID__ConfigurationSetup, reinterpret_cast<void**>(&dialog))))
        return false;
    dialog->Show(&configuration);
    dialog->Release();
    return true;
}

} // namespace

int main() {
    OleInitialize(nullptr);
    offer_all();
    bool shown = false;
    {
        auto servers = make<Servers>();
        auto configuration = make<Configuration>(servers->add(L"Plant.Server.1", L""));
        shown = set_up(*configuration.get());
        std::printf("%ls\n", configuration->name().c_str());
        for (const auto& test : configuration->tests().all())
            std::printf("test %ls: %ls\n", test->data().name().c_str(), test->item().c_str());
        for (const auto& descriptor : configuration->descriptors().all())
            std::printf("descriptor %ls\n", descriptor->item().c_str());
    }
    while (offered > 0) CoRevokeClassObject(cookies[--offered]);
    OleUninitialize();
    return shown ? 0 : 1;
}
