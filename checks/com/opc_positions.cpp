#include "com/positions.h"

namespace brx::checks {

const std::vector<Positions>& positions_of_opc_automation() {
    static const std::vector<Positions> positions = {
        {"IOPCAutoServer", R"(
1 get StartTime() -> DATE #60020000
2 get CurrentTime() -> DATE #60020001
3 get LastUpdateTime() -> DATE #60020002
4 get MajorVersion() -> short #60020003
5 get MinorVersion() -> short #60020004
6 get BuildNumber() -> short #60020005
7 get VendorInfo() -> BSTR #60020006
8 get ServerState() -> long #60020007
9 get ServerName() -> BSTR #60020008
10 get ServerNode() -> BSTR #60020009
11 get ClientName() -> BSTR #6002000A
12 put ClientName(BSTR) #6002000A
13 get LocaleID() -> long #6002000C
14 put LocaleID(long) #6002000C
15 get Bandwidth() -> long #6002000E
16 get OPCGroups() -> IOPCGroups* #0
17 get PublicGroupNames() -> VARIANT #60020010
18 GetOPCServers(optional VARIANT Node) -> VARIANT #60020011
19 Connect(BSTR ProgID, optional VARIANT Node) #60020012
20 Disconnect() #60020013
21 CreateBrowser() -> OPCBrowser* #60020014
22 GetErrorString(long ErrorCode) -> BSTR #60020015
23 QueryAvailableLocaleIDs() -> VARIANT #60020016
24 QueryAvailableProperties(BSTR ItemID, out long* Count, out SAFEARRAY(long)* PropertyIDs, out SAFEARRAY(BSTR)* Descriptions, out SAFEARRAY(short)* DataTypes) #60020017
25 GetItemProperties(BSTR ItemID, long Count, SAFEARRAY(long)* PropertyIDs, out SAFEARRAY(VARIANT)* PropertyValues, out SAFEARRAY(long)* Errors) #60020018
26 LookupItemIDs(BSTR ItemID, long Count, SAFEARRAY(long)* PropertyIDs, out SAFEARRAY(BSTR)* NewItemIDs, out SAFEARRAY(long)* Errors) #60020019
)"},
        {"OPCBrowser", R"(
1 get Organization() -> long #60020000
2 get Filter() -> BSTR #60020001
3 put Filter(BSTR) #60020001
4 get DataType() -> short #60020003
5 put DataType(short) #60020003
6 get AccessRights() -> long #60020005
7 put AccessRights(long) #60020005
8 get CurrentPosition() -> BSTR #60020007
9 get Count() -> long #60020008
10 get _NewEnum() -> IUnknown* #-4
11 Item(VARIANT ItemSpecifier) -> BSTR #6002000A
12 ShowBranches() #6002000B
13 ShowLeafs(optional VARIANT Flat) #6002000C
14 MoveUp() #6002000D
15 MoveToRoot() #6002000E
16 MoveDown(BSTR Branch) #6002000F
17 MoveTo(SAFEARRAY(BSTR)* Branches) #60020010
18 GetItemID(BSTR Leaf) -> BSTR #60020011
19 GetAccessPaths(BSTR ItemID) -> VARIANT #60020012
)"},
        {"IOPCGroups", R"(
1 get Parent() -> IOPCAutoServer* #60020000
2 get DefaultGroupIsActive() -> VARIANT_BOOL #60020001
3 put DefaultGroupIsActive(VARIANT_BOOL) #60020001
4 get DefaultGroupUpdateRate() -> long #60020003
5 put DefaultGroupUpdateRate(long) #60020003
6 get DefaultGroupDeadband() -> float #60020005
7 put DefaultGroupDeadband(float) #60020005
8 get DefaultGroupLocaleID() -> long #60020007
9 put DefaultGroupLocaleID(long) #60020007
10 get DefaultGroupTimeBias() -> long #60020009
11 put DefaultGroupTimeBias(long) #60020009
12 get Count() -> long #6002000B
13 get _NewEnum() -> IUnknown* #-4
14 Item(VARIANT ItemSpecifier) -> IOPCGroup* #0
15 Add(optional VARIANT Name) -> IOPCGroup* #6002000E
16 GetOPCGroup(VARIANT ItemSpecifier) -> IOPCGroup* #6002000F
17 RemoveAll() #60020010
18 Remove(VARIANT ItemSpecifier) #60020011
19 ConnectPublicGroup(BSTR Name) -> IOPCGroup* #60020012
20 RemovePublicGroup(VARIANT ItemSpecifier) #60020013
)"},
        {"IOPCGroup", R"(
1 get Parent() -> IOPCAutoServer* #60020000
2 get Name() -> BSTR #60020001
3 put Name(BSTR) #60020001
4 get IsPublic() -> VARIANT_BOOL #60020003
5 get IsActive() -> VARIANT_BOOL #60020004
6 put IsActive(VARIANT_BOOL) #60020004
7 get IsSubscribed() -> VARIANT_BOOL #60020006
8 put IsSubscribed(VARIANT_BOOL) #60020006
9 get ClientHandle() -> long #60020008
10 put ClientHandle(long) #60020008
11 get ServerHandle() -> long #6002000A
12 get LocaleID() -> long #6002000B
13 put LocaleID(long) #6002000B
14 get TimeBias() -> long #6002000D
15 put TimeBias(long) #6002000D
16 get DeadBand() -> float #6002000F
17 put DeadBand(float) #6002000F
18 get UpdateRate() -> long #60020011
19 put UpdateRate(long) #60020011
20 get OPCItems() -> OPCItems* #0
21 SyncRead(short Source, long NumItems, SAFEARRAY(long)* ServerHandles, out SAFEARRAY(VARIANT)* Values, out SAFEARRAY(long)* Errors, out optional VARIANT* Qualities, out optional VARIANT* TimeStamps) #60020014
22 SyncWrite(long NumItems, SAFEARRAY(long)* ServerHandles, SAFEARRAY(VARIANT)* Values, out SAFEARRAY(long)* Errors) #60020015
23 AsyncRead(long NumItems, SAFEARRAY(long)* ServerHandles, out SAFEARRAY(long)* Errors, long TransactionID, out long* CancelID) #60020016
24 AsyncWrite(long NumItems, SAFEARRAY(long)* ServerHandles, SAFEARRAY(VARIANT)* Values, out SAFEARRAY(long)* Errors, long TransactionID, out long* CancelID) #60020017
25 AsyncRefresh(short Source, long TransactionID, out long* CancelID) #60020018
26 AsyncCancel(long CancelID) #60020019
)"},
        {"OPCItems", R"(
1 get Parent() -> IOPCGroup* #60020000
2 get DefaultRequestedDataType() -> short #60020001
3 put DefaultRequestedDataType(short) #60020001
4 get DefaultAccessPath() -> BSTR #60020003
5 put DefaultAccessPath(BSTR) #60020003
6 get DefaultIsActive() -> VARIANT_BOOL #60020005
7 put DefaultIsActive(VARIANT_BOOL) #60020005
8 get Count() -> long #60020007
9 get _NewEnum() -> IUnknown* #-4
10 Item(VARIANT ItemSpecifier) -> OPCItem* #0
11 GetOPCItem(long ServerHandle) -> OPCItem* #6002000A
12 AddItem(BSTR ItemID, long ClientHandle) -> OPCItem* #6002000B
13 AddItems(long NumItems, SAFEARRAY(BSTR)* ItemIDs, SAFEARRAY(long)* ClientHandles, out SAFEARRAY(long)* ServerHandles, out SAFEARRAY(long)* Errors, optional VARIANT RequestedDataTypes, optional VARIANT AccessPaths) #6002000C
14 Remove(long NumItems, SAFEARRAY(long)* ServerHandles, out SAFEARRAY(long)* Errors) #6002000D
15 Validate(long NumItems, SAFEARRAY(BSTR)* ItemIDs, out SAFEARRAY(long)* Errors, optional VARIANT RequestedDataTypes, optional VARIANT AccessPaths) #6002000E
16 SetActive(long NumItems, SAFEARRAY(long)* ServerHandles, VARIANT_BOOL ActiveState, out SAFEARRAY(long)* Errors) #6002000F
17 SetClientHandles(long NumItems, SAFEARRAY(long)* ServerHandles, SAFEARRAY(long)* ClientHandles, out SAFEARRAY(long)* Errors) #60020010
18 SetDataTypes(long NumItems, SAFEARRAY(long)* ServerHandles, SAFEARRAY(long)* RequestedDataTypes, out SAFEARRAY(long)* Errors) #60020011
)"},
        {"OPCItem", R"(
1 get Parent() -> IOPCGroup* #60020000
2 get ClientHandle() -> long #60020001
3 put ClientHandle(long) #60020001
4 get ServerHandle() -> long #60020003
5 get AccessPath() -> BSTR #60020004
6 get AccessRights() -> long #60020005
7 get ItemID() -> BSTR #60020006
8 get IsActive() -> VARIANT_BOOL #60020007
9 put IsActive(VARIANT_BOOL) #60020007
10 get RequestedDataType() -> short #60020009
11 put RequestedDataType(short) #60020009
12 get Value() -> VARIANT #0
13 get Quality() -> long #6002000C
14 get TimeStamp() -> DATE #6002000D
15 get CanonicalDataType() -> short #6002000E
16 get EUType() -> short #6002000F
17 get EUInfo() -> VARIANT #60020010
18 Read(short Source, out optional VARIANT* Value, out optional VARIANT* Quality, out optional VARIANT* TimeStamp) #60020011
19 Write(VARIANT Value) #60020012
)"},
        {"IOPCActivator", R"(
1 Attach(IUnknown* Server, BSTR ProgID, optional VARIANT NodeName) -> IOPCAutoServer* #60020000
)"},

    };
    return positions;
}

} // namespace brx::checks
