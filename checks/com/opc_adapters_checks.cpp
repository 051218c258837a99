#include "com/bstr.h"
#include "com/failure.h"
#include "com/host_doubles.h"
#include "com/opc_doubles.h"
#include "com/owned_variant.h"
#include "com/round_trip.h"

#include <gmock/gmock.h>

// Every member of the OPC automation objects that the dialogs use, there and back.

namespace brx::checks {

namespace {

using testing::ElementsAre;
const StringArray item_ids{{"Line.Speed", unusual_text}, 1};
const LongArray client_handles{{70000, -1}, 1};
const ShortArray data_types{{0, 5}, 1};
const StringArray access_paths{{"", "COM1"}, 1};

class OpcAdapterTest : public AdapterTest {
protected:
    std::shared_ptr<DoubleOf<OPCItems>> items = make<OPCItems>();
    std::shared_ptr<DoubleOf<OPCBrowser>> browser = make<OPCBrowser>();

    /// The double through both adapters.
    template <class Model> std::shared_ptr<Model> through(const std::shared_ptr<DoubleOf<Model>>& original) {
        return from_com<Model>(to_com<Model>(original));
    }

    template <class Model>
    static std::string refusal(const std::shared_ptr<Model>& object, const std::string& member,
                               const std::vector<Variant>& arguments) {
        return outcome([&] { return invoke(dispatch_of(object).get(), member, DISPATCH_METHOD, arguments); });
    }
};

const std::string invalid_argument = describe(error_of(E_INVALIDARG));

TEST_F(OpcAdapterTest, PassAServerOn) {
    using Model = OPCServer;
    const auto groups = make<OPCGroups>();
    groups->answers["Count"] = two;
    browser->answers["Organization"] = two;
    const auto server = make<Model>();
    server->answers = {{"StartTime", Date{46000.75}},
                       {"CurrentTime", Date{46001.123456789}},
                       {"LastUpdateTime", Date{-109205.0}},
                       {"MajorVersion", std::int16_t{3}},
                       {"MinorVersion", std::int16_t{0}},
                       {"BuildNumber", std::int16_t{-1}},
                       {"VendorInfo", unusual_text},
                       {"ServerState", std::int32_t{1}},
                       {"ServerName", std::string("Sim.Matrix.1")},
                       {"ServerNode", std::string()},
                       {"ClientName", std::string("client")},
                       {"Bandwidth", std::int32_t{-1}},
                       {"OPCGroups", ObjectPtr(groups)},
                       {"GetOPCServers", StringArray{{"Sim.1", unusual_text}, 1}},
                       {"CreateBrowser", ObjectPtr(browser)},
                       {"GetErrorString", unusual_text}};
    check_members<Model>(server,
                         {
                             get("StartTime", &Model::StartTime),
                             get("CurrentTime", &Model::CurrentTime),
                             get("LastUpdateTime", &Model::LastUpdateTime),
                             get("MajorVersion", &Model::MajorVersion),
                             get("MinorVersion", &Model::MinorVersion),
                             get("BuildNumber", &Model::BuildNumber),
                             get("VendorInfo", &Model::VendorInfo),
                             get("ServerState", &Model::ServerState),
                             get("ServerName", &Model::ServerName),
                             get("ServerNode", &Model::ServerNode),
                             get("ClientName", &Model::ClientName),
                             get("Bandwidth", &Model::Bandwidth),
                             get("OPCGroups", &Model::OPCGroups),
                             method("CreateBrowser", &Model::CreateBrowser),
                             method("GetErrorString", &Model::GetErrorString, std::int32_t{-1073479673}),
                             {DISPATCH_METHOD,
                              "GetOPCServers",
                              {},
                              [](Model& model) { return model.GetOPCServers(std::nullopt); }},
                             {DISPATCH_METHOD,
                              "GetOPCServers",
                              {std::string("PC7")},
                              [](Model& model) { return model.GetOPCServers("PC7"); }},
                             {DISPATCH_METHOD,
                              "GetOPCServers",
                              {std::string()},
                              [](Model& model) { return model.GetOPCServers(""); }},
                         });
}

TEST_F(OpcAdapterTest, PassOnWhateverAServerEnumerates) {
    const auto server = make<OPCServer>();
    for (const Variant& found : {Variant(StringArray{{}, 1}), Variant(StringArray{{"zero"}, 0}),
                                 Variant(Empty{}), Variant(std::string("text")), Variant(Null{})}) {
        server->answers["GetOPCServers"] = found;
        EXPECT_EQ(describe(through(server)->GetOPCServers(std::nullopt)), describe(found));
    }
}

TEST_F(OpcAdapterTest, TakeAnEmptyNodeForAnOmittedOneAndRefuseOtherTypes) {
    const auto server = make<OPCServer>();
    server->answers["GetOPCServers"] = Empty{};
    EXPECT_EQ(refusal(server, "GetOPCServers", {Empty{}}), "Empty");
    EXPECT_THAT(server->take_calls(), ElementsAre("GetOPCServers (Missing)"));
    EXPECT_EQ(refusal(server, "GetOPCServers", {two}), invalid_argument);
    EXPECT_THAT(server->take_calls(), ElementsAre());
}

TEST_F(OpcAdapterTest, PassGroupsOn) {
    const auto server = make<OPCServer>();
    server->answers["ServerName"] = std::string("Sim.1");
    items->answers["Count"] = two;
    const auto group = make<OPCGroup>();
    group->answers = {{"Parent", ObjectPtr(server)}, {"Name", unusual_text}, {"OPCItems", ObjectPtr(items)}};
    check_members<OPCGroup>(group, {get("Parent", &OPCGroup::Parent), get("Name", &OPCGroup::Name),
                                    get("OPCItems", &OPCGroup::OPCItems)});

    const auto groups = make<OPCGroups>();
    groups->answers = {{"Count", two}, {"Item", ObjectPtr(group)}, {"Add", ObjectPtr(group)}};
    const auto adding = [](std::vector<Variant> arguments, const std::optional<std::string>& name) {
        return Member<OPCGroups>{DISPATCH_METHOD, "Add", std::move(arguments),
                                 [=](OPCGroups& model) -> Variant { return ObjectPtr(model.Add(name)); }};
    };
    check_members<OPCGroups>(
        groups, {get("Count", &OPCGroups::Count), method("Item", &OPCGroups::Item, Variant(two)),
                 method("Item", &OPCGroups::Item, Variant(std::string("Line 3"))), adding({}, std::nullopt),
                 adding({std::string("Line 3")}, "Line 3"), method("RemoveAll", &OPCGroups::RemoveAll),
                 method("Remove", &OPCGroups::Remove, Variant(two)),
                 method("Remove", &OPCGroups::Remove, Variant(std::string("Line 3")))});
}

TEST_F(OpcAdapterTest, PassItemsOn) {
    const auto item = make<OPCItem>();
    item->answers = {{"ItemID", unusual_text}, {"CanonicalDataType", std::int16_t{11}}};
    check_members<OPCItem>(
        item, {get("ItemID", &OPCItem::ItemID), put("IsActive", &OPCItem::set_IsActive, true),
               get("IsActive", &OPCItem::IsActive), get("CanonicalDataType", &OPCItem::CanonicalDataType)});

    items->answers = {{"Count", two}, {"Item", ObjectPtr(item)}};
    check_members<OPCItems>(items,
                            {get("Count", &OPCItems::Count), method("Item", &OPCItems::Item, Variant(two)),
                             method("Item", &OPCItems::Item, Variant(unusual_text))});
}

TEST_F(OpcAdapterTest, PassTheBrowserOn) {
    using Model = OPCBrowser;
    browser->answers = {
        {"Organization", two}, {"Count", two}, {"Item", unusual_text}, {"GetItemID", unusual_text}};
    check_members<Model>(browser, {
                                      get("Organization", &Model::Organization),
                                      get("Count", &Model::Count),
                                      method("Item", &Model::Item, two),
                                      method("ShowBranches", &Model::ShowBranches),
                                      method("ShowLeafs", &Model::ShowLeafs, true),
                                      method("ShowLeafs", &Model::ShowLeafs, false),
                                      method("MoveToRoot", &Model::MoveToRoot),
                                      method("GetItemID", &Model::GetItemID, unusual_text),
                                  });
    EXPECT_EQ(refusal(browser, "Item", {std::string("2")}), invalid_argument);
    EXPECT_EQ(refusal(browser, "ShowLeafs", {two}), invalid_argument);
    browser->take_calls();
    invoke(dispatch_of(browser).get(), "ShowLeafs", DISPATCH_METHOD, {});
    invoke(dispatch_of(browser).get(), "Item", DISPATCH_METHOD, {std::int16_t{2}});
    EXPECT_THAT(browser->take_calls(), ElementsAre("ShowLeafs (False)", "Item (long 2)"));
}

TEST_F(OpcAdapterTest, PassAPathOnWithItsLowerBound) {
    for (const StringArray& path :
         {StringArray{{"Plant", unusual_text}, 0}, StringArray{{"Plant"}, 1}, StringArray{{}, 0}}) {
        through(browser)->MoveTo(path);
        EXPECT_THAT(browser->take_calls(), ElementsAre("MoveTo (" + describe(Variant(path)) + ")"));
    }
    browser->failure = Error(-1073479669, "No such branch", "Sim.1");
    EXPECT_EQ(outcome([&] {
                  return through(browser)->MoveTo({{"x"}, 0}), Variant();
              }),
              "error -1073479669 | No such branch | Sim.1");
}

TEST_F(OpcAdapterTest, AddItems) {
    items->added = {{{17, 0}, 1}, {{0, -1073479673}, 1}};
    const AddedItems added = through(items)->AddItems(item_ids, client_handles, data_types, access_paths);
    EXPECT_EQ(added.ServerHandles, items->added.ServerHandles);
    EXPECT_EQ(added.Errors, items->added.Errors);
    EXPECT_THAT(items->take_calls(),
                ElementsAre("AddItems (" + describe(Variant(item_ids)) + ") (" + describe(client_handles) +
                            ") (text " + describe(data_types) + ") (text " + describe(Variant(access_paths)) +
                            ")"));
    through(items)->AddItems(item_ids, client_handles, std::nullopt, std::nullopt);
    EXPECT_THAT(items->take_calls(), ElementsAre(testing::EndsWith("(text omitted) (text omitted)")));
    items->failure = Error(5, "Not now", "Sim.1");
    EXPECT_EQ(
        outcome([&] {
            return through(items)->AddItems(item_ids, client_handles, std::nullopt, std::nullopt).Errors;
        }),
        "error 5 | Not now | Sim.1");
}

TEST_F(OpcAdapterTest, ValidateAndRemoveItems) {
    items->errors = {{0, -1073479672}, 1};
    EXPECT_EQ(through(items)->Validate(item_ids, data_types, access_paths), items->errors);
    EXPECT_EQ(through(items)->Validate(item_ids, std::nullopt, access_paths), items->errors);
    EXPECT_EQ(through(items)->Remove({{17, 18}, 1}), items->errors);
    const std::string ids = describe(Variant(item_ids));
    const std::string paths = describe(Variant(access_paths));
    EXPECT_THAT(items->take_calls(),
                ElementsAre("Validate (" + ids + ") (text " + describe(data_types) + ") (text " + paths + ")",
                            "Validate (" + ids + ") (text omitted) (text " + paths + ")",
                            "Remove (longs from 1: [long 17] [long 18])"));
    items->failure = Error(5, "Not now", "Sim.1");
    EXPECT_EQ(outcome([&] { return through(items)->Validate(item_ids, {}, {}); }),
              "error 5 | Not now | Sim.1");
    EXPECT_EQ(outcome([&] { return through(items)->Remove({{17}, 1}); }), "error 5 | Not now | Sim.1");
}

/// Arrays as a script host passes them: by reference, results into its own variables.
class LateBoundArraysTest : public OpcAdapterTest {
protected:
    VARIANT by_reference(VARTYPE type, OwnedSafeArray& array) {
        VARIANT variant;
        VariantInit(&variant);
        V_VT(&variant) = static_cast<VARTYPE>(VT_BYREF | VT_ARRAY | type);
        V_ARRAYREF(&variant) = array.in();
        return variant;
    }
    static VARIANT number(LONG value) {
        VARIANT variant;
        VariantInit(&variant);
        V_VT(&variant) = VT_I4;
        V_I4(&variant) = value;
        return variant;
    }
};

TEST_F(LateBoundArraysTest, AddItems) {
    items->added = {{{17, 18}, 1}, {{0, 0}, 1}};
    OwnedSafeArray ids(item_ids);
    OwnedSafeArray clients(client_handles);
    OwnedSafeArray handles;
    OwnedSafeArray errors;
    invoke_raw(dispatch_of(items).get(), "AddItems", DISPATCH_METHOD,
               {number(2), by_reference(VT_BSTR, ids), by_reference(VT_I4, clients),
                by_reference(VT_I4, handles), by_reference(VT_I4, errors)});
    EXPECT_EQ(long_array(handles.get()), items->added.ServerHandles);
    EXPECT_EQ(long_array(errors.get()), items->added.Errors);
    EXPECT_THAT(items->take_calls(),
                ElementsAre("AddItems (" + describe(Variant(item_ids)) + ") (" + describe(client_handles) +
                            ") (text omitted) (text omitted)"));
}

TEST_F(LateBoundArraysTest, TakeTheElementsFromIndexOneOn) {
    items->errors = {{0}, 1};
    OwnedSafeArray ids(StringArray{{"ignored", "Line.Speed", "too many"}, 0});
    OwnedSafeArray errors;
    invoke_raw(dispatch_of(items).get(), "Validate", DISPATCH_METHOD,
               {number(1), by_reference(VT_BSTR, ids), by_reference(VT_I4, errors)});
    EXPECT_THAT(items->take_calls(),
                ElementsAre(testing::StartsWith("Validate (texts from 1: [text Line.Speed])")));
    EXPECT_EQ(long_array(errors.get()), items->errors);
}

TEST_F(LateBoundArraysTest, RefuseArraysThatAreTooShortOrOfAnotherType) {
    OwnedSafeArray ids(StringArray{{"ignored", "Line.Speed"}, 0});
    OwnedSafeArray handles(client_handles);
    OwnedSafeArray errors;
    const auto early = to_com<OPCItems>(items);
    const VARIANT omitted = OwnedVariant(Variant(Missing{})).detach();
    EXPECT_EQ(early->Validate(2, ids.in(), errors.out(), omitted, omitted), E_INVALIDARG);
    EXPECT_EQ(early->Validate(0, ids.in(), errors.out(), omitted, omitted), E_INVALIDARG);
    EXPECT_EQ(early->Validate(1, handles.in(), errors.out(), omitted, omitted), E_INVALIDARG);
    EXPECT_EQ(early->Validate(1, nullptr, errors.out(), omitted, omitted), E_INVALIDARG);
    EXPECT_EQ(early->Validate(1, ids.in(), nullptr, omitted, omitted), E_POINTER);
    EXPECT_EQ(early->Remove(1, ids.in(), errors.out()), E_INVALIDARG);
    const OwnedVariant longs{OwnedSafeArray(client_handles)};
    EXPECT_EQ(early->Validate(1, ids.in(), errors.out(), longs.get(), omitted), E_INVALIDARG);
    EXPECT_EQ(early->Validate(1, ids.in(), errors.out(), omitted, longs.get()), E_INVALIDARG);
    EXPECT_THAT(items->take_calls(), ElementsAre());
}

TEST_F(LateBoundArraysTest, MoveAlongAPath) {
    OwnedSafeArray path(StringArray{{"Plant", "Line"}, 0});
    invoke_raw(dispatch_of(browser).get(), "MoveTo", DISPATCH_METHOD, {by_reference(VT_BSTR, path)});
    EXPECT_THAT(browser->take_calls(), ElementsAre("MoveTo (texts from 0: [text Plant] [text Line])"));
}

TEST_F(OpcAdapterTest, HaveNothingBehindTheMembersThatNoDialogUses) {
    const auto server = to_com<OPCServer>(make<OPCServer>());
    EXPECT_EQ(server->Disconnect(), E_NOTIMPL);
    EXPECT_EQ(to_com<hlxOPCServer>(make<hlxOPCServer>())->Reserved3(), E_NOTIMPL);
}

} // namespace

} // namespace brx::checks
