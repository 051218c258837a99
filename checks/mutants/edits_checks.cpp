#include "mutants/guard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace brx::mutants;

namespace {

/// The source with each edit made alone, of the kind or of any.
std::vector<std::string> edited(const std::string& text, const std::string& kind = "") {
    const Source source("x.cpp", text);
    NameGroups groups;
    collect_name_groups(source, groups);
    std::vector<std::string> results;
    for (const Edit& edit : edits_of(source, groups)) {
        if (!kind.empty() && edit.kind != kind) continue;
        results.push_back(guarded(source, {}, {}, &edit).text);
    }
    return results;
}

/// The source with all edits compiled in, short for reading: `on1` is whether the first one is chosen.
std::string compiled_in(const std::string& text) {
    const Source source("x.cpp", text);
    std::vector<Edit> edits = edits_of(source, {});
    int number = 0;
    for (Edit& edit : edits) edit.number = ++number;
    unguard_crossing(edits);
    std::string result = guarded(source, edits, regions_of(source)).text;
    for (std::size_t at; (at = result.find("::brx_mutant::")) != std::string::npos;) result.erase(at, 14);
    return result;
}

using Texts = std::vector<std::string>;

TEST(MutantEdits, ChangeConstants) {
    EXPECT_EQ(edited("int a = 9;"), Texts{"int a = 10;"});
    EXPECT_EQ(edited("int a = 0xFF;"), Texts{"int a = (0xFF + 1);"});
    EXPECT_EQ(edited("double a = 0.5;"), Texts{"double a = (0.5 * 2);"});
    EXPECT_EQ(edited("bool a = true;"), Texts{"bool a = false;"});
    EXPECT_EQ(edited("A a{.tab = 3};", "tab"), Texts{"A a{.tab = 4};"});
    EXPECT_EQ(edited("class A { virtual void f() = 0; };"), Texts{});
    EXPECT_EQ(edited("static_assert(sizeof(int) == 4);"), Texts{});
}

TEST(MutantEdits, ChangeOneLetterOfAText) {
    EXPECT_EQ(edited("auto a = \"\\r\\nz\";"), Texts{"auto a = \"\\r\\na\";"});
    EXPECT_EQ(edited("auto a = \" \";"), Texts{"auto a = \"#\";"});
    EXPECT_EQ(edited("auto a = \"\";"), Texts{"auto a = \"#\";"});
    EXPECT_EQ(edited("extern \"C\" int a;"), Texts{});
    EXPECT_EQ(edited("auto a = \"b\" MACRO;"), Texts{});
}

TEST(MutantEdits, ChangeOperators) {
    EXPECT_EQ(edited("bool a = b == c;"), Texts{"bool a = b != c;"});
    EXPECT_EQ(edited("bool a = b < c;"), Texts{"bool a = b <= c;"});
    EXPECT_EQ(edited("bool a = b && c;"), Texts{"bool a = b || c;"});
    EXPECT_EQ(edited("bool a = !b;"), Texts{"bool a = !!b;"});
    EXPECT_EQ(edited("int a = b + c;"), Texts{"int a = b - c;"});
    EXPECT_EQ(edited("auto a = \"\" + c;", "sum"), Texts{}) << "texts cannot be subtracted";
    EXPECT_EQ(edited("void f(A<B> a, B&& b, C& c); bool operator==(A a, B b);"), Texts{});
}

TEST(MutantEdits, TurnConditionsRound) {
    EXPECT_EQ(edited("void f() { if (a.b()) {} }"), Texts{"void f() { if (!(a.b())) {} }"});
    EXPECT_EQ(edited("void f() { if (A a = b(); a) {} }", "condition"),
              Texts{"void f() { if (A a = b(); !(a)) {} }"});
    EXPECT_EQ(edited("void f() { if (A* a = b()) {} }", "condition"),
              Texts{"void f() { if (A* a = b(); !a) {} }"});
    EXPECT_EQ(edited("int f() { return a ? b : c; }"), Texts{"int f() { return !(a) ? b : c; }"});
    EXPECT_EQ(edited("void f() { if constexpr (a) {} }"), Texts{});
}

TEST(MutantEdits, LeaveStatementsOut) {
    EXPECT_EQ(edited("void f() { a(); b->c = d; }"),
              (Texts{"void f() { ; b->c = d; }", "void f() { a(); ; }"}));
    EXPECT_EQ(edited("void f() { if (a) return; else ++b; }", "statement"),
              (Texts{"void f() { if (a) ; else ++b; }", "void f() { if (a) return; else ; }"}));
    EXPECT_EQ(edited("void f() { std::a<b>::c(d); }"), Texts{"void f() { ; }"});
}

TEST(MutantEdits, TakeNoDeclarationForAStatement) {
    EXPECT_EQ(
        edited("void f() { A a; A& b(c); const A d(e); std::a<b> c; using a::b; static_cast<void>(x); }"),
        Texts{});
}

TEST(MutantEdits, ChangeNamesWithinTheirGroup) {
    const std::string group = "enum class A { b, c }; ";
    EXPECT_EQ(edited(group + "A a = A::b;"), Texts{group + "A a = A::c;"});
    EXPECT_EQ(edited(group + "A a = A::c;"), Texts{group + "A a = A::b;"});
    EXPECT_EQ(edited(group + "A a = A::d;"), Texts{});
}

TEST(CompiledInEdits, StandBesideTheOriginal) {
    EXPECT_EQ(compiled_in("int a = 9;"), "int a = (on(1) ? 10 : 9);");
    EXPECT_EQ(compiled_in("bool a = b < c;"), "bool a = b < Less{1} < c;");
    EXPECT_EQ(compiled_in("void f() { a(); }"), "void f() { { if (!on(1)) a(); } }");
    EXPECT_EQ(compiled_in("void f() { if (A* a = b()) {} }"),
              "void f() { if (A* a = b(); flipped(1, a)) {} }");
}

TEST(CompiledInEdits, NestInEachOther) {
    EXPECT_EQ(
        compiled_in("bool a = b && c && d;"),
        "bool a = flipped(2, flipped(1, flipped(2, flipped(1, b) && flipped(1, c))) && flipped(2, d));");
    EXPECT_EQ(compiled_in("void f() { a(b || 1); }"),
              "void f() { { if (!on(1)) a(flipped(2, flipped(2, b) || flipped(2, (on(3) ? 2 : 1)))); } }");
}

TEST(CompiledInEdits, TakeTheConstexprAway) {
    EXPECT_EQ(compiled_in("constexpr int a = 1;"), "static int a = (on(1) ? 2 : 1);");
    EXPECT_EQ(compiled_in("constexpr int a = b;"), "constexpr int a = b;");
    EXPECT_EQ(compiled_in("class A { static constexpr int a = 1; };"),
              "class A { static inline int a = (on(1) ? 2 : 1); };");
    EXPECT_EQ(compiled_in("constexpr bool f() { return true; }"),
              "inline bool f() { return (on(1) ? false : true); }");
}

TEST(CompiledInEdits, StayOnTheirLines) {
    const std::string text = "void f() {\n    a(\"b\"\n      \"c\",\n      1);\n}\n";
    const std::string result = compiled_in(text);
    EXPECT_EQ(std::count(result.begin(), result.end(), '\n'), std::count(text.begin(), text.end(), '\n'));
}

} // namespace
