#include "apart/apart_play.h"
#include "apart/only_wrapper.h"
#include "common/trap.h"

#include <gtest/gtest.h>
#include <objbase.h>

#include <atomic>
#include <optional>
#include <thread>

// A server program whose person lets calls wait.

namespace brx::checks {

namespace {

/// A client of the server program with a call that waits to be answered.
class WaitingClient {
public:
    WaitingClient() : thread_([this] { ask(); }) {}
    WaitingClient(const WaitingClient&) = delete;
    WaitingClient& operator=(const WaitingClient&) = delete;
    ~WaitingClient() { thread_.join(); }

    bool has_its_answer() const {
        for (int tries = 0; tries < 250 && !answered_; ++tries) Sleep(20);
        return answered_;
    }

private:
    void ask() {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        attempt([&] {
            LONG state = 0;
            answered_ = SUCCEEDED(a_server_there()->get_ServerState(&state));
        });
        CoUninitialize();
    }

    std::atomic<bool> answered_ = false;
    std::thread thread_;
};

bool has_calls(const ServerProgram& server) {
    for (int tries = 0; tries < 500 && server.calls().empty(); ++tries) Sleep(20);
    return !server.calls().empty();
}

} // namespace

class HoldingServer : public OnlyWrapper<> {};

TEST_F(HoldingServer, AnswersTheCallThatWaitsAndEndsWhenItsWindowIsClosed) {
    const InstalledServer installed;
    std::optional<WaitingClient> client;
    {
        const ServerProgram server(L"--hold");
        client.emplace();
        ASSERT_TRUE(has_calls(server));
        server.close_window();
        EXPECT_TRUE(client->has_its_answer());
        EXPECT_TRUE(server.has_ended());
    }
}

} // namespace brx::checks
