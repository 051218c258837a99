#include "com/bstr.h"
#include "com/describe.h"
#include "com/failure.h"
#include "com/opc_doubles.h"
#include "com/owned_variant.h"
#include "com/round_trip.h"
#include "com/safe_array.h"
#include "win32/counted.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>

namespace brx::checks {

namespace {

class Thing final : public Counted<IUnknown> {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        *object = iid == __uuidof(IUnknown) ? this : nullptr;
        if (*object) AddRef();
        return *object ? S_OK : E_NOINTERFACE;
    }
};

ULONG references(const com_ptr<IUnknown>& object) {
    object->AddRef();
    return object->Release();
}

class OwnersTest : public AdapterTest {};

TEST_F(OwnersTest, CountReferences) {
    com_ptr<IUnknown> first = make_com<Thing>();
    EXPECT_EQ(references(first), 1u);
    com_ptr<IUnknown> second = first;
    EXPECT_EQ(references(first), 2u);
    com_ptr<IUnknown> third = std::move(second);
    EXPECT_EQ(references(first), 2u);
    EXPECT_FALSE(second);
    third = first;
    EXPECT_EQ(references(first), 2u);
    third = nullptr;
    EXPECT_EQ(references(first), 1u);
    EXPECT_TRUE(first.as<IUnknown>());
    EXPECT_FALSE(first.as<IDispatch>());
    EXPECT_EQ(references(first), 1u);

    const auto kept = com_ptr<IUnknown>::adopt(com_ptr<IUnknown>(first).detach());
    EXPECT_EQ(references(first), 2u);
    EXPECT_EQ(*first.out(), nullptr);
    EXPECT_EQ(references(kept), 1u);
}

TEST_F(OwnersTest, KeepEveryText) {
    EXPECT_EQ(Bstr(unusual_text).text(), unusual_text);
    EXPECT_EQ(Bstr("").text(), "");
    EXPECT_NE(Bstr("").get(), nullptr);
    EXPECT_EQ(Bstr().text(), "");
    EXPECT_EQ(SysStringLen(Bstr("\xF0\x9F\x98\x80").get()), 2u);
    for (wchar_t half = 0xD7FF; half <= 0xE000; ++half) {
        const std::wstring characters = {L'a', half, L'b'};
        EXPECT_EQ(wide(text_of(characters.data(), characters.size())), characters);
    }
    Bstr given("given");
    Bstr taken = std::move(given);
    EXPECT_EQ(given.get(), nullptr);
    EXPECT_EQ(taken.text(), "given");
}

TEST_F(OwnersTest, KeepArraysWithTheirBounds) {
    for (const std::int32_t lower_bound : {-3, 0, 1, 7}) {
        const StringArray texts{{"a", unusual_text, ""}, lower_bound};
        EXPECT_EQ(string_array(OwnedSafeArray(texts).get()), texts);
        const LongArray longs{{-2147483647, 0, 2147483647}, lower_bound};
        EXPECT_EQ(long_array(OwnedSafeArray(longs).get()), longs);
        const ShortArray shorts{{-32768, 0, 32767}, lower_bound};
        EXPECT_EQ(short_array(OwnedSafeArray(shorts).get()), shorts);
        const StringArray none{{}, lower_bound};
        EXPECT_EQ(string_array(OwnedSafeArray(none).get()), none);
    }
}

TEST_F(OwnersTest, RefuseArraysOfOtherElements) {
    const OwnedSafeArray longs(LongArray{{1}, 1});
    EXPECT_THROW(string_array(longs.get()), Error);
    EXPECT_THROW(short_array(longs.get()), Error);
    EXPECT_THROW(long_array(nullptr), Error);
    SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
    SAFEARRAY* const table = SafeArrayCreate(VT_I4, 2, bounds);
    EXPECT_THROW(long_array(table), Error);
    SafeArrayDestroy(table);
}

/// There and back as a value of the model, which describes itself with its type.
Variant round_trip(const Variant& value) {
    const OwnedVariant sent(value);
    EXPECT_EQ(V_VT(&sent.get()), vartype(value));
    return value_of(sent.get());
}

TEST_F(OwnersTest, KeepVariantsOfEveryKind) {
    const auto group = make<OPCGroup>();
    group->answers["Name"] = std::string("Line 3");
    const Variant values[] = {Empty{},
                              Null{},
                              Missing{},
                              std::int16_t{-32768},
                              std::int32_t{2147483647},
                              0.1f,
                              std::numeric_limits<float>::denorm_min(),
                              -1.0 / 3.0,
                              std::numeric_limits<double>::infinity(),
                              Currency{std::numeric_limits<std::int64_t>::min()},
                              Date{-657434.0},
                              Date{46000.123456789},
                              std::string(),
                              unusual_text,
                              ObjectPtr(),
                              ObjectPtr(group),
                              true,
                              false,
                              StringArray{{"a", unusual_text}, 0},
                              StringArray{{}, 1}};
    for (const Variant& value : values) EXPECT_EQ(describe(round_trip(value)), describe(value));
}

/// A variant of a kind that the model does not know, there and back.
void expect_unchanged(VARIANT original, const std::string& text) {
    const Variant value = value_of(original);
    EXPECT_EQ(describe(value), "opaque " + std::to_string(V_VT(&original)) + " " + text);
    const OwnedVariant back(value);
    EXPECT_EQ(V_VT(&back.get()), V_VT(&original));
    if (!V_ISARRAY(&original)) {
        EXPECT_EQ(V_UI8(&back.get()), V_UI8(&original));
    }
    VariantClear(&original);
}

template <class Number> VARIANT plain(VARTYPE type, Number number) {
    VARIANT variant{};
    V_VT(&variant) = type;
    std::memcpy(&V_UI8(&variant), &number, sizeof(number));
    return variant;
}

TEST_F(OwnersTest, KeepVariantsOfUnknownKinds) {
    expect_unchanged(plain(VT_I1, std::int8_t{-5}), "-5");
    expect_unchanged(plain(VT_UI1, std::uint8_t{200}), "200");
    expect_unchanged(plain(VT_UI2, std::uint16_t{65535}), "65535");
    expect_unchanged(plain(VT_UI4, std::uint32_t{4294967295u}), "4294967295");
    expect_unchanged(plain(VT_I8, std::int64_t{-5000000000}), "-5000000000");
    expect_unchanged(plain(VT_UI8, std::uint64_t{18446744073709551615u}), "18446744073709551615");
    expect_unchanged(plain(VT_INT, std::int32_t{-7}), "-7");
    expect_unchanged(plain(VT_UINT, std::uint32_t{7}), "7");
    expect_unchanged(plain(VT_ERROR, std::int32_t{DISP_E_OVERFLOW}), "without text");

    VARIANT decimal{};
    VarDecFromI4(-12, &V_DECIMAL(&decimal));
    V_VT(&decimal) = VT_DECIMAL;
    expect_unchanged(decimal, "-12");

    const com_ptr<IUnknown> thing = make_com<Thing>();
    VARIANT unknown{};
    V_UNKNOWN(&unknown) = com_ptr<IUnknown>(thing).detach();
    V_VT(&unknown) = VT_UNKNOWN;
    expect_unchanged(unknown, "without text");
    EXPECT_EQ(references(thing), 1u);
}

/// What the user chose in his regional settings, until the end.
class UserSetting {
public:
    UserSetting(LCTYPE kind, const wchar_t* value) : kind_(kind) {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, kind_, before_.data(), static_cast<int>(before_.size()));
        SetLocaleInfoW(LOCALE_USER_DEFAULT, kind_, value);
    }
    ~UserSetting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, kind_, before_.data()); }
    UserSetting(const UserSetting&) = delete;
    UserSetting& operator=(const UserSetting&) = delete;

