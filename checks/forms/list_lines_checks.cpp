#include "forms/list_lines.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

using namespace std::string_literals;

#ifdef __SANITIZE_ADDRESS__
// The sanitizer's own heap tells it, and nothing else; its header is not everywhere.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace brx::checks {

namespace {

using Line = std::pair<std::string, std::int32_t>;

std::vector<Line> all(const ListLines& lines) {
    std::vector<Line> result;
    for (int i = 0; i < lines.count(); ++i) result.emplace_back(lines.text(i), lines.data(i));
    return result;
}

/// What the program has on its heap at this moment.
std::size_t allocated_bytes() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
#endif
}

std::string item_name(int number) { return "Plant.Line.Item" + std::to_string(1'000'000 + number); }

/// How many bytes a line of a long list takes besides its characters.
double overhead(int count, std::int32_t data_of_last) {
    const std::size_t before = allocated_bytes();
    ListLines lines;
    for (int i = 0; i < count; ++i) lines.insert(i, item_name(i), i + 1 == count ? data_of_last : 0);
    const std::size_t taken = allocated_bytes() - before;
    return static_cast<double>(taken) / count - static_cast<double>(item_name(0).size());
}

} // namespace

TEST(ListLines, ALineBehindOnesThatFillTheirRoomExactlyIsKeptToo) {
    ListLines lines;
    const std::string text = "1234567"; // and its length: 8 bytes, which fill all room that is ever asked for
    for (int i = 0; i < 24'512; ++i) lines.insert(i, text, 0);
    for (int i = 0; i < 10; ++i) lines.insert(lines.count(), i % 2 == 0 ? "" : "odd", 0);
    for (int i = 0; i < lines.count(); ++i) {
        const int behind = i - 24'512;
        ASSERT_EQ(lines.text(i), behind < 0 ? text : behind % 2 == 0 ? "" : "odd") << i;
    }
}

TEST(ListLines, KeepEveryTextExactly) {
    const std::vector<Line> expected = {
        {"", 0},
        {"plain", 0},
        {"with \0 in it\0"s, 0},
        {"Ärger 漢字 \U0001F600", 0},
        {"lone \xED\xA0\x80 surrogate", 0},
        {std::string(254, 'a'), 0},
        {std::string(255, 'b'), 0},
        {std::string(256, 'c'), 0},
        {std::string(70'000, 'd') + "\0end"s, 0},
        {std::string(300'000, 'e'), 0},
        {"after the long ones", 0},
    };
    ListLines lines;
    for (const auto& [text, data] : expected) lines.insert(lines.count(), text, data);
    EXPECT_EQ(all(lines), expected);
}

TEST(ListLines, KeepTheirOrderAndNumbersWhereverOthersAreInserted) {
    std::mt19937 random(4711);
    const auto below = [&](std::size_t limit) { return static_cast<int>(random() % limit); };
    for (int round = 0; round < 20; ++round) {
        ListLines lines;
        std::vector<Line> expected;
        for (int i = 0; i < 300; ++i) {
            const int at = below(3) ? lines.count() : below(expected.size() + 1);
            const Line line{std::string(static_cast<std::size_t>(below(20)), 'x') + std::to_string(i),
                            below(2 + static_cast<std::size_t>(round)) ? 0 : below(1000) - 500};
            lines.insert(at, line.first, line.second);
            expected.insert(expected.begin() + at, line);
        }
        ASSERT_EQ(all(lines), expected) << "round " << round;
    }
}

TEST(ListLines, ATextHoldsWhateverIsInsertedMeanwhile) {
    ListLines lines;
    lines.insert(0, "first", 1);
    const std::string_view first = lines.text(0);
    for (int i = 0; i < 10'000; ++i) lines.insert(0, item_name(i), i);
    EXPECT_EQ(first, "first");
    EXPECT_EQ(lines.text(10'000).data(), first.data());
}

TEST(ListLines, OnceClearedStartAnew) {
    const std::size_t before = allocated_bytes();
    ListLines lines;
    for (int i = 0; i < 1000; ++i) lines.insert(i, item_name(i), i);
    lines.clear();
    EXPECT_EQ(lines.count(), 0);
    EXPECT_EQ(allocated_bytes(), before) << "Nothing of them is left.";
    lines.insert(0, "new", 0);
    EXPECT_EQ(all(lines), (std::vector<Line>{{"new", 0}}));
}

TEST(ListLines, ALineTakesLittleMoreThanItsText) {
    for (const int count : {100'000, 131'073}) { // the second is where a vector has just grown
        EXPECT_LT(overhead(count, 0), 2 * sizeof(std::int32_t) + 2);
        EXPECT_LT(overhead(count, 1), 4 * sizeof(std::int32_t) + 2);
    }
    EXPECT_LT(overhead(3, 0), 200) << "A short list is not worth a large block.";
}

} // namespace brx::checks
