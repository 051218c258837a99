#include "window/host_model.h"

#include <array>

// What the window shows of the collection configurations, and does to them.

namespace sample {

namespace {

constexpr long item_not_added = 2; ///< a test's state

std::wstring text_of(const VARIANT& value) {
    VARIANT text{};
    if (FAILED(VariantChangeType(&text, const_cast<VARIANT*>(&value), VARIANT_LOCALBOOL, VT_BSTR))) return {};
    const std::wstring result(V_BSTR(&text), SysStringLen(V_BSTR(&text)));
    VariantClear(&text);
    return result;
}

std::wstring text_of(double number) {
    VARIANT value{};
    V_VT(&value) = VT_R8;
    V_R8(&value) = number;
    return text_of(value);
}

std::wstring saved_as(_hlxOPCTest& test) {
    static constexpr std::array texts = {L"Actual value", L"Absolute value", L"Reversed sign"};
    short code = 0;
    check(test.get_SaveAs(&code));
    if (code >= 0 && static_cast<std::size_t>(code) < texts.size())
        return texts[static_cast<std::size_t>(code)];
    double constant = 0;
    check(test.get_Constant(&constant));
    return L"Constant " + text_of(constant);
}

long tests_in(_hlxOPCConfiguration& configuration, Ref<_hlxOPCTests>& tests) {
    check(configuration.get_Tests(tests.out()));
    long count = 0;
    check(tests->get_Count(&count));
    return count;
}

Ref<_hlxOPCTest> item_of(_hlxOPCTests& tests, long number) {
    VARIANT index{};
    V_VT(&index) = VT_I4;
    V_I4(&index) = number;
    Ref<_hlxOPCTest> test;
    check(tests.get_Item(index, test.out()));
    return test;
}

} // namespace

Ref<_hlxOPCTest> HostModel::test(long position, long number, long test) const {
    Ref<_hlxOPCTests> tests;
    tests_in(*configuration(position, number).get(), tests);
    return item_of(*tests.get(), test);
}

long HostModel::configuration_count(long position) const {
    long count = 0;
    check(host_->get_ConfigurationCount(position, &count));
    return count;
}

Ref<_hlxOPCConfiguration> HostModel::configuration(long position, long number) const {
    Ref<IDispatch> object;
    check(host_->get_Configuration(position, number, object.out()));
    auto configuration = object.as<_hlxOPCConfiguration>();
    if (!configuration) check(E_NOINTERFACE);
    return configuration;
}

std::wstring HostModel::configuration_name(long position, long number) const {
    Text name;
    check(configuration(position, number)->get_Name(name.out()));
    return name.text();
}

std::vector<TableLine> HostModel::configurations(long position) const {
    std::vector<TableLine> lines;
    const long all = configuration_count(position);
    for (long number = 1; number <= all; ++number) {
        const auto each = configuration(position, number);
        Text name;
        VARIANT_BOOL active = VARIANT_FALSE;
        Ref<_hlxOPCTests> tests;
        check(each->get_Name(name.out()));
        check(each->get_Active(&active));
        std::wstring state = active != VARIANT_FALSE ? L"Active" : L"Not active";
        if (is_running(position, number)) state += L", running";
        lines.push_back({{name.text(), std::to_wstring(tests_in(*each.get(), tests)), state},
                         active != VARIANT_FALSE ? Tone::plain : Tone::pale});
    }
    return lines;
}

std::vector<TableLine> HostModel::tests(long position, long number) const {
    std::vector<TableLine> lines;
    Ref<_hlxOPCTests> tests;
    const auto around = configuration(position, number);
    const long all = tests_in(*around.get(), tests);
    for (long i = 1; i <= all; ++i) {
        const auto test = item_of(*tests.get(), i);
        Text name;
        Text item;
        Text trigger;
        Text value;
        Text trouble;
        long state = 0;
        check(test->get_CharacteristicName(name.out()));
        check(test->get_OPCItemID(item.out()));
        check(test->get_State(&state));
        check(host_->get_TriggerText(position, number, i, trigger.out()));
        check(host_->get_ItemTrouble(position, number, item.get(), trouble.out()));
        check(host_->get_ItemValue(position, number, item.get(), value.out()));
        const bool refused = state == item_not_added;
        const bool alarm = refused || !trouble.text().empty();
        lines.push_back({{name.text(), refused ? L"" : item.text(), saved_as(*test.get()), trigger.text(),
                          refused ? L"Item refused"
                          : alarm ? trouble.text()
                                  : value.text()},
                         alarm ? Tone::alarm : Tone::plain});
    }
    return lines;
}

long HostModel::add_configuration(long position) {
    Ref<IDispatch> added;
    check(host_->AddConfiguration(position, added.out()));
    return configuration_count(position);
}

void HostModel::remove_configuration(long position, long number) {
    check(host_->RemoveConfiguration(position, number));
}

SettingsKept HostModel::kept_settings(long position, long number) const {
    SettingsKept kept = NoSettings;
    check(host_->get_KeptSettings(position, number, &kept));
    return kept;
}

bool HostModel::settle_configuration(long position, long number) {
    VARIANT_BOOL still_there = VARIANT_FALSE;
    check(host_->SettleConfiguration(position, number, &still_there));
    return still_there != VARIANT_FALSE;
}

} // namespace sample