private:
    LCTYPE kind_;
    std::array<wchar_t, 16> before_{};
};

TEST_F(OwnersTest, TellVariantsOfUnknownKindsAsTheUserWritesThem) {
    const UserSetting decimal_comma(LOCALE_SDECIMAL, L",");
    VARIANT decimal{};
    VarDecFromR8(-1.5, &V_DECIMAL(&decimal));
    V_VT(&decimal) = VT_DECIMAL;
    expect_unchanged(decimal, "-1,5");
    expect_unchanged(plain(VT_UI1, std::uint8_t{200}), "200");
}

TEST_F(OwnersTest, KeepForeignArrays) {
    VARIANT array{};
    V_ARRAY(&array) = OwnedSafeArray(LongArray{{5, 6}, 3}).detach();
    V_VT(&array) = VT_ARRAY | VT_I4;
    const Variant value = value_of(array);
    VariantClear(&array);
    const OwnedVariant back(value);
    EXPECT_EQ(long_array(V_ARRAY(&back.get())), (LongArray{{5, 6}, 3}));

    SAFEARRAYBOUND bounds[] = {{2, 0}, {3, 1}};
    VARIANT table{};
    V_ARRAY(&table) = SafeArrayCreate(VT_BSTR, 2, bounds);
    V_VT(&table) = VT_ARRAY | VT_BSTR;
    expect_unchanged(table, "without text");
}

TEST_F(OwnersTest, FollowReferences) {
    LONG number = 42;
    VARIANT to_number{};
    V_VT(&to_number) = VT_BYREF | VT_I4;
    V_I4REF(&to_number) = &number;
    EXPECT_EQ(describe(value_of(to_number)), "long 42");
    VARIANT to_variant{};
    V_VT(&to_variant) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&to_variant) = &to_number;
    EXPECT_EQ(describe(value_of(to_variant)), "long 42");

    Bstr text(unusual_text);
    BSTR characters = text.get();
    VARIANT to_text{};
    V_VT(&to_text) = VT_BYREF | VT_BSTR;
    V_BSTRREF(&to_text) = &characters;
    EXPECT_EQ(describe(value_of(to_text)), "text " + unusual_text);
}

TEST_F(OwnersTest, GiveVariantsAway) {
    OwnedVariant owner(Variant(std::string("text")));
    VARIANT taken = owner.detach();
    EXPECT_EQ(V_VT(&owner.get()), VT_EMPTY);
    EXPECT_EQ(describe(value_of(taken)), "text text");
    VariantClear(&taken);
    OwnedVariant moved(Variant(std::string("first")));
    moved = OwnedVariant(Variant(std::int32_t{2}));
    EXPECT_EQ(describe(value_of(moved.get())), "long 2");
    EXPECT_EQ(V_VT(moved.out()), VT_EMPTY);
}

} // namespace

} // namespace brx::checks
