#include "com/bstr.h"
#include "com/failure.h"
#include "com/opc_doubles.h"
#include "com/owned_variant.h"
#include "com/round_trip.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>
#include <vector>

// Servers told in an array of variants.

namespace brx::checks {

namespace {

/// An array of variants, as scripts make them.
OwnedSafeArray array_of_variants(const std::vector<Variant>& values, LONG lower_bound) {
    OwnedSafeArray array;
    *array.out() = SafeArrayCreateVector(VT_VARIANT, lower_bound, static_cast<ULONG>(values.size()));
    for (const Variant& value : values) {
        const OwnedVariant element(value);
        check(SafeArrayPutElement(array.get(), &lower_bound, const_cast<VARIANT*>(&element.get())));
        ++lower_bound;
    }
    return array;
}

OPCServerPtr through_com(const std::shared_ptr<DoubleOf<OPCServer>>& original) {
    return from_com<OPCServer>(to_com<OPCServer>(original));
}

TEST_F(AdapterTest, TakeTextsInVariantsForAnEnumeration) {
    const auto server = make<OPCServer>();
    const auto enumerated = [&](const std::vector<Variant>& values, LONG lower_bound) {
        const OwnedVariant answer(array_of_variants(values, lower_bound));
        server->answers["GetOPCServers"] = value_of(answer.get());
        EXPECT_FALSE(std::holds_alternative<StringArray>(server->answers["GetOPCServers"]));
        return through_com(server)->GetOPCServers("PC7");
    };
    const Variant sim = std::string("Sim.1");
    EXPECT_EQ(describe(enumerated({sim, unusual_text}, 1)),
              describe(Variant(StringArray{{"Sim.1", unusual_text}, 1})));
    EXPECT_EQ(describe(enumerated({sim}, 0)), describe(Variant(StringArray{{"Sim.1"}, 0})));
    EXPECT_EQ(describe(enumerated({}, 0)), describe(Variant(StringArray{{}, 0})));
    for (const Variant& other :
         {Variant(std::int32_t{2}), Variant(Empty{}), Variant(StringArray{{"Sim.1"}, 1})})
        EXPECT_TRUE(std::holds_alternative<Opaque>(enumerated({sim, other}, 1))) << describe(other);
}

TEST_F(AdapterTest, TakeOnlyArraysOfOneDimensionForAnEnumeration) {
    std::array<SAFEARRAYBOUND, 2> bounds{{{1, 1}, {1, 1}}};
    OwnedSafeArray square;
    *square.out() = SafeArrayCreate(VT_VARIANT, 2, bounds.data());
    const auto server = make<OPCServer>();
    server->answers["GetOPCServers"] = value_of(OwnedVariant(std::move(square)).get());
    EXPECT_TRUE(std::holds_alternative<Opaque>(through_com(server)->GetOPCServers("PC7")));
}

} // namespace

} // namespace brx::checks
