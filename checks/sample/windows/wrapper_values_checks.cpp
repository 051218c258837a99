#include "com/bstr.h"
#include "com/owned_variant.h"
#include "sample/windows/fake_wrapper.h"
#include "sample/windows/host_program.h"
#include "sample/windows/objects_stage.h"
#include "sample/windows/ticking.h"

#include <commctrl.h>
#include <gmock/gmock.h>

#include <OPCAutomation.h>
#include <brxOpcDlgs6.h>

namespace brx::checks {

namespace {

using testing::EndsWith;
using testing::HasSubstr;

constexpr std::int32_t first = 1;
const std::string weight = "Filler.Head 1.Weight";

/// The sample's first configuration on a server behind a foreign wrapper.
class SampleWrapperValues : public ObjectsCheck {
protected:
    void connect() { put(host.get(), "Source", std::int32_t{1}); }
    std::string text(const std::string& property) {
        return std::get<std::string>(get(host.get(), property, {first, first, weight}));
    }
    std::string value() { return text("ItemValue"); }
    std::string trouble() { return text("ItemTrouble"); }
    std::string last_log_line_with(const std::string& words) {
        for (auto line = std::get<std::int32_t>(get(host.get(), "LogCount")); line > 0; --line) {
            const auto said = std::get<std::string>(get(host.get(), "LogLine", {line}));
            if (said.find(words) != std::string::npos) return said;
        }
        return {};
    }
    com_ptr<IDispatch> configuration() { return get_object(host.get(), "Configuration", {first, first}); }
    std::int32_t stored() {
        return std::get<std::int32_t>(get(host.get(), "StoredSubgroupCount", {first, first, first}));
    }

    FakeWrapper wrapper;
};

TEST_F(SampleWrapperValues, ComeFromGroupsThatAreSubscribedWithTheirOwnRate) {
    put(configuration().get(), "UpdateRate", std::int32_t{250});
    connect();
    EXPECT_THAT(FakeWrapper::diary, testing::Contains("subscribe Configuration 1 every 250 ms"));
    EXPECT_EQ(value(), "498.5");
    EXPECT_EQ(trouble(), "");
    FakeWrapper::items[weight].value = 501.25;
    EXPECT_EQ(value(), "501.25");
}

TEST_F(SampleWrapperValues, SayTheirQualityWhenItIsNotGood) {
    connect();
    FakeWrapper::items[weight].quality = 0x08;
    EXPECT_EQ(value(), "");
    EXPECT_EQ(trouble(), "bad, not connected");
    FakeWrapper::items[weight].quality = 0x44;
    EXPECT_EQ(trouble(), "uncertain, last usable value");
}

TEST_F(SampleWrapperValues, AreAskedForWhereTheServerDoesNotSubscribe) {
    FakeWrapper::takes_subscriptions = false;
    connect();
    const std::string told = last_log_line_with("Filler head 1: The group is not subscribed");
    EXPECT_THAT(told, EndsWith("(0x80004001)"));
    EXPECT_EQ(value(), "498.5");
    FakeWrapper::items[weight].value = 501.25;
    EXPECT_TRUE(comes_true([&] { return value() == "501.25"; }));
    FakeWrapper::answers = false;
    EXPECT_TRUE(comes_true([&] { return trouble().starts_with("not subscribed, no answer since "); }));
    EXPECT_THAT(trouble(), HasSubstr("(0x800706BA)"));
}

TEST_F(SampleWrapperValues, AreAskedForWhenASubscriptionBringsNone) {
    FakeWrapper::tells_changes = false;
    connect();
    EXPECT_EQ(trouble(), "waiting for the first value");
    EXPECT_TRUE(comes_true([&] { return value() == "498.5"; }));
    FakeWrapper::items[weight].value = 501.25;
    EXPECT_TRUE(comes_true([&] { return value() == "501.25"; }));
}

TEST_F(SampleWrapperValues, AreCollectedAndStored) {
    connect();
    put(configuration().get(), "UpdateRate", std::int32_t{1});
    put(configuration().get(), "DeadBand", 0.0F);
    put(configuration().get(), "SubgroupInterval", std::int32_t{0});
    put(configuration().get(), "PieceTriggerItem", std::string());
    invoke(host.get(), "Running", DISPATCH_PROPERTYPUT, {first, first, true});
    double pieces = 0;
    EXPECT_TRUE(comes_true([&] {
        FakeWrapper::items[weight].value = 500 + ++pieces;
        call(host.get(), "Collect");
        return stored() == 2;
    }));
    const Variant collected = get(host.get(), "SubgroupCount", {first, first, first});
    EXPECT_EQ(collected, Variant(std::int32_t{2}));
    host = nullptr;
    host = create_by_name(L"brxSample.Host");
    put(host.get(), "DatabaseFile", folder.name_of(L"host.db"));
    EXPECT_EQ(stored(), 2);
}

TEST_F(SampleWrapperValues, AreNotWantedFromAServerThatIsGarbageInAnEnumeration) {
    connect();
    const Variant added = call(servers().get(), "Add", {FakeWrapper::garbage, std::string(), true});
    EXPECT_FALSE(std::get<ObjectPtr>(added));
    EXPECT_THAT(std::get<std::string>(get(servers().get(), "LastError")), HasSubstr("(0x80080005)"));
    EXPECT_EQ(get(servers().get(), "Count"), Variant(std::int32_t{3}));
}

/// The first name in the browser's list is no item's.
TEST_F(SampleWrapperValues, AreChosenInADialogThatMeetsTheWrapperItself) {
    connect();
    const auto server = get_object(host.get(), "Server", {std::string("Simulation.Packing.1")});
    com_ptr<::IOPCGroups> groups;
    com_ptr<::IOPCGroup> group;
    ASSERT_EQ(server.as<::IOPCAutoServer>()->get_OPCGroups(groups.out()), S_OK);
    ASSERT_EQ(groups->Add(OwnedVariant(Missing{}).get(), group.out()), S_OK);
    EXPECT_FALSE(group.as<IDispatch>());

    const auto dialog = create_by_name(L"brxOpcDlgs6.LeafSelect").as<_LeafSelect>();
    LRESULT names = 0;
    int step = 0;
    VARIANT_BOOL chosen = VARIANT_FALSE;
    {
        const Ticking choosing([&] {
            const HWND window = FindWindowW(L"#32770", L"Select Item");
            if (!window || !IsWindowEnabled(window)) return;
            Controls controls = controls_of(window);
            if (++step == 1) {
                names = SendMessageW(controls[L"lstItem"], LVM_GETITEMCOUNT, 0, 0);
                PostMessageW(controls[L"lstItem"], WM_KEYDOWN, VK_HOME, 1);
            } else if (step == 2) {
                PostMessageW(controls[L"lstItem"], WM_KEYDOWN, VK_END, 1);
            } else if (step == 3) {
                PostMessageW(controls[L"bnOK"], BM_CLICK, 0, 0);
            } else if (step == 50) {
                PostMessageW(window, WM_CLOSE, 0, 0);
            }
        });
        ASSERT_EQ(dialog->Show(server.get(), group.get(), &chosen), S_OK);
    }
    Bstr item;
    ASSERT_EQ(dialog->get_ItemID(item.out()), S_OK);
    EXPECT_EQ(names, 5);
    EXPECT_EQ(chosen, VARIANT_TRUE);
    EXPECT_EQ(item.text(), "Labeller.Batch");
    EXPECT_EQ(FakeWrapper::diary.back(), "validate Labeller.Batch");
}

} // namespace

} // namespace brx::checks
