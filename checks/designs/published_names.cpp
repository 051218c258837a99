#include "common/common_tools.h"
#include "common/model/factory.h"
#include "common/trap.h"
#include "configuration/descriptor_types.h"
#include "forms/engine.h"
#include "tests/operators.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

// What a host relies on by name or number, spelt out a second time.

using namespace brx;

TEST(PublishedNames, OfTheHostsClassesStay) {
    EXPECT_STREQ(class_name::hlxOPCServer, "brxOpcAuto6.hlxOPCServer");
    EXPECT_STREQ(class_name::hlxMessage, "brxOpcAuto6.hlxMessage");
    EXPECT_STREQ(class_name::hlxHelp, "brxOpcAuto6.hlxHelp");
    EXPECT_STREQ(class_name::hlxTestGroup, "brxDatabase6.hlxTestGroup");
    EXPECT_STREQ(class_name::hlxPart, "brxDatabase6.hlxPart");
    EXPECT_STREQ(class_name::hlxPartGroup, "brxDatabase6.hlxPartGroup");
    EXPECT_STREQ(class_name::hlxProcess, "brxDatabase6.hlxProcess");
    EXPECT_STREQ(class_name::hlxProcessGroup, "brxDatabase6.hlxProcessGroup");
    EXPECT_STREQ(class_name::hlxJob, "brxDatabase6.hlxJob");
    EXPECT_STREQ(class_name::hlxJobGroup, "brxDatabase6.hlxJobGroup");
    EXPECT_STREQ(class_name::hlxShift, "brxDatabase6.hlxShift");
    EXPECT_STREQ(class_name::hlxShiftGroup, "brxDatabase6.hlxShiftGroup");
    EXPECT_STREQ(class_name::hlxDescriptor, "brxDatabase6.hlxDescriptor");
    EXPECT_STREQ(class_name::hlxDescriptorGroup, "brxDatabase6.hlxDescriptorGroup");
    EXPECT_STREQ(class_name::hlxTestSelection, "brxDatabase6.hlxTestSelection");
    EXPECT_STREQ(class_name::hlxPartSelection, "brxDatabase6.hlxPartSelection");
    EXPECT_STREQ(class_name::hlxProcessSelection, "brxDatabase6.hlxProcessSelection");
    EXPECT_STREQ(class_name::hlxJobSelection, "brxDatabase6.hlxJobSelection");
    EXPECT_STREQ(class_name::hlxShiftSelection, "brxDatabase6.hlxShiftSelection");
    EXPECT_STREQ(class_name::hlxDescriptorSelection, "brxDatabase6.hlxDescriptorSelection");
}

TEST(PublishedNumbers, OfErrorsHaveTheirTexts) {
    const std::map<std::int32_t, std::string> texts = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {7, "Out of memory"},
        {9, "Subscript out of range"},
        {13, "Type mismatch"},
        {51, "Internal error"},
        {91, "Object variable or With block variable not set"},
        {94, "Invalid use of Null"},
        {429, "ActiveX component can't create object"},
        {457, "This key is already associated with an element of this collection"},
        {35600, "Index out of bounds"},
        {35601, "Element not found"},
        {35602, "Key is not unique in collection"}};
    for (std::int32_t number = 0; number < 36000; ++number) {
        const auto text = texts.find(number);
        if (text == texts.end())
            ASSERT_EQ(error_text(number), "Application-defined or object-defined error") << number;
        else
            ASSERT_EQ(error_text(number), text->second) << number;
    }
}

TEST(PublishedNumbers, OfErrorsStay) {
    EXPECT_EQ((std::vector<std::int32_t>{
                  error::invalid_procedure_call, error::overflow, error::out_of_memory,
                  error::subscript_out_of_range, error::type_mismatch, error::internal, error::object_not_set,
                  error::invalid_use_of_null, error::cannot_create_object, error::key_in_use,
                  error::index_out_of_bounds, error::element_not_found, error::key_not_unique}),
              (std::vector<std::int32_t>{5, 6, 7, 9, 13, 51, 91, 94, 429, 457, 35600, 35601, 35602}));
}

TEST(PublishedNumbers, OfMessageBoxesAreTheSystems) {
    EXPECT_EQ(
        (std::vector<std::int32_t>{message::ok_cancel, message::critical, message::question,
                                   message::exclamation, message::information, message::ok, message::cancel}),
        (std::vector<std::int32_t>{1, 16, 32, 48, 64, 1, 2}));
}

TEST(PublishedNumbers, OfDescriptorTypesHaveTheirNames) {
    const std::vector<std::string> names = {"Part",
                                            "Process",
                                            "Job",
                                            "Lot",
                                            "Shift",
                                            "User Defined (Subgroup)",
                                            "User Defined (Piece)",
                                            "Serial Number",
                                            "Subgroup Comment"};
    using namespace descriptor_type;
    EXPECT_EQ((std::vector<std::int32_t>{part, process, job, lot, shift, user_defined_subgroup,
                                         user_defined_piece, serial_number, count}),
              (std::vector<std::int32_t>{0, 1, 2, 3, 4, 5, 6, 7, 9}));
    for (std::int32_t code = 0; code < 9; ++code)
        EXPECT_EQ(DescriptorTypeName(code), names[static_cast<std::size_t>(code)]);
    EXPECT_EQ(DescriptorTypeName(-1), "");
    EXPECT_EQ(DescriptorTypeName(9), "");
}

TEST(PublishedNumbers, OfItemTypesAreTheAutomations) {
    using namespace data_type;
    EXPECT_EQ((std::vector<std::int32_t>{unread, int16, int32, single, real, boolean, data_type::variant}),
              (std::vector<std::int32_t>{-1, 2, 3, 4, 5, 11, 12}));
}

TEST(PublishedNumbers, OfOperatorsHaveTheirTexts) {
    const std::vector<std::string> texts = {"", " = ", " > ", " >= ", " < ", " <= ", " <> "};
    for (int code = 0; code < 7; ++code)
        EXPECT_EQ(operator_text(code), texts[static_cast<std::size_t>(code)]);
    EXPECT_EQ(operator_text(-1), "");
    EXPECT_EQ(operator_text(7), "");
    EXPECT_EQ(trigger_operator::always, 0);
    EXPECT_EQ(trigger_operator::equal, 1);
}
