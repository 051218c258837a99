#include "host/holdings.h"

#include "common/values/convert.h"
#include "host/fake_host.h"

#include <array>
#include <cstdio>

namespace brx::checks {

namespace {

std::string told(const std::string& text) { return "\"" + text + "\""; }
std::string told(bool value) { return value ? "true" : "false"; }
std::string told(std::int32_t value) { return std::to_string(value); }
std::string told(double value) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.17g", value);
    return text.data();
}
std::string told(const Variant& value) {
    std::string text = std::to_string(value.index());
    attempt([&] { text += ":" + to_text(value, Locale{}); });
    return text;
}

template <class... Values> std::string line(const char* what, const Values&... values) {
    std::string text = what;
    ((text += " " + told(values)), ...);
    return text;
}

Holding holding_of(const TestFields& its) {
    return {line("a test of", its.state, its.item_id, its.client_handle, its.item_trigger,
                 std::int32_t{its.expression}, its.value, its.constant, std::int32_t{its.save_as}),
            !its.item_id.empty() && its.item_trigger};
}

Holding holding_of(const DescriptorFields& its) {
    return {line("a descriptor of", its.type, its.item, its.group)};
}

} // namespace

std::map<const void*, Holding> holdings_of(const FakeHost& host) {
    std::map<const void*, Holding> all;
    for (const auto& entry : host.configuration->tests->entries)
        all.emplace(entry.get(), holding_of(entry->fields));
    for (const auto& entry : host.configuration->descriptors->entries)
        all.emplace(entry.get(), holding_of(entry->fields));
    return all;
}

std::string half_done(const std::map<const void*, Holding>& before,
                      const std::map<const void*, Holding>& now) {
    std::string all;
    for (const auto& [object, held] : before) {
        const auto found = now.find(object);
        if (held.goes_back && found != now.end() && found->second.text != held.text)
            all += held.text + " is " + found->second.text + "; ";
    }
    return all;
}

} // namespace brx::checks
