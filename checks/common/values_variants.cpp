#include "common/values_support.h"

#include "common/model/object.h"

#include <limits>

namespace brx {
namespace {

class Thing final : public Object {};

const Variant empty = Empty{};
const Variant null = Null{};
const Variant missing = Missing{};
const Variant nothing = ObjectPtr();
const Variant array = StringArray{{"1"}};

Variant object() { return ObjectPtr(std::make_shared<Thing>()); }
Variant text(const char* characters) { return std::string(characters); }
Variant byte_number() { return Opaque{17, nullptr, "200"}; }
Variant foreign_array() { return Opaque{0x2005, nullptr}; }

TEST(Vartype, NamesEveryKind) {
    EXPECT_EQ(0, vartype(empty));
    EXPECT_EQ(1, vartype(null));
    EXPECT_EQ(2, vartype(std::int16_t{1}));
    EXPECT_EQ(3, vartype(std::int32_t{1}));
    EXPECT_EQ(4, vartype(1.0F));
    EXPECT_EQ(5, vartype(1.0));
    EXPECT_EQ(6, vartype(Currency{1}));
    EXPECT_EQ(7, vartype(Date{1}));
    EXPECT_EQ(8, vartype(text("")));
    EXPECT_EQ(9, vartype(nothing));
    EXPECT_EQ(10, vartype(missing));
    EXPECT_EQ(11, vartype(true));
    EXPECT_EQ(0x2008, vartype(array));
    EXPECT_EQ(17, vartype(byte_number()));
}

TEST(Variants, BeginWithZero) {
    EXPECT_EQ(0, Date{}.days);
    EXPECT_EQ(0, Currency{}.ten_thousandths);
}

TEST(Array, HasTheElementsFromItsLowerToItsUpperBound) {
    const LongArray usual{{7, 8}};
    EXPECT_EQ(1, usual.lower_bound);
    EXPECT_EQ(2, usual.upper_bound());
    const LongArray other{{7, 8}, -3};
    EXPECT_EQ(-2, other.upper_bound());
    EXPECT_EQ(7, other.at(-3));
    EXPECT_EQ(8, other.at(-2));
    EXPECT_ERROR(9, other.at(-4));
    EXPECT_ERROR(9, other.at(-1));
    EXPECT_EQ(0, (LongArray{{}, 1}.upper_bound()));
}

TEST(IsNumericOfAVariant, IsTrueForNumbersBooleansAndEmpty) {
    const Variant numeric[] = {empty,
                               std::int16_t{1},
                               std::int32_t{1},
                               1.0F,
                               1.0,
                               Currency{1},
                               true,
                               text("1.5"),
                               byte_number(),
                               Opaque{14, nullptr, "1"},
                               Opaque{16, nullptr, "1"},
                               Opaque{23, nullptr, "1"}};
    for (const Variant& value : numeric) EXPECT_TRUE(is_numeric(value, us)) << vartype(value);
    const Variant other[] = {null,
                             missing,
                             nothing,
                             object(),
                             array,
                             Date{1},
                             text(""),
                             text("x"),
                             foreign_array(),
                             Opaque{36, nullptr, "1"},
                             Opaque{15, nullptr, "1"},
                             Opaque{24, nullptr, "1"}};
    for (const Variant& value : other) EXPECT_FALSE(is_numeric(value, us)) << vartype(value);
}

TEST(Conversions, TakeEmptyForZero) {
    EXPECT_EQ(0, to_int16(empty, us));
    EXPECT_EQ(0, to_int32(empty, us));
    EXPECT_EQ(0, to_single(empty, us));
    EXPECT_EQ(0, to_double(empty, us));
    EXPECT_FALSE(to_boolean(empty, us));
    EXPECT_EQ(0, to_date(empty, us).days);
    EXPECT_EQ("", to_text(empty, us));
}

/// The same error from each of the conversions.
void expect_errors(std::int32_t number, const Variant& value) {
    EXPECT_ERROR(number, to_int16(value, us));
    EXPECT_ERROR(number, to_int32(value, us));
    EXPECT_ERROR(number, to_single(value, us));
    EXPECT_ERROR(number, to_double(value, us));
    EXPECT_ERROR(number, to_boolean(value, us));
    EXPECT_ERROR(number, to_date(value, us));
    EXPECT_ERROR(number, to_text(value, us));
}

TEST(Conversions, RefuseWhatHasNoValue) {
    expect_errors(94, null);
    expect_errors(91, nothing);
    expect_errors(13, object());
    expect_errors(13, missing);
    expect_errors(13, array);
    expect_errors(13, foreign_array());
}

TEST(Conversions, TakeTextsByTheLocale) {
    EXPECT_EQ(2, to_int16(text("2.5"), us));
    EXPECT_EQ(25, to_int16(text("2.5"), de));
    EXPECT_EQ(2.5, to_double(text("2,5"), de));
    EXPECT_EQ(0.1F, to_single(text("0,1"), de));
    EXPECT_TRUE(to_boolean(text("Wahr"), de));
    EXPECT_EQ(46024, to_date(text("2.1.2026"), de).days);
    EXPECT_ERROR(13, to_int32(text(""), us));
    EXPECT_EQ("2,5", to_text(text("2,5"), us));
}

TEST(Conversions, TakeNumbersOfEveryKind) {
    EXPECT_EQ(-1, to_int16(Variant(true), us));
    EXPECT_EQ(0, to_int32(Variant(false), us));
    EXPECT_EQ(2, to_int16(Variant(2.5F), us));
    EXPECT_EQ(4, to_int32(Variant(3.5), us));
    EXPECT_EQ(2, to_int32(Variant(Currency{25000}), us));
    EXPECT_EQ(1.0E-4, to_double(Variant(Currency{1}), us));
    EXPECT_EQ(36526.25, to_double(Variant(Date{36526.25}), us));
    EXPECT_EQ(36526, to_int32(Variant(Date{36526.25}), us));
    EXPECT_EQ(200, to_int16(byte_number(), us));
    EXPECT_EQ("200", to_text(byte_number(), us));
    EXPECT_TRUE(to_boolean(Variant(0.1), us));
    EXPECT_FALSE(to_boolean(Variant(Currency{0}), us));
    EXPECT_EQ(2.0, to_date(Variant(std::int32_t{2}), us).days);
}

TEST(Conversions, OverflowAtTheLimits) {
    EXPECT_EQ(32767, to_int16(Variant(std::int32_t{32767}), us));
    EXPECT_ERROR(6, to_int16(Variant(std::int32_t{32768}), us));
    EXPECT_EQ(-32768, to_int16(Variant(std::int32_t{-32768}), us));
    EXPECT_ERROR(6, to_int16(Variant(std::int32_t{-32769}), us));
    EXPECT_ERROR(6, to_int32(Variant(2147483647.5), us));
    EXPECT_ERROR(6, to_single(Variant(1e39), us));
    EXPECT_ERROR(6, to_date(Variant(2958466.0), us));
    EXPECT_EQ(2958465.5, to_date(Variant(2958465.5), us).days);
    EXPECT_ERROR(6, to_date(Variant(-657435.0), us));
}

} // namespace
} // namespace brx
