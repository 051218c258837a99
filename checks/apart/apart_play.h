#pragma once

#include "apart/server_program.h"
#include "scenario.h"
#include "win32/com_ptr.h"

#include <OPCAutomation.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

/// An object of the server program that runs, not connected.
com_ptr<IOPCAutoServer> a_server_there();

/// A story whose OPC server is another process: the objects of the host are as ever, but its connection, the
/// group and the connection that lists servers are the system's proxies of objects there.
class ApartPlay {
public:
    explicit ApartPlay(const std::wstring& switches = L"",
                       const std::string& program_id = "Simulation.Packing.1");
    ~ApartPlay();

    Play its;
    ServerProgram& server() { return *server_; }
    const ObjectPtr& connection() const { return connection_; }
    const ObjectPtr& group() const { return group_; }
    /// The calls that dialogs made to the server.
    std::vector<std::string> calls() const;

    /// The host lets go of the server, as it does when it ends.
    void release();
    /// Of a server that is gone or given back: the host connects to it again, in a process without switches.
    void connect_again();
    /// Nothing is left: on the screen, of the host's objects, of the server's.
    void expect_clean_end();

private:
    void start(const std::wstring& switches);
    void connect();

    std::string program_id_;
    std::unique_ptr<ServerProgram> server_;
    ObjectPtr connection_;
    ObjectPtr group_;
    std::size_t calls_of_the_host_ = 0;
};

using ApartStory = std::function<void(ApartPlay&)>;

/// Plays the story as it is told.
void play(ApartPlay& play, const ApartStory& story);
/// Plays it whatever becomes of it: with a server in trouble nothing in it needs to come true. Gives what did
/// not, "" for nothing.
std::string play_loosely(ApartPlay& play, const ApartStory& story);

/// How many calls the host itself makes before a dialog makes one.
constexpr unsigned calls_to_connect = 3;

} // namespace brx::checks
