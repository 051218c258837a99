#include "sample/windows/fake_wrapper.h"
#include "sample/windows/objects_stage.h"

#include <gmock/gmock.h>

namespace brx::checks {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const Variant plant(std::int32_t{0});
const Variant wrapper(std::int32_t{1});

class SampleWrapper : public ObjectsCheck {
protected:
    void open_again() {
        host = nullptr;
        host = create_by_name(L"brxSample.Host");
        put(host.get(), "DatabaseFile", folder.name_of(L"host.db"));
    }
    std::string state(std::int32_t position) {
        return std::get<std::string>(get(host.get(), "StateText", {position}));
    }
};

TEST_F(SampleWrapper, CannotBeUsedWhereNoneIsInstalled) {
    EXPECT_EQ(get(host.get(), "WrapperInstalled"), Variant(false));
    EXPECT_EQ(get(host.get(), "Source"), plant);
    try {
        put(host.get(), "Source", wrapper);
        ADD_FAILURE() << "no error";
    } catch (const Error& error) {
        EXPECT_THAT(error.description(), HasSubstr("No OPC automation wrapper"));
    }
    EXPECT_EQ(get(host.get(), "Source"), plant);
}

TEST_F(SampleWrapper, ConnectsTheConfiguredServersWhenItIsChosen) {
    const FakeWrapper installed;
    EXPECT_EQ(get(host.get(), "WrapperInstalled"), Variant(true));
    put(host.get(), "Source", wrapper);
    EXPECT_EQ(get(host.get(), "Source"), wrapper);
    EXPECT_THAT(FakeWrapper::diary,
                ElementsAre("connect Simulation.Packing.1 on this computer",
                            "subscribe Configuration 1 every 1000 ms",
                            "connect Simulation.Filling.1 on LINE1",
                            "subscribe Configuration 2 every 1000 ms", "connect Simulation.Kiln.1 on LAB"));
    EXPECT_EQ(state(3), "Running");
}

TEST_F(SampleWrapper, SaysWhyAConnectionFailed) {
    const FakeWrapper installed;
    put(host.get(), "Source", wrapper);
    call(servers().get(), "Add", {std::string("Broken"), std::string("PC7"), true});
    EXPECT_THAT(std::get<std::string>(get(servers().get(), "LastError")), HasSubstr("(0x80080005)"));
    EXPECT_EQ(get(servers().get(), "Count"), Variant(std::int32_t{3}));
}

TEST_F(SampleWrapper, IsDisconnectedWhenTheHostGoes) {
    const FakeWrapper installed;
    put(host.get(), "Source", wrapper);
    FakeWrapper::diary.clear();
    host = nullptr;
    EXPECT_THAT(FakeWrapper::diary, testing::UnorderedElementsAre("disconnect Simulation.Packing.1",
                                                                  "disconnect Simulation.Filling.1",
                                                                  "disconnect Simulation.Kiln.1"));
}

TEST_F(SampleWrapper, IsRememberedInTheDatabaseAndGivenUpWhenItIsGone) {
    {
        const FakeWrapper installed;
        put(host.get(), "Source", wrapper);
        open_again();
        EXPECT_EQ(get(host.get(), "Source"), wrapper);
        host = nullptr;
    }
    open_again();
    EXPECT_EQ(get(host.get(), "Source"), plant);
    EXPECT_EQ(state(1), "Running");
}

} // namespace

} // namespace brx::checks
