#include "sample/windows/objects_stage.h"
#include "sample/windows/picker_person.h"

#include "com/com_object.h"

namespace brx::checks {

namespace {

class SamplePicker : public ObjectsCheck {
protected:
    Variant database() { return get(get_object(host.get(), "Application").get(), "Database"); }
    /// Shows the picker to a person who takes these steps; what Show returns.
    Variant show(std::vector<PickerPerson::Step> steps, std::int32_t id = 0, std::int32_t group = 0) {
        const PickerPerson somebody(std::move(steps));
        return call(picker.get(), "Show", {database(), id, group});
    }
    Variant picked(const std::string& field) {
        const auto record = get_object(picker.get(), "Record");
        return record ? get(record.get(), field) : Variant(Null{});
    }

    com_ptr<IDispatch> picker = create_by_name(L"brxDatabase6.hlxTestSelection");
};

TEST_F(SamplePicker, BeginsWithTheCurrentChoiceAndEnterTakesIt) {
    const Variant taken =
        show({[](const PickerPerson& she) {
                  EXPECT_EQ(she.title(), L"Select Characteristic");
                  EXPECT_EQ(she.label(), "&Characteristics:");
                  EXPECT_EQ(she.reads(L"lstGroups"), "Capping, [Filling], Labelling, Machining");
                  EXPECT_EQ(she.reads(L"lstRecords"),
                            "Fill temperature, [Fill volume], Fill weight, Filler speed");
                  EXPECT_TRUE(she.can_press(L"bnOK"));
                  EXPECT_TRUE(she.has_focus(L"lstRecords"));
                  she.hit(VK_DOWN);
              },
              [](const PickerPerson& she) { she.hit(VK_RETURN); }},
             102);
    EXPECT_EQ(taken, Variant(true));
    EXPECT_EQ(picked("ID"), Variant(std::int32_t{101}));
    EXPECT_EQ(picked("Name"), Variant(std::string("Fill weight")));
    EXPECT_EQ(picked("GroupID"), Variant(std::int32_t{1}));
}

TEST_F(SamplePicker, WithoutAChoiceItBeginsWithTheFirstGroupAndOkWaits) {
    const Variant taken =
        show({[](const PickerPerson& she) {
                  EXPECT_EQ(she.reads(L"lstGroups"), "[Capping], Filling, Labelling, Machining");
                  EXPECT_EQ(she.reads(L"lstRecords"), "Cap height, Cap torque, Caps left");
                  EXPECT_FALSE(she.can_press(L"bnOK"));
                  EXPECT_TRUE(she.has_focus(L"lstGroups"));
                  she.hit(VK_RETURN);
              },
              [](const PickerPerson& she) { she.hit(VK_END); },
              [](const PickerPerson& she) {
                  EXPECT_EQ(she.reads(L"lstRecords"), "Bore diameter, Roundness, Shaft length");
                  EXPECT_FALSE(she.can_press(L"bnOK"));
                  she.hit(VK_TAB);
              },
              [](const PickerPerson& she) { she.hit(VK_DOWN); },
              [](const PickerPerson& she) {
                  EXPECT_TRUE(she.can_press(L"bnOK"));
                  she.press(L"bnOK");
              }});
    EXPECT_EQ(taken, Variant(true));
    EXPECT_EQ(picked("Name"), Variant(std::string("Bore diameter")));
}

TEST_F(SamplePicker, ADoubleClickTakesARecordAtOnce) {
    EXPECT_EQ(show({[](const PickerPerson& she) { she.click_line(L"lstGroups", 2); },
                    [](const PickerPerson& she) { she.click_line(L"lstRecords", 1, true); }}),
              Variant(true));
    EXPECT_EQ(picked("Name"), Variant(std::string("Label price")));
}

TEST_F(SamplePicker, AGroupByItselfIsBegunWith) {
    EXPECT_EQ(show({[](const PickerPerson& she) {
                       EXPECT_EQ(she.reads(L"lstGroups"), "Capping, Filling, [Labelling], Machining");
                       EXPECT_FALSE(she.can_press(L"bnOK"));
                       she.press(L"bnCancel");
                   }},
                   0, 3),
              Variant(false));
}

TEST_F(SamplePicker, EscapePicksNothing) {
    EXPECT_EQ(show({[](const PickerPerson& she) { she.hit(VK_ESCAPE); }}, 102), Variant(false));
    EXPECT_EQ(get(picker.get(), "Record"), Variant(ObjectPtr()));
}

TEST_F(SamplePicker, ThereIsOneForEveryKind) {
    struct Kind {
        const wchar_t* name;
        const wchar_t* title;
        const char* records;
    };
    for (const Kind& kind :
         {Kind{L"brxDatabase6.hlxPartSelection", L"Select Part",
               "[Bottle 0.5 l], Bottle 0.75 l, Bottle 1.0 l"},
          Kind{L"brxDatabase6.hlxProcessSelection", L"Select Process", "Capping, Filling, Labelling"},
          Kind{L"brxDatabase6.hlxJobSelection", L"Select Job", "Order 20417, Order 20418, Order 20431"},
          Kind{L"brxDatabase6.hlxShiftSelection", L"Select Shift", "Early shift, Late shift, Night shift"},
          Kind{L"brxDatabase6.hlxDescriptorSelection", L"Select Descriptor",
               "Material changed, Tool worn"}}) {
        picker = create_by_name(kind.name);
        show({[&](const PickerPerson& she) {
                 EXPECT_EQ(she.title(), kind.title);
                 EXPECT_EQ(she.reads(L"lstRecords"), kind.records);
                 she.press(L"bnCancel");
             }},
             201);
    }
}

} // namespace

} // namespace brx::checks
