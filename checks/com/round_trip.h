#pragma once

#include "adapters/to_com.h"
#include "com/adapters/from_com.h"
#include "com/describe.h"
#include "com/doubles.h"
#include "com/late_bound.h"
#include "com/type_text.h"
#include "win32/module.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace brx::checks {

/// A number that the doubles can tell from the one that they have from the start.
inline constexpr std::int32_t two = 2;

/// Everything that text can hold.
inline constexpr char characters[] = "a\tb\0c\r\n Gr\xC3\xBC\xC3\x9F"
                                     "e \xE6\xBC\xA2 \xF0\x9F\x98\x80 half \xED\xA0\xBD";
inline const std::string unusual_text(characters, sizeof(characters) - 1);

/// A check of the adapters: at its end no object is left.
class AdapterTest : public testing::Test {
protected:
    AdapterTest() { OleInitialize(nullptr); }
    ~AdapterTest() override {
        EXPECT_EQ(ModuleLock::count(), locks_) << "COM objects are left";
        for (const auto& each : made_) EXPECT_TRUE(each.expired()) << "a double is still held";
        OleUninitialize();
    }

    template <class Model> std::shared_ptr<DoubleOf<Model>> make() {
        auto made = std::make_shared<DoubleOf<Model>>();
        made_.push_back(made);
        return made;
    }

private:
    std::vector<std::weak_ptr<Object>> made_;
    long locks_ = ModuleLock::count();
};

/// One member of an interface: its name and arguments for who calls by name, and the call through the model.
template <class Model> struct Member {
    WORD kind;
    std::string name;
    std::vector<Variant> arguments;
    std::function<Variant(Model&)> call;
};

template <class Value> Variant as_variant(const Value& value) {
    if constexpr (std::is_convertible_v<Value, ObjectPtr>)
        return ObjectPtr(value);
    else
        return value;
}

template <class Model, class Result, class... Parameters, class... Arguments>
Member<Model> member(WORD kind, const std::string& name, Result (Model::*call)(Parameters...),
                     const Arguments&... arguments) {
    return {kind, name, {as_variant(arguments)...}, [=](Model& model) -> Variant {
                if constexpr (std::is_void_v<Result>) {
                    (model.*call)(arguments...);
                    return Empty{};
                } else {
                    return as_variant((model.*call)(arguments...));
                }
            }};
}
template <class... Rest> auto get(const std::string& name, const Rest&... rest) {
    return member(DISPATCH_PROPERTYGET, name, rest...);
}
template <class... Rest> auto put(const std::string& name, const Rest&... rest) {
    return member(DISPATCH_PROPERTYPUT, name, rest...);
}
template <class... Rest> auto method(const std::string& name, const Rest&... rest) {
    return member(DISPATCH_METHOD, name, rest...);
}

/// Calls each member of a double directly, through both adapters, and by name: outcomes and what arrives must
/// be the same each time, failures included.
template <class Model>
void check_members(const std::shared_ptr<DoubleOf<Model>>& original,
                   const std::vector<Member<Model>>& members) {
    const Error failures[] = {
        Error(error::type_mismatch), Error(35601, "No such \xC3\xA9lement", "Host.Servers"),
        Error(-2147220991, "Refused", "Host"), Error(-1073479673, "Unknown item", "Server")};
    const auto through = from_com<Model>(to_com<Model>(original));
    const auto dispatch = dispatch_of(original);
    for (const auto& each : members) {
        SCOPED_TRACE(each.name);
        const auto compare = [&] {
            const auto expected = outcome([&] { return each.call(*original); });
            const auto expected_calls = original->take_calls();
            EXPECT_EQ(expected_calls.size(), 1u);
            EXPECT_EQ(outcome([&] { return each.call(*through); }), expected);
            EXPECT_EQ(original->take_calls(), expected_calls);
            EXPECT_EQ(outcome([&] { return invoke(dispatch.get(), each.name, each.kind, each.arguments); }),
                      expected);
            EXPECT_EQ(original->take_calls(), expected_calls);
        };
        compare();
        for (const Error& failure : failures) {
            original->failure = failure;
            compare();
        }
        original->failure.reset();
    }
}

/// The members of an interface that the type library knows and the list does not.
template <class Model>
std::set<std::string> members_beside(const std::string& interface_name,
                                     const std::vector<Member<Model>>& members) {
    std::set<std::string> names;
    std::istringstream lines(members_of(interface_name));
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with("kept free")) continue;
        const auto begin = line.find(' ') + 1;
        names.insert(line.substr(begin, line.find('(') - begin));
    }
    for (const auto& each : members)
        names.erase((each.kind == DISPATCH_PROPERTYGET   ? "get "
                     : each.kind == DISPATCH_PROPERTYPUT ? "put "
                                                         : "") +
                    each.name);
    return names;
}

} // namespace brx::checks
