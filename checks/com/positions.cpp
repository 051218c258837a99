#include "com/positions.h"

namespace brx::checks {

const std::vector<Positions>& positions_of_dialogs() {
    static const std::vector<Positions> positions = {
        {"_ServerSelect", R"(
1 get ServerIndex() -> short #1
2 put ServerIndex(short) #1
3 Show(inout IDispatch** hlxOPCServers) -> VARIANT_BOOL #2
)"},
        {"_ServerAdd", R"(
1 get ServerIndex() -> short #1
2 put ServerIndex(short) #1
3 Show(IDispatch* hlxOPCServers) -> VARIANT_BOOL #2
)"},
        {"_ServerInformation", R"(
1 Show(IDispatch* OPCServer) -> VARIANT_BOOL #1
)"},
        {"_LeafSelect", R"(
1 Show(IDispatch* OPCServer, IDispatch* OPCGroup) -> VARIANT_BOOL #1
2 get ItemID() -> BSTR #2
3 put ItemID(BSTR) #2
)"},
        {"_ConfigurationSetup", R"(
1 Show(IDispatch* hlxOPCConfiguration) #1
)"},
        {"_TestConfiguration", R"(
1 Show(IDispatch* hlxOPCTest) -> VARIANT_BOOL #1
)"},
        {"_Error", R"(
1 Show(long Number, BSTR Description, BSTR Source, BSTR Location, BSTR Application) #1
)"},
        {"_hlxError", R"(
1 Show(long Number, BSTR Description, BSTR Source, BSTR Location, BSTR Application) #1
)"},
    };
    return positions;
}

const std::vector<Positions>& positions_of_host() {
    static const std::vector<Positions> positions = {
        {"_hlxApplication", R"(
1 kept free
2 kept free
3 kept free
4 kept free
5 kept free
6 kept free
7 kept free
8 kept free
9 get Database() -> IDispatch* #9
)"},
        {"_hlxOPCServers", R"(
1 get Parent() -> IDispatch* #1
2 Add(BSTR ServerName, BSTR Node, VARIANT_BOOL Connect) -> _hlxOPCServer* #2
3 get LastError() -> BSTR #3
4 get Item(VARIANT Index) -> _hlxOPCServer* #0
5 get Count() -> long #5
)"},
        {"_hlxOPCServer", R"(
1 get ServerName() -> BSTR #1
2 get Node() -> BSTR #2
3 kept free
4 kept free
5 get Parent() -> IDispatch* #5
6 kept free
7 kept free
8 get OPCServer() -> IDispatch* #8
)"},
        {"_hlxOPCServerHolder", R"(
1 get ServerEntry() -> _hlxOPCServer* #1
)"},
        {"_hlxOPCConfiguration", R"(
1 kept free
2 kept free
3 get Server() -> _hlxOPCServerHolder* #3
4 kept free
5 get OPCGroup() -> IDispatch* #5
6 get Descriptors() -> _hlxOPCDescriptors* #6
7 get Tests() -> _hlxOPCTests* #7
8 get SubgroupSize() -> long #8
9 put SubgroupSize(long) #8
10 get SubgroupTriggerItem() -> BSTR #10
11 put SubgroupTriggerItem(BSTR) #10
12 get SubgroupInterval() -> long #12
13 put SubgroupInterval(long) #12
14 get SubgroupTimeUnit() -> short #14
15 put SubgroupTimeUnit(short) #14
16 get PieceTriggerItem() -> BSTR #16
17 put PieceTriggerItem(BSTR) #16
18 get PieceInterval() -> long #18
19 put PieceInterval(long) #18
20 get PieceTimeUnit() -> short #20
21 put PieceTimeUnit(short) #20
22 kept free
23 get SyncDateTime() -> DATE #23
24 put SyncDateTime(DATE) #23
25 kept free
26 kept free
27 get SubgroupTriggerType() -> short #27
28 put SubgroupTriggerType(short) #27
29 get SubgroupTriggerValue() -> VARIANT #29
30 put SubgroupTriggerValue(VARIANT) #29
31 get PieceTriggerType() -> short #31
32 put PieceTriggerType(short) #31
33 get PieceTriggerValue() -> VARIANT #33
34 put PieceTriggerValue(VARIANT) #33
35 kept free
36 kept free
37 kept free
38 kept free
39 get Name() -> BSTR #39
40 put Name(BSTR) #39
41 get Active() -> VARIANT_BOOL #41
42 put Active(VARIANT_BOOL) #41
43 get DeadBand() -> float #43
44 put DeadBand(float) #43
45 get UpdateRate() -> long #45
46 put UpdateRate(long) #45
)"},
        {"_hlxOPCTests", R"(
1 Add() -> _hlxOPCTest* #1
2 get Item(VARIANT Position) -> _hlxOPCTest* #0
3 get Count() -> long #3
4 Remove(long Position) #4
5 kept free
6 kept free
7 get Parent() -> _hlxOPCConfiguration* #7
)"},
        {"_hlxOPCTest", R"(
1 get State() -> long #1
2 put State(long) #1
3 get Parent() -> _hlxOPCTests* #3
4 get Index() -> long #4
5 kept free
6 kept free
7 get TestData() -> IDispatch* #7
8 kept free
9 kept free
10 get OPCItemID() -> BSTR #10
11 get ItemText() -> BSTR #11
12 put OPCItemID(BSTR) #10
13 get ClientHandle() -> long #13
14 put ClientHandle(long) #13
15 kept free
16 put ItemTrigger(VARIANT_BOOL) #17
17 get ItemTrigger() -> VARIANT_BOOL #17
18 get TriggerExpression() -> short #18
19 put TriggerExpression(short) #18
20 get TriggerValue() -> VARIANT #20
21 put TriggerValue(VARIANT) #20
22 get Constant() -> double #22
23 put Constant(double) #22
24 get SaveAs() -> short #24
25 put SaveAs(short) #24
26 kept free
27 kept free
28 kept free
29 get CharacteristicName() -> BSTR #29
)"},
        {"_hlxOPCDescriptors", R"(
1 get _NewEnum() -> IUnknown* #-4
2 Add(long Type) -> _hlxOPCDescriptor* #2
3 get Item(VARIANT Position) -> _hlxOPCDescriptor* #0
4 get Count() -> long #4
5 Remove(long Position) #5
)"},
        {"_hlxOPCDescriptor", R"(
1 kept free
2 get Index() -> long #2
3 get Type() -> long #3
4 kept free
5 get ItemName() -> BSTR #5
6 put ItemName(BSTR) #5
7 get GroupName() -> BSTR #7
8 put GroupName(BSTR) #7
)"},
        {"_hlxListTools", R"(
1 AddItem(IDispatch* Control, BSTR Text, short ItemData, default 0 long Options) #1
2 SelectedItemData(IDispatch* Control) -> long #2
3 SelectItem(IDispatch* Control, optional VARIANT Text, default -1 VARIANT_BOOL ByItemData, default 0 long ItemData) #3
)"},
        {"_hlxMessage", R"(
1 kept free
2 kept free
3 kept free
4 kept free
5 kept free
6 Show(BSTR Text, long Style, BSTR Title, optional VARIANT DefaultButton, optional VARIANT HelpTopic) -> long #6
)"},
        {"_hlxFocus", R"(
1 SelectText(IDispatch* TextBox) #1
)"},
        {"_hlxBusyCursor", R"(
1 Start(IDispatch* Form) #1
)"},
        {"_hlxHelp", R"(
1 get HelpFile() -> BSTR #1
)"},
        {"_hlxDatabase", "\n"},
        {"_hlxTestData", R"(
1 get ID() -> long #1
2 put ID(long) #1
3 get GroupID() -> long #3
4 get Name() -> BSTR #4
5 put Flag(short) #5
6 put Mode(short) #6
7 Load(_hlxDatabase* Database) -> VARIANT_BOOL #7
8 Save(_hlxDatabase* Database) #8
)"},
        {"_hlxRecord", R"(
1 get ID() -> long #1
2 put ID(long) #1
3 get Name() -> BSTR #3
4 put Name(BSTR) #3
5 get GroupID() -> long #5
6 put GroupID(long) #5
7 put SearchFlag(short) #7
8 Load(_hlxDatabase* Database) -> VARIANT_BOOL #8
)"},
        {"_hlxSelection", R"(
1 Show(_hlxDatabase* Database, long ID, long GroupID) -> VARIANT_BOOL #1
2 get Record() -> IDispatch* #2
)"},

    };
    return positions;
}

} // namespace brx::checks
