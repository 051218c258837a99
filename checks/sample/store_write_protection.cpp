#include "sample/store_stage.h"

#include <gmock/gmock.h>

#include <unistd.h>

namespace brx::host {

namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

/// Root may write whatever is protected; while this lives, root is nobody.
class NotRoot {
public:
    NotRoot() : before_(geteuid()) {
        if (before_ == 0 && seteuid(65534) != 0) ADD_FAILURE() << "root cannot become nobody";
    }
    NotRoot(const NotRoot&) = delete;
    NotRoot& operator=(const NotRoot&) = delete;
    ~NotRoot() {
        if (seteuid(before_) != 0) ADD_FAILURE() << "nobody cannot become root again";
    }

private:
    uid_t before_;
};

class StoreWriteProtection : public StoreCheck {
protected:
    void protect(const fs::path& path) {
        fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                        fs::perm_options::remove);
    }
    void unprotect(const fs::path& path) {
        fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
    }
};

TEST_F(StoreWriteProtection, LetsServersBeSeenButNotChanged) {
    opened();
    protect(file);
    const NotRoot somebody;
    const auto host = opened();
    EXPECT_THAT(log.line(log.count()), HasSubstr("write-protected"));
    EXPECT_EQ(host->servers()->Count(), 3);
    EXPECT_EQ(host->servers()->Add("Simulation.Metering.1", "", true), nullptr);
    EXPECT_THAT(host->servers()->LastError(), HasSubstr("it is write-protected"));
    EXPECT_EQ(host->servers()->Count(), 3);
    EXPECT_THROW(host->servers()->remove(1), Error);
    EXPECT_THROW(host->servers()->set_last_item(1, "Running"), Error);
    EXPECT_EQ(host->servers()->at(1).last_item(), "");
    EXPECT_EQ(host->servers()->Count(), 3);
}

TEST_F(StoreWriteProtection, OfTheFolderIsTold) {
    protect(folder.file(""));
    {
        const NotRoot somebody;
        EXPECT_THAT(failure_to_open(file), HasSubstr("it cannot be opened"));
    }
    unprotect(folder.file(""));
}

} // namespace

} // namespace brx::host
