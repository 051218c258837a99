#include "com/host_doubles.h"
#include "com/round_trip.h"

#include <gmock/gmock.h>

// Every member of the database objects and the services, there and back.

namespace brx::checks {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(AdapterTest, PassTheDatabaseAsTheVeryObjectThatTheHostGave) {
    const auto record = make<hlxRecord>();
    record->answers["Load"] = true;
    const auto host_database = to_com<hlxDatabase>(make<hlxDatabase>());
    const auto database = resolve<hlxDatabase>(from_dispatch(host_database));

    const auto sent = to_com<hlxDatabase>(database);
    EXPECT_EQ(sent.get(), host_database.get());
    EXPECT_TRUE(from_com<hlxRecord>(to_com<hlxRecord>(record))->Load(database));
    EXPECT_THAT(record->take_calls(), ElementsAre("Load (hlxDatabase Empty)"));
}

TEST_F(AdapterTest, PassDatabaseObjectsOn) {
    const auto database = make<hlxDatabase>();
    const auto test_data = make<hlxTestData>();
    test_data->answers = {{"GroupID", two}, {"Name", unusual_text}, {"Load", true}};
    const std::vector of_test_data{
        put("ID", &hlxTestData::set_ID, std::int32_t{70000}),
        get("ID", &hlxTestData::ID),
        get("GroupID", &hlxTestData::GroupID),
        get("Name", &hlxTestData::Name),
        put("Flag", &hlxTestData::set_Flag, std::int16_t{0}),
        put("Mode", &hlxTestData::set_Mode, std::int16_t{1}),
        method("Load", &hlxTestData::Load, hlxDatabasePtr(database)),
        method("Save", &hlxTestData::Save, hlxDatabasePtr(database)),
    };
    check_members(test_data, of_test_data);
    EXPECT_THAT(members_beside("_hlxTestData", of_test_data), IsEmpty());

    const auto record = make<hlxRecord>();
    record->answers = {{"Load", false}};
    const std::vector of_record{
        put("ID", &hlxRecord::set_ID, std::int32_t{-1}),
        get("ID", &hlxRecord::ID),
        put("Name", &hlxRecord::set_Name, unusual_text),
        get("Name", &hlxRecord::Name),
        put("GroupID", &hlxRecord::set_GroupID, two),
        get("GroupID", &hlxRecord::GroupID),
        put("SearchFlag", &hlxRecord::set_SearchFlag, std::int16_t{1}),
        method("Load", &hlxRecord::Load, hlxDatabasePtr(database)),
    };
    check_members(record, of_record);
    EXPECT_THAT(members_beside("_hlxRecord", of_record), IsEmpty());

    const auto selection = make<hlxSelection>();
    selection->answers = {{"Show", true}, {"Record", ObjectPtr(record)}};
    const std::vector of_selection{
        method("Show", &hlxSelection::Show, hlxDatabasePtr(database), two, std::int32_t{0}),
        get("Record", &hlxSelection::Record),
    };
    check_members(selection, of_selection);
    EXPECT_THAT(members_beside("_hlxSelection", of_selection), IsEmpty());
}

TEST_F(AdapterTest, PassServicesOn) {
    const auto messages = make<hlxMessage>();
    messages->answers["Show"] = std::int32_t{1};
    const std::vector of_message{
        method("Show", &hlxMessage::Show, unusual_text, std::int32_t{48}, std::string("Title"), Variant(two)),
    };
    check_members(messages, of_message);
    EXPECT_THAT(members_beside("_hlxMessage", of_message), IsEmpty());

    const auto help = make<hlxHelp>();
    help->answers["HelpFile"] = unusual_text;
    const std::vector of_help{get("HelpFile", &hlxHelp::HelpFile)};
    check_members(help, of_help);
    EXPECT_THAT(members_beside("_hlxHelp", of_help), IsEmpty());
}

TEST_F(AdapterTest, LeaveOutTheArgumentsOfAMessageThatAScriptLeavesOut) {
    const auto messages = make<hlxMessage>();
    messages->answers["Show"] = std::int32_t{2};
    const auto script_object = dispatch_of(messages);
    EXPECT_EQ(describe(invoke(script_object.get(), "Show", DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                              {std::string("text"), std::int32_t{1}, std::string("title")})),
              "long 2");
    EXPECT_THAT(messages->take_calls(), ElementsAre("Show (text text) (long 1) (text title) (Missing)"));
}

} // namespace

} // namespace brx::checks
