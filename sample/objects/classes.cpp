#include "objects/classes.h"

#include "adapters/to_com.h"
#include "host/server_entry.h"
#include "objects/error_object.h"
#include "objects/help_object.h"
#include "objects/host_object.h"
#include "objects/record_objects.h"
#include "objects/site.h"

#include "brxDatabase6.h"
#include "brxError6.h"
#include "brxOpcAuto6.h"
#include "brxSample.h"
#include "hlxER01.h"

namespace brx::host {

namespace {

com_ptr<IDispatch> new_fresh_entry() { return dispatch_of(std::make_shared<FreshEntry>(site().source)); }

template <RecordKind kind> com_ptr<IDispatch> new_record() {
    return new_record_object(kind, Record::Level::record);
}
template <RecordKind kind> com_ptr<IDispatch> new_group() {
    return new_record_object(kind, Record::Level::group);
}
template <RecordKind kind> com_ptr<IDispatch> new_selection() { return new_selection_object(kind); }

const NamedClass all[] = {
    {{CLSID_Host, new_host_object}, L"brxSample.Host", L"The sample host"},
    {{CLSID_hlxOPCServer, new_fresh_entry}, L"brxOpcAuto6.hlxOPCServer", L"A fresh server entry"},
    {{CLSID_Error, new_error_object<_Error>}, L"brxError6.Error", L"Reports an unexpected error"},
    {{CLSID_hlxER01_Error, new_error_object<_hlxError>}, L"hlxER01.Error", L"Reports an unexpected error"},
    {{CLSID_hlxHelp, new_help_object}, L"brxOpcAuto6.hlxHelp", L"Knows where the help is"},
    {{CLSID_hlxTestGroup, new_group<RecordKind::characteristic>},
     L"brxDatabase6.hlxTestGroup",
     L"A group of characteristics"},
    {{CLSID_hlxTestSelection, new_selection<RecordKind::characteristic>},
     L"brxDatabase6.hlxTestSelection",
     L"Picks a characteristic"},
    {{CLSID_hlxPart, new_record<RecordKind::part>}, L"brxDatabase6.hlxPart", L"A part"},
    {{CLSID_hlxPartGroup, new_group<RecordKind::part>}, L"brxDatabase6.hlxPartGroup", L"A group of parts"},
    {{CLSID_hlxPartSelection, new_selection<RecordKind::part>},
     L"brxDatabase6.hlxPartSelection",
     L"Picks a part"},
    {{CLSID_hlxProcess, new_record<RecordKind::process>}, L"brxDatabase6.hlxProcess", L"A process"},
    {{CLSID_hlxProcessGroup, new_group<RecordKind::process>},
     L"brxDatabase6.hlxProcessGroup",
     L"A group of processes"},
    {{CLSID_hlxProcessSelection, new_selection<RecordKind::process>},
     L"brxDatabase6.hlxProcessSelection",
     L"Picks a process"},
    {{CLSID_hlxJob, new_record<RecordKind::job>}, L"brxDatabase6.hlxJob", L"A job"},
    {{CLSID_hlxJobGroup, new_group<RecordKind::job>}, L"brxDatabase6.hlxJobGroup", L"A group of jobs"},
    {{CLSID_hlxJobSelection, new_selection<RecordKind::job>},
     L"brxDatabase6.hlxJobSelection",
     L"Picks a job"},
    {{CLSID_hlxShift, new_record<RecordKind::shift>}, L"brxDatabase6.hlxShift", L"A shift"},
    {{CLSID_hlxShiftGroup, new_group<RecordKind::shift>},
     L"brxDatabase6.hlxShiftGroup",
     L"A group of shifts"},
    {{CLSID_hlxShiftSelection, new_selection<RecordKind::shift>},
     L"brxDatabase6.hlxShiftSelection",
     L"Picks a shift"},
    {{CLSID_hlxDescriptor, new_record<RecordKind::descriptor>},
     L"brxDatabase6.hlxDescriptor",
     L"A descriptor"},
    {{CLSID_hlxDescriptorGroup, new_group<RecordKind::descriptor>},
     L"brxDatabase6.hlxDescriptorGroup",
     L"A group of descriptors"},
    {{CLSID_hlxDescriptorSelection, new_selection<RecordKind::descriptor>},
     L"brxDatabase6.hlxDescriptorSelection",
     L"Picks a descriptor"},
};

} // namespace

std::span<const NamedClass> classes() { return all; }

} // namespace brx::host
