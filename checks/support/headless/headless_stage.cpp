#include "headless/headless_stage.h"

#include "classes/ConfigurationSetup.h"
#include "classes/LeafSelect.h"
#include "classes/ServerAdd.h"
#include "classes/ServerInformation.h"
#include "classes/ServerSelect.h"
#include "classes/TestConfiguration.h"

#include <type_traits>

namespace brx::checks {

namespace {

template <class Class> class Portable : public PublicClass {
public:
    explicit Portable(Environment& environment) : class_(environment) {}

    std::int16_t ServerIndex() override {
        if constexpr (requires { class_.ServerIndex; })
            return class_.ServerIndex;
        else
            return 0;
    }
    void set_ServerIndex(std::int16_t index) override {
        if constexpr (requires { class_.ServerIndex; }) class_.ServerIndex = index;
    }
    std::string ItemID() override {
        if constexpr (requires { class_.ItemID(); })
            return class_.ItemID();
        else
            return {};
    }
    void set_ItemID(const std::string& item_id) override {
        if constexpr (requires { class_.set_ItemID(item_id); }) class_.set_ItemID(item_id);
    }
    bool Show(const std::vector<ObjectPtr>& objects) override {
        if constexpr (requires { class_.Show(nullptr, nullptr); })
            return class_.Show(objects.at(0), objects.at(1));
        else if constexpr (std::is_void_v<decltype(class_.Show(nullptr))>)
            return class_.Show(objects.at(0)), true;
        else
            return class_.Show(objects.at(0));
    }

private:
    Class class_;
};

} // namespace

HeadlessStage::HeadlessStage(FakeHost& host) : environment_(engine_, host, host, Locale{}) {
    thread_ = std::thread([&] { baton_.serve([&] { return over_.load(); }); });
    screen_.forms_thread(thread_.get_id());
}

HeadlessStage::~HeadlessStage() {
    baton_.hand_over_last([&] { over_ = true; });
    thread_.join();
}

void HeadlessStage::start(std::function<void()> job) {
    ++jobs_running_;
    baton_.hand_over([this, job = std::move(job)] {
        job();
        --jobs_running_;
    });
}

void HeadlessStage::pump() {
    pumps_ = true;
    baton_.serve([&] { return !pumps_; });
}

void HeadlessStage::end_pump() {
    baton_.hand_over([&] { pumps_ = false; });
}

std::unique_ptr<PublicClass> HeadlessStage::create(const std::string& name) {
    if (name == "ConfigurationSetup") return std::make_unique<Portable<ConfigurationSetup>>(environment_);
    if (name == "LeafSelect") return std::make_unique<Portable<LeafSelect>>(environment_);
    if (name == "ServerSelect") return std::make_unique<Portable<ServerSelect>>(environment_);
    if (name == "ServerAdd") return std::make_unique<Portable<ServerAdd>>(environment_);
    if (name == "ServerInformation") return std::make_unique<Portable<ServerInformation>>(environment_);
    if (name == "TestConfiguration") return std::make_unique<Portable<TestConfiguration>>(environment_);
    throw Error(error::cannot_create_object);
}

std::string HeadlessStage::leaks() { return engine_.hourglasses() == 0 ? "" : "The hourglass was left on. "; }

bool is_the_hosts_database(const hlxDatabasePtr& database) {
    return std::dynamic_pointer_cast<FakeDatabase>(database) != nullptr;
}

std::unique_ptr<Stage> make_stage(FakeHost& host) { return std::make_unique<HeadlessStage>(host); }

} // namespace brx::checks
