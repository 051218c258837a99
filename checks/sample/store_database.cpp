#include "sample/store_stage.h"

#include <gmock/gmock.h>

namespace brx::host {

namespace {

using testing::HasSubstr;

class StoreDatabase : public StoreCheck {
protected:
    void run(const char* statements) { SqliteFile(file).run(statements); }
};

TEST_F(StoreDatabase, IsMadeWithItsFolderAndSampleServersAtFirstStart) {
    const std::string deep = folder.file("not/yet/there/host.db");
    const auto host = opened(deep);
    EXPECT_TRUE(std::filesystem::exists(deep));
    ASSERT_EQ(host->servers()->Count(), 3);
    EXPECT_EQ(host->servers()->at(1).display_text(), "Simulation.Packing.1");
    EXPECT_EQ(host->servers()->at(2).display_text(), "LINE1.Simulation.Filling.1");
    EXPECT_EQ(host->servers()->at(3).display_text(), "LAB.Simulation.Kiln.1");
}

TEST_F(StoreDatabase, AnEmptyFileIsAFirstStart) {
    write(file, "");
    EXPECT_EQ(opened()->servers()->Count(), 3);
}

TEST_F(StoreDatabase, SampleServersComeOnlyOnce) {
    opened()->servers()->remove(1);
    opened()->servers()->remove(1);
    opened()->servers()->remove(1);
    EXPECT_EQ(opened()->servers()->Count(), 0);
}

TEST_F(StoreDatabase, WithANameInAnyScriptCanBeUsed) {
    const std::string path = folder.file("D\xC3\xBCse \xE2\x82\xAC.db");
    opened(path)->servers()->remove(1);
    EXPECT_EQ(opened(path)->servers()->Count(), 2);
}

TEST_F(StoreDatabase, AFileThatIsNoDatabaseIsLeftAlone) {
    const std::string content(4000, 'x');
    write(file, content);
    EXPECT_THAT(failure_to_open(file), HasSubstr("it is not a database"));
    EXPECT_THAT(failure_to_open(file), HasSubstr(file));
    std::ifstream now(file, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(now), {}), content);
}

TEST_F(StoreDatabase, ADamagedFileIsTold) {
    opened();
    const auto size = std::filesystem::file_size(file);
    {
        std::fstream damaged(file, std::ios::in | std::ios::out | std::ios::binary);
        damaged.seekp(static_cast<std::streamoff>(size / 2));
        damaged << std::string(static_cast<std::size_t>(size / 2), '\x7F');
    }
    EXPECT_THAT(failure_to_open(file), HasSubstr("damaged"));
}

TEST_F(StoreDatabase, OfAnotherProgramIsLeftAlone) {
    run("CREATE TABLE server (id INTEGER PRIMARY KEY)");
    EXPECT_THAT(failure_to_open(file), HasSubstr("belongs to another program"));
}

TEST_F(StoreDatabase, OfALaterVersionIsLeftAlone) {
    opened();
    run("PRAGMA user_version = 1000");
    EXPECT_THAT(failure_to_open(file), HasSubstr("later version"));
}

TEST_F(StoreDatabase, OfAnEarlierVersionIsBroughtUpToDate) {
    run(R"(CREATE TABLE server (id INTEGER PRIMARY KEY AUTOINCREMENT, program_id TEXT NOT NULL,
                                node TEXT NOT NULL DEFAULT '');
           CREATE TABLE setting (name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID;
           INSERT INTO server (program_id, node) VALUES ('Simulation.Balance.1', 'LAB');
           PRAGMA application_id = 1651669075;
           PRAGMA user_version = 1)");
    opened()->servers()->set_last_item(1, "Weight");
    const auto host = opened();
    ASSERT_EQ(host->servers()->Count(), 1);
    EXPECT_EQ(host->servers()->at(1).display_text(), "LAB.Simulation.Balance.1");
    EXPECT_EQ(host->servers()->at(1).last_item(), "Weight");
}

TEST_F(StoreDatabase, OfTheVersionBeforeConfigurationsGetsRecordsButNoConfigurations) {
    run(R"(CREATE TABLE server (id INTEGER PRIMARY KEY AUTOINCREMENT, program_id TEXT NOT NULL,
                                node TEXT NOT NULL DEFAULT '', last_item TEXT NOT NULL DEFAULT '');
           CREATE TABLE setting (name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID;
           INSERT INTO server (program_id, last_item) VALUES ('Simulation.Packing.1', 'Running');
           PRAGMA application_id = 1651669075;
           PRAGMA user_version = 2)");
    const auto host = opened();
    EXPECT_EQ(host->servers()->at(1).last_item(), "Running");
    EXPECT_EQ(host->servers()->at(1).configurations().count(), 0);
    EXPECT_TRUE(host->records(RecordKind::characteristic).record("Fill weight", 0));
    host->servers()->at(1).configurations().add();
    EXPECT_EQ(opened()->servers()->at(1).configurations().count(), 1);
}

TEST_F(StoreDatabase, AFolderIsNoDatabase) {
    EXPECT_THAT(failure_to_open(folder.file("")), HasSubstr("it cannot be opened"));
}

TEST_F(StoreDatabase, AFileThatAnotherProgramHoldsIsTold) {
    opened();
    SqliteFile other(file);
    other.run("BEGIN EXCLUSIVE");
    EXPECT_THAT(failure_to_open(file), HasSubstr("another program is using it"));
}

TEST_F(StoreDatabase, ATransactionThatIsNotCommittedLeavesNothing) {
    SqliteFile database(file);
    database.run("CREATE TABLE number (value INTEGER)");
    {
        Transaction transaction(database);
        database.run("INSERT INTO number VALUES (1)");
    }
    {
        Transaction transaction(database);
        database.run("INSERT INTO number VALUES (2)");
        transaction.commit();
    }
    Statement numbers(database, "SELECT value FROM number");
    ASSERT_TRUE(numbers.step());
    EXPECT_EQ(numbers.number(0), 2);
    EXPECT_FALSE(numbers.step());
}

TEST_F(StoreDatabase, SettingsAreRemembered) {
    EXPECT_EQ(opened()->settings().get("source"), "");
    opened()->settings().set("source", "plant");
    opened()->settings().set("source", "wrapper");
    EXPECT_EQ(opened()->settings().get("source"), "wrapper");
}

TEST(StoreLog, KeepsTheLatestThousandLines) {
    Log log;
    for (int i = 1; i <= 1002; ++i) log.add("line\r\n" + std::to_string(i));
    EXPECT_EQ(log.count(), 1002U);
    EXPECT_EQ(log.line(2), "");
    EXPECT_EQ(log.line(3), "line 3");
    EXPECT_EQ(log.line(1002), "line 1002");
    EXPECT_EQ(log.line(1003), "");
    EXPECT_EQ(log.line(0), "");
}

} // namespace

} // namespace brx::host
