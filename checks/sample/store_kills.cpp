#include "sample/store_stage.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <thread>

extern char** environ;

namespace brx::host {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

constexpr int kills = 200;
constexpr int kills_of_one_file = 20;

/// The program that collects, in this one's folder.
std::string collecting_host() {
    return (std::filesystem::canonical("/proc/self/exe").parent_path() / BRX_COLLECTING_HOST).string();
}

/// It runs until it is killed.
class CollectingHost {
public:
    explicit CollectingHost(const std::string& file) {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0) return;
        told_ = ends[0];
        posix_spawn_file_actions_t actions{};
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        const std::string program = collecting_host();
        const std::array arguments = {const_cast<char*>(program.c_str()), const_cast<char*>(file.c_str()),
                                      static_cast<char*>(nullptr)};
        if (posix_spawn(&process_, program.c_str(), &actions, nullptr, arguments.data(), environ) != 0)
            process_ = 0;
        posix_spawn_file_actions_destroy(&actions);
        close(ends[1]);
    }
    CollectingHost(const CollectingHost&) = delete;
    CollectingHost& operator=(const CollectingHost&) = delete;
    ~CollectingHost() {
        if (process_ != 0) kill();
        close(told_);
    }

    bool runs() const { return process_ != 0; }
    /// Hears what it tells, until it has told so many times or so much time has passed.
    void hear(int times, microseconds patience) {
        const auto until = Clock::now() + patience;
        while (times > 0 && Clock::now() < until)
            if (hear_one(until - Clock::now())) --times;
    }
    /// Gives whether it was the kill that ended it; what it has told until then can still be heard.
    bool kill() {
        ::kill(process_, SIGKILL);
        int status = 0;
        waitpid(process_, &status, 0);
        process_ = 0;
        while (hear_one(Clock::duration::zero())) {
        }
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }
    /// How many subgroups it has said to be in the file, last; 0 before it has said anything.
    std::int64_t stored() const { return stored_; }

private:
    bool hear_one(Clock::duration patience) {
        pollfd wanted{told_, POLLIN, 0};
        const auto wait = std::chrono::duration_cast<std::chrono::milliseconds>(patience).count();
        if (poll(&wanted, 1, static_cast<int>(wait)) <= 0) return false;
        return read(told_, &stored_, sizeof stored_) == sizeof stored_;
    }

    int told_ = -1;
    pid_t process_ = 0;
    std::int64_t stored_ = 0;
};

/// What a killed host has left behind.
class Remains {
public:
    explicit Remains(const std::string& path) : file_(path) { file_.run("PRAGMA synchronous = OFF"); }

    std::string integrity() { return text("PRAGMA integrity_check"); }
    bool has_subgroups() { return number("SELECT count(*) FROM sqlite_schema WHERE name = 'subgroup'") == 1; }
    std::int64_t subgroups() { return number("SELECT count(*) FROM subgroup"); }
    /// The number of the last one. Numbers go up by one.
    std::int64_t last() { return number("SELECT coalesce(max(id), 0) FROM subgroup"); }
    /// Those that lack a piece or a label, or have one too many. A configuration says how many there are.
    std::int64_t not_whole() {
        return number(
            "SELECT count(*) FROM subgroup AS s JOIN test ON test.id = test_id"
            " JOIN configuration AS c ON c.id = configuration_id"
            " WHERE (SELECT count(*) FROM piece WHERE subgroup_id = s.id AND position <= subgroup_size)"
            "     <> subgroup_size"
            " OR (SELECT count(*) FROM label WHERE subgroup_id = s.id)"
            "     <> (SELECT count(*) FROM descriptor AS d WHERE d.configuration_id = c.id)");
    }
    std::int64_t of_no_subgroup() {
        return number("SELECT (SELECT count(*) FROM piece WHERE subgroup_id NOT IN (SELECT id FROM subgroup))"
                      " + (SELECT count(*) FROM label WHERE subgroup_id NOT IN (SELECT id FROM subgroup))");
    }

private:
    std::string text(const char* question) {
        Statement statement(file_, question);
        return statement.step() ? statement.text(0) : "nothing";
    }
    std::int64_t number(const char* question) {
        Statement statement(file_, question);
        statement.step();
        return statement.number(0);
    }

    SqliteFile file_;
};

class StoreKills : public StoreCheck {};

TEST_F(StoreKills, AHostThatIsKilledAtAnyMomentLosesNoSubgroupThatItHasStored) {
    std::mt19937 random(20261122);
    const auto up_to = [&](int most) { return std::uniform_int_distribution(0, most)(random); };
    std::int64_t stored_in_all = 0;
    std::int64_t told = 0; ///< of the present file
    int killed_while_opening = 0;
    for (int i = 0; i < kills; ++i) {
        const std::string path = folder.file("host" + std::to_string(i / kills_of_one_file) + ".db");
        SCOPED_TRACE("kill " + std::to_string(i + 1));
        if (i % kills_of_one_file == 0) told = 0;
        {
            CollectingHost collecting(path);
            ASSERT_TRUE(collecting.runs());
            // Now and then it does not even come to its first look.
            if (i % 5 == 0)
                collecting.hear(1, microseconds(up_to(60'000)));
            else
                collecting.hear(1 + up_to(20), std::chrono::seconds(10));
            std::this_thread::sleep_for(microseconds(up_to(9'000)));
            ASSERT_TRUE(collecting.kill()) << "it has ended by itself";
            told = std::max(told, collecting.stored());
        }
        Remains remains(path);
        ASSERT_EQ(remains.integrity(), "ok");
        if (!remains.has_subgroups()) {
            ASSERT_EQ(told, 0);
            ++killed_while_opening;
            continue;
        }
        ASSERT_GE(remains.subgroups(), told);
        ASSERT_LE(remains.subgroups(), told + 4) << "more than it can have stored since: one of each test";
        told = remains.subgroups();
        ASSERT_EQ(remains.subgroups(), remains.last());
        ASSERT_EQ(remains.not_whole(), 0);
        ASSERT_EQ(remains.of_no_subgroup(), 0);
        if ((i + 1) % kills_of_one_file == 0) stored_in_all += remains.subgroups();
    }
    // Else it would have been killed always before the moments that matter.
    EXPECT_GT(stored_in_all, 2 * kills);
    EXPECT_LT(killed_while_opening, kills / 5);
    const auto host = opened(folder.file("host0.db"));
    EXPECT_GT(host->servers()->at(1).configurations().at(1)->collection().stored_subgroups(1), 0);
}

} // namespace

} // namespace brx::host
