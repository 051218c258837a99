#include "apart/apart_play.h"

#include "com/bstr.h"
#include "com/com_object.h"
#include "com/failure.h"
#include "com/owned_variant.h"

#include <gtest/gtest-spi.h>

namespace brx::checks {

namespace {

const wchar_t* const wrapper_class = L"OPC.Automation";
constexpr HRESULT call_not_executed = HRESULT_FROM_WIN32(RPC_S_CALL_FAILED_DNE);
constexpr int tries_to_create = 5;

} // namespace

com_ptr<IOPCAutoServer> a_server_there() {
    CLSID clsid{};
    check(CLSIDFromProgID(wrapper_class, &clsid));
    com_ptr<IOPCAutoServer> server;
    const auto create = [&] {
        return CoCreateInstance(clsid, nullptr, CLSCTX_LOCAL_SERVER, __uuidof(IOPCAutoServer),
                                reinterpret_cast<void**>(server.out()));
    };
    HRESULT created = create();
    // Wine keeps connections to processes that have died, and a process that bears the number of one of them
    // is reached when these are used up: each costs a try.
    for (int tries = 1; created == call_not_executed && tries < tries_to_create; ++tries) created = create();
    check(created);
    return server;
}

ApartPlay::ApartPlay(const std::wstring& switches, const std::string& program_id) : program_id_(program_id) {
    start(switches);
}

void ApartPlay::start(const std::wstring& switches) {
    server_ = nullptr; // what is left of an earlier one would answer
    server_ = std::make_unique<ServerProgram>(switches);
    its.stage->start([this] { connect(); });
    calls_of_the_host_ = server_->calls().size();
    EXPECT_EQ(calls_of_the_host_, calls_to_connect);
}

void ApartPlay::connect_again() {
    release();
    start(L"");
}

void ApartPlay::connect() {
    const com_ptr<IOPCAutoServer> server = a_server_there();
    const OwnedVariant omitted{Variant(Missing{})};
    check(server->Connect(Bstr(program_id_).get(), omitted.get()));
    com_ptr<IOPCGroups> groups;
    check(server->get_OPCGroups(groups.out()));
    com_ptr<IOPCGroup> group;
    check(groups->Add(OwnedVariant{Variant(std::string("Dialogs"))}.get(), group.out()));
    connection_ = from_dispatch(server);
    group_ = from_dispatch(group);
    its.host.configuration->group = group_;
    const auto entry = std::make_shared<FakeServer>(its.host.calls, program_id_, "");
    entry->connection = connection_;
    entry->parent = its.host.servers;
    its.host.configuration->server->entry = entry;
    its.host.fresh_connection = connection_;
}

std::vector<std::string> ApartPlay::calls() const {
    std::vector<std::string> calls = server_->calls();
    calls.erase(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(calls_of_the_host_));
    return calls;
}

void ApartPlay::release() {
    its.stage->start([this] {
        its.host.configuration->group = its.host.group;
        its.host.configuration->server->entry = nullptr;
        its.host.fresh_connection = its.host.enumerator;
        for (const auto& each : its.host.servers->entries()) each->connection = nullptr;
        connection_ = group_ = nullptr;
    });
}

ApartPlay::~ApartPlay() {
    its.close_everything();
    if (connection_) release();
}

void ApartPlay::expect_clean_end() {
    its.close_everything();
    release();
    its.expect_clean_end();
    EXPECT_TRUE(server_->has_ended()) << "Something of the server is still referred to: " << server_->shown();
}

void play(ApartPlay& play, const ApartStory& story) {
    try {
        story(play);
    } catch (const GaveUp&) {
        // Recorded where it happened.
    }
}

std::string play_loosely(ApartPlay& play, const ApartStory& story) {
    testing::TestPartResultArray results;
    {
        const testing::ScopedFakeTestPartResultReporter intercept(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &results);
        brx::checks::play(play, story);
    }
    std::string failures;
    for (int i = 0; i < results.size(); ++i)
        if (results.GetTestPartResult(i).failed())
            failures += std::string(results.GetTestPartResult(i).message()) + "\n";
    return failures;
}

} // namespace brx::checks
