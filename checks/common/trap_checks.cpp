#include "common/trap.h"

#include <gtest/gtest.h>

#include <new>
#include <vector>

using namespace brx;

namespace {

struct Reports : ErrorReporter {
    std::vector<std::pair<ErrorLibrary, ErrorReport>> all;
    void Show(ErrorLibrary library, const ErrorReport& report) noexcept override {
        all.emplace_back(library, report);
    }
};

class Unit : public Module {
public:
    using Module::Module;
    using Module::trap;
};

} // namespace

TEST(ErrorTrap, ReportsNumberDescriptionSourceAndLocation) {
    Reports reports;
    const Unit unit("dlgServerSelect", reports);
    unit.trap("bnOK_Click", [] { throw Error(-2147023174, "The RPC server is unavailable.", "Wrapper"); });
    ASSERT_EQ(reports.all.size(), 1U);
    const auto& [library, report] = reports.all[0];
    EXPECT_EQ(library, ErrorLibrary::brxError6);
    EXPECT_EQ(report.number, -2147023174);
    EXPECT_EQ(report.description, "The RPC server is unavailable.");
    EXPECT_EQ(report.source, "Wrapper");
    EXPECT_EQ(report.location, "dlgServerSelect.bnOK_Click");
    EXPECT_EQ(report.application, "brxOpcDlgs6 6.0.0");
}

TEST(ErrorTrap, NamesTheComponentAsTheSourceOfItsOwnErrors) {
    Reports reports;
    const Unit unit("dlgServerAdd", reports);
    unit.trap("BuildList", [] { throw Error(error::overflow); });
    ASSERT_EQ(reports.all.size(), 1U);
    EXPECT_EQ(reports.all[0].second.number, 6);
    EXPECT_EQ(reports.all[0].second.description, "Overflow");
    EXPECT_EQ(reports.all[0].second.source, "brxOpcDlgs6");
}

TEST(ErrorTrap, ReportsToTheLibraryOfTheProcedure) {
    Reports reports;
    const Unit unit("dlgConfiguration", reports, ErrorLibrary::hlxER01);
    unit.trap("bnAdd_Click", [] { throw Error(5); });
    unit.trap(ErrorLibrary::brxError6, "Timer1_Timer", [] { throw Error(5); });
    ASSERT_EQ(reports.all.size(), 2U);
    EXPECT_EQ(reports.all[0].first, ErrorLibrary::hlxER01);
    EXPECT_EQ(reports.all[1].first, ErrorLibrary::brxError6);
}

TEST(ErrorTrap, TurnsForeignExceptionsIntoReports) {
    Reports reports;
    const Unit unit("Unit", reports);
    unit.trap("A", [] { throw std::bad_alloc(); });
    unit.trap("B", [] { throw std::runtime_error("odd"); });
    unit.trap("C", [] { throw 17; });
    ASSERT_EQ(reports.all.size(), 3U);
    EXPECT_EQ(reports.all[0].second.number, error::out_of_memory);
    EXPECT_EQ(reports.all[1].second.number, error::internal);
    EXPECT_EQ(reports.all[1].second.description, "odd");
    EXPECT_EQ(reports.all[2].second.number, error::internal);
}

TEST(ErrorTrap, IsNotTouchedByAProcedureThatComesThrough) {
    Reports reports;
    const Unit unit("Unit", reports);
    bool ran = false;
    unit.trap("A", [&] { ran = true; });
    EXPECT_TRUE(ran);
    EXPECT_TRUE(reports.all.empty());
}

TEST(ErrorTrap, TheInnermostProcedureReports) {
    Reports reports;
    const Unit outer("Outer", reports);
    const Unit inner("Inner", reports);
    bool went_on = false;
    outer.trap("Click", [&] {
        inner.trap("Build", [] { throw Error(9); });
        went_on = true;
    });
    EXPECT_TRUE(went_on);
    ASSERT_EQ(reports.all.size(), 1U);
    EXPECT_EQ(reports.all[0].second.location, "Inner.Build");
}

TEST(ErrorTrap, AnAttemptReportsNothing) {
    Reports reports;
    const Unit unit("Unit", reports);
    unit.trap("A", [] {
        EXPECT_FALSE(attempt([] { throw Error(9); }));
        EXPECT_TRUE(attempt([] {}));
    });
    EXPECT_TRUE(reports.all.empty());
}

TEST(ErrorTrap, KnowsWhoWouldReport) {
    Reports reports;
    const Unit unit("Unit", reports);
    EXPECT_EQ(current_location(), "");
    unit.trap("A", [] {
        EXPECT_EQ(current_location(), "Unit.A");
        attempt([] { EXPECT_EQ(current_location(), ""); });
        EXPECT_EQ(current_location(), "Unit.A");
    });
    EXPECT_EQ(current_location(), "");
}

TEST(ErrorTexts, AreThoseOfTheHostLanguage) {
    EXPECT_EQ(error_text(6), "Overflow");
    EXPECT_EQ(error_text(13), "Type mismatch");
    EXPECT_EQ(error_text(91), "Object variable or With block variable not set");
    EXPECT_EQ(error_text(35602), "Key is not unique in collection");
    EXPECT_EQ(error_text(1234), "Application-defined or object-defined error");
}
