#include "tour/visit.h"

// She says what is kept beside the values of her configuration.

namespace tour {

void Visit::add_descriptors() {
    guide_.step(
        "On the third tab, \"Add...\" asks what is to be kept beside the values.", "descriptor-type",
        [&] {
            turn_to(3, L"lvwDescriptors");
            press(L"bnAddDesc");
        },
        L"the kinds of descriptor",
        [&] { return at(L"dlgDescriptorType") && lines(L"List1").size() == 9 && can_press(L"bnOK"); });
    guide_.step(
        "The part comes from the database, through the host's own list of parts.", "part-picker",
        [&] {
            add_descriptor(L"Part");
            press(L"bnSelect");
            program_.wait_until(L"the parts", [&] { return at(L"frmPicker"); });
            click_on(L"lstRecords", L"Bottle 0.75 l");
        },
        L"the part", [&] { return text_of(program_.front()) == L"Select Part" && can_press(L"bnOK"); });
    guide_.step(
        "Its name and that of its group are filled in.", "descriptor-properties", [&] { press(L"bnOK"); },
        L"the part's names",
        [&] {
            return at(L"dlgDescriptorProperties") && reads(L"txtGroup") == L"Bottles" &&
                   reads(L"txtItem") == L"Bottle 0.75 l" && can_press(L"bnOK");
        });
    guide_.step(
        "The serial number is read from an item, and has no group.", "serial-number",
        [&] {
            press(L"bnOK");
            program_.wait_until(L"the configuration", [&] { return at(L"dlgConfiguration"); });
            press(L"bnAddDesc");
            program_.wait_until(L"the kinds of descriptor", [&] { return at(L"dlgDescriptorType"); });
            add_descriptor(L"Serial Number");
            press(L"bnItem");
            program_.wait_until(L"the items", [&] { return at(L"dlgItemSelect"); });
            click_on(L"lstItem", L"Total", true);
        },
        L"the reference",
        [&] {
            return at(L"dlgDescriptorProperties") && reads(L"txtItem") == L"(%Total)" &&
                   !IsWindowEnabled(program_.control(L"txtGroup"));
        });
    guide_.step(
        "A label of her own follows an item.", "label",
        [&] {
            press(L"bnOK");
            program_.wait_until(L"the configuration", [&] { return at(L"dlgConfiguration"); });
            press(L"bnAddDesc");
            program_.wait_until(L"the kinds of descriptor", [&] { return at(L"dlgDescriptorType"); });
            add_descriptor(L"User Defined (Subgroup)");
            fill_in(L"txtGroup", L"Remarks");
            press(L"bnItem");
            program_.wait_until(L"the items", [&] { return at(L"dlgItemSelect"); });
            click_on(L"lstItem", L"TT-301", true);
        },
        L"the reference", [&] { return reads(L"txtItem") == L"(%TT-301)" && can_press(L"bnOK"); });
    guide_.step(
        "All three are listed.", "configuration-descriptors", [&] { press(L"bnOK"); }, L"the descriptors",
        [&] { return descriptors_are_filled_in(); });
}

/// In the dialog of kinds; then that of the new descriptor is in front.
void Visit::add_descriptor(const std::wstring& type) const {
    click_on(L"List1", type, true);
    program_.wait_until(L"the properties of " + type, [&] {
        return at(L"dlgDescriptorProperties") &&
               text_of(program_.front()) == L"Descriptor Properties - " + type;
    });
}

bool Visit::descriptors_are_filled_in() const {
    return at(L"dlgConfiguration") && is_visible(L"lvwDescriptors") &&
           rows_of(program_.control(L"lvwDescriptors")) == 3 &&
           cells(L"lvwDescriptors", 0, 3) == Lines{L"Part", L"Bottles", L"Bottle 0.75 l"} &&
           cells(L"lvwDescriptors", 1, 3) == Lines{L"Serial Number", L"", L"(%Total)"} &&
           cells(L"lvwDescriptors", 2, 3) == Lines{L"User Defined (Subgroup)", L"Remarks", L"(%TT-301)"};
}

} // namespace tour
