#include "mutants/source.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace brx::mutants;

namespace {

std::vector<std::string> words_of(const std::string& text) {
    std::vector<std::string> words;
    for (const Token& token : tokens_of(text))
        words.push_back(text.substr(token.begin, token.end - token.begin));
    return words;
}

using Words = std::vector<std::string>;

/// What stands around a word of a source.
Inside inside_of(const std::string& text, const std::string& word) {
    const Source source("x.cpp", text);
    for (std::size_t i = 0; i < source.size(); ++i)
        if (source.word(i) == word) return source.inside(i);
    ADD_FAILURE() << word;
    return Inside::names;
}

TEST(MutantTokens, LeaveOutCommentsAndDirectives) {
    EXPECT_EQ(words_of("#include <a>\na; // b\n/* c\n */ d;"), (Words{"a", ";", "d", ";"}));
    EXPECT_EQ(words_of("#define A \\\n b\nc"), Words{"c"});
}

TEST(MutantTokens, KeepNumbersWhole) {
    EXPECT_EQ(words_of("1'000 0x1.FFp+127 1.5e-3 2u"), (Words{"1'000", "0x1.FFp+127", "1.5e-3", "2u"}));
    EXPECT_EQ(words_of("a-1"), (Words{"a", "-", "1"}));
}

TEST(MutantTokens, KeepTextsWhole) {
    EXPECT_EQ(words_of(R"(f("a \" // b", U'\'', u"c"))"),
              (Words{"f", "(", R"("a \" // b")", ",", R"(U'\'')", ",", "u\"c\"", ")"}));
    EXPECT_EQ(words_of("R\"x(a)\" )x\" b"), (Words{"R\"x(a)\" )x\"", "b"}));
}

TEST(MutantTokens, KnowTheirLines) {
    const auto tokens = tokens_of("a\n/*\n*/ b\n\"c\"");
    ASSERT_EQ(tokens.size(), 3U);
    EXPECT_EQ(tokens[1].line, 3);
    EXPECT_EQ(tokens[2].line, 4);
}

TEST(MutantSource, KnowsWhatABraceOpens) {
    EXPECT_EQ(inside_of("namespace a { x; }", "x"), Inside::names);
    EXPECT_EQ(inside_of("class A : public B, private C { x; };", "x"), Inside::type);
    EXPECT_EQ(inside_of("enum class A : int { x };", "x"), Inside::enumeration);
    EXPECT_EQ(inside_of("void f() const noexcept { x; }", "x"), Inside::code);
    EXPECT_EQ(inside_of("A::A() : b_{1}, c_(2) { x; }", "x"), Inside::code);
    EXPECT_EQ(inside_of("auto f() -> std::string { x; }", "x"), Inside::code);
    EXPECT_EQ(inside_of("A a{x};", "x"), Inside::list);
    EXPECT_EQ(inside_of("A a = {x};", "x"), Inside::list);
    EXPECT_EQ(inside_of("class A { B b{*this, {.Click = [this] { x(); }}}; };", "x"), Inside::code);
    EXPECT_EQ(inside_of("template <class T> T f(T t) { x; }", "x"), Inside::code);
}

TEST(MutantSource, KnowsWhereOnlyConstantsCanStand) {
    const Source source("x.cpp", "std::array<int, 3> a; f(4); case 5: if (b < 6) static_assert(7 == 7);");
    std::string constants;
    for (std::size_t i = 0; i < source.size(); ++i)
        if (source.token(i).kind == TokenKind::number && source.is_constant(i)) constants += source.word(i);
    EXPECT_EQ(constants, "3577");
}

} // namespace
