#include "common/trap.h"
#include "common/version.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <thread>
#include <utility>
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
    EXPECT_EQ(report.application, "brxOpcDlgs6 " BRX_VERSION_TEXT);
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
    EXPECT_EQ(reports.all[0].second.number, 7);
    EXPECT_EQ(reports.all[0].second.description, "Out of memory");
    EXPECT_EQ(reports.all[1].second.number, 51);
    EXPECT_EQ(reports.all[1].second.description, "odd");
    EXPECT_EQ(reports.all[2].second.number, 51);
    EXPECT_EQ(reports.all[2].second.description, "Internal error");
    for (const auto& [library, report] : reports.all) EXPECT_EQ(report.source, "brxOpcDlgs6");
    EXPECT_EQ(reports.all[2].second.location, "Unit.C");
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
        EXPECT_FALSE(attempt([] { throw 17; }));
        EXPECT_TRUE(attempt([] {}));
    });
    EXPECT_TRUE(reports.all.empty());
}

TEST(ErrorTrap, AFailureThatIsLookedAtAfterwardsIsNotReported) {
    Reports reports;
    const Unit unit("Unit", reports);
    unit.trap("A", [] {
        EXPECT_FALSE(failure_of([] { EXPECT_EQ(current_location(), ""); }).has_value());
        const auto failure = failure_of([] { throw Error(-5, "What", "Who"); });
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->number(), -5);
        EXPECT_EQ(failure->description(), "What");
        EXPECT_EQ(failure->source(), "Who");
        EXPECT_EQ(failure_of([] { throw std::bad_alloc(); })->number(), 7);
        EXPECT_EQ(current_location(), "Unit.A");
    });
    EXPECT_TRUE(reports.all.empty());
}

TEST(ErrorTrap, KnowsWhoWouldReport) {
    Reports reports;
    const Unit unit("Unit", reports);
    const Unit other("Other", reports);
    EXPECT_EQ(unit.module_name(), std::string("Unit"));
    EXPECT_EQ(current_location(), "");
    unit.trap("A", [&] {
        EXPECT_EQ(current_location(), "Unit.A");
        attempt([] { EXPECT_EQ(current_location(), ""); });
        EXPECT_EQ(current_location(), "Unit.A");
        other.trap("B", [] {
            EXPECT_EQ(current_location(), "Other.B");
            throw Error(9);
        });
        EXPECT_EQ(current_location(), "Unit.A");
        attempt([&] { other.trap("C", [] { EXPECT_EQ(current_location(), "Other.C"); }); });
        std::thread([] { EXPECT_EQ(current_location(), "") << "Each thread has its own."; }).join();
    });
    EXPECT_EQ(current_location(), "");
}

TEST(ErrorTrap, KnowsWhoseProceduresRun) {
    using Modules = std::vector<std::string>;
    Reports reports;
    const Unit unit("Unit", reports);
    const Unit other("Other", reports);
    EXPECT_EQ(current_modules(), Modules());
    unit.trap("A", [&] {
        EXPECT_EQ(current_modules(), Modules{"Unit"});
        attempt([] { EXPECT_EQ(current_modules(), Modules{"Unit"}) << "Also where errors are ignored."; });
        other.trap("B", [] { EXPECT_EQ(current_modules(), (Modules{"Other", "Unit"})); });
    });
    EXPECT_EQ(current_modules(), Modules());
}

TEST(ErrorTexts, AreThoseOfTheHostLanguage) {
    EXPECT_EQ(error_text(5), "Invalid procedure call or argument");
    EXPECT_EQ(error_text(6), "Overflow");
    EXPECT_EQ(error_text(7), "Out of memory");
    EXPECT_EQ(error_text(9), "Subscript out of range");
    EXPECT_EQ(error_text(13), "Type mismatch");
    EXPECT_EQ(error_text(51), "Internal error");
    EXPECT_EQ(error_text(91), "Object variable or With block variable not set");
    EXPECT_EQ(error_text(94), "Invalid use of Null");
    EXPECT_EQ(error_text(429), "ActiveX component can't create object");
    EXPECT_EQ(error_text(457), "This key is already associated with an element of this collection");
    EXPECT_EQ(error_text(35600), "Index out of bounds");
    EXPECT_EQ(error_text(35601), "Element not found");
    EXPECT_EQ(error_text(35602), "Key is not unique in collection");
    EXPECT_EQ(error_text(1234), "Application-defined or object-defined error");
    EXPECT_EQ(error_text(0), "Application-defined or object-defined error");
}

TEST(ErrorTexts, EachErrorHasItsPublishedNumber) {
    EXPECT_EQ(error::invalid_procedure_call, 5);
    EXPECT_EQ(error::overflow, 6);
    EXPECT_EQ(error::out_of_memory, 7);
    EXPECT_EQ(error::subscript_out_of_range, 9);
    EXPECT_EQ(error::type_mismatch, 13);
    EXPECT_EQ(error::internal, 51);
    EXPECT_EQ(error::object_not_set, 91);
    EXPECT_EQ(error::invalid_use_of_null, 94);
    EXPECT_EQ(error::cannot_create_object, 429);
    EXPECT_EQ(error::key_in_use, 457);
    EXPECT_EQ(error::index_out_of_bounds, 35600);
    EXPECT_EQ(error::element_not_found, 35601);
    EXPECT_EQ(error::key_not_unique, 35602);
}

TEST(ErrorTexts, AnErrorOfTheComponentHasItsTextAndNamesTheComponent) {
    const Error error(13);
    EXPECT_EQ(error.number(), 13);
    EXPECT_EQ(error.description(), "Type mismatch");
    EXPECT_EQ(error.source(), "brxOpcDlgs6");
    EXPECT_EQ(Error(13, "Other").source(), "brxOpcDlgs6");
    EXPECT_EQ(Error(13, "Other").description(), "Other");
    EXPECT_EQ(Error(13, "Other", "Host").source(), "Host");
}

TEST(ErrorLibraries, HaveTheirClassNames) {
    EXPECT_EQ(error_class_name(ErrorLibrary::brxError6), std::string("brxError6.Error"));
    EXPECT_EQ(error_class_name(ErrorLibrary::hlxER01), std::string("hlxER01.Error"));
}
