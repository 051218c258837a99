#pragma once

#include "common/model/factory.h"
#include "common/model/services.h"
#include "forms/engine.h"
#include "forms/error_reports.h"
#include "host/fake_browser.h"
#include "host/fake_configuration.h"
#include "host/fake_group.h"
#include "host/fake_records.h"
#include "host/fake_servers.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

/// A report as it arrived, with the library that it went to.
struct Report {
    ErrorLibrary library = ErrorLibrary::brxError6;
    ErrorReport what;
};

/// What the host has for an error library's class.
enum class ErrorClass { works, fails, missing };

/// A message service of the host's own: it notes the message and presses OK.
class FakeMessageService : public hlxMessage, public Recorded {
public:
    explicit FakeMessageService(CallLog& calls) : Recorded(calls, "hlxMessage") {}
    std::vector<Message> shown;
    std::int32_t Show(const std::string& text, std::int32_t style, const std::string& title,
                      const Variant&) override {
        note("Show");
        shown.push_back({text, style, title});
        return message::ok;
    }
};

class FakeHelpService : public hlxHelp, public Recorded {
public:
    explicit FakeHelpService(CallLog& calls) : Recorded(calls, "hlxHelp") {}
    std::string path = "C:\\Plant\\collection.chm";
    std::string HelpFile() override { return read("HelpFile", path); }
};

/// The host of the stories and rules: its objects, the classes that the component creates, and where its
/// reports go.
class FakeHost : public ErrorLibraries, public ObjectFactory {
public:
    FakeHost();

    CallLog calls;
    std::shared_ptr<FakeServers> servers;
    /// What a fresh server entry's connection enumerates; the same object for every entry.
    std::shared_ptr<FakeOPCServer> enumerator;
    /// What a fresh entry gives as its OPCServer; the enumerator unless a scenario says otherwise.
    ObjectPtr fresh_connection;
    bool can_create_entries = true;
    /// A connected server whose items are browsed, its only browser, and a group of it.
    std::shared_ptr<FakeOPCServer> connection;
    std::shared_ptr<FakeBrowser> browser;
    std::shared_ptr<FakeOPCGroup> group;
    /// A collection configuration for that server and group, and what leads from it to the database.
    std::shared_ptr<FakeConfiguration> configuration;
    std::shared_ptr<FakeApplication> application;
    std::shared_ptr<FakeDatabase> database;
    std::shared_ptr<FakePicker> picker;
    std::map<std::int32_t, std::string> test_groups; ///< the names by their ids
    Records records;                                 ///< parts, processes, jobs, shifts, descriptors
    /// The dialogs in which these are picked, by their class.
    std::map<std::string, std::shared_ptr<FakePicker>> pickers;
    std::shared_ptr<FakeOPCGroups> groups;               ///< of the connected server
    std::shared_ptr<FakeMessageService> message_service; ///< null: the host has none
    std::shared_ptr<FakeHelpService> help_service;       ///< null: the host has none

    std::map<ErrorLibrary, ErrorClass> error_classes = {{ErrorLibrary::brxError6, ErrorClass::works},
                                                        {ErrorLibrary::hlxER01, ErrorClass::works}};
    void has_no_error_library() {
        for (auto& [library, its_class] : error_classes) its_class = ErrorClass::missing;
    }

    /// The reports that no one has looked at yet.
    std::vector<Report> reports;
    /// All that ever came, also to a class that does not work.
    std::vector<Report> all_reports;

    /// The configuration has a test of this characteristic.
    std::shared_ptr<FakeTest> has_test(std::int32_t id, const std::string& name, std::int32_t group_id = 1);

    /// The local computer has these servers.
    void local_servers(std::vector<std::string> names) {
        enumerator->registered[""] = StringArray{std::move(names)};
    }
    void servers_on(const std::string& node, std::vector<std::string> names) {
        enumerator->registered[node] = StringArray{std::move(names)};
    }

    /// Which of the host's objects something still refers to, "" for none.
    std::string still_held() const;

    void Show(ErrorLibrary library, const ErrorReport& report,
              const std::function<void()>& otherwise) noexcept override;
    ObjectPtr create(const std::string& name) override;

private:
    void set_up_configuration();
    ObjectPtr make(const std::string& name);
    /// The same, to see later whether it was let go of.
    ObjectPtr remembered(const ObjectPtr& fresh);

    std::vector<std::weak_ptr<Object>> created_;
};

} // namespace brx::checks
