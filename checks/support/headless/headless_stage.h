#pragma once

#include "forms/environment.h"
#include "forms/headless/user.h"
#include "host/fake_host.h"
#include "stage.h"

#include <atomic>
#include <thread>

namespace brx::checks {

/// A screen on the headless engine. Every look and deed runs on the forms' thread.
class HeadlessScreen : public Screen {
public:
    HeadlessScreen(Baton& baton, HeadlessEngine& engine) : baton_(baton), engine_(engine), user_(engine) {}
    void forms_thread(std::thread::id id) { forms_thread_ = id; }

    std::string front() override;
    std::string caption() override;
    Sight look(const std::string& control) override;
    std::optional<Message> message() override;
    bool hourglass() override;

    bool press(const std::string& button) override;
    bool choose(const std::string& list, int line) override;
    bool double_click(const std::string& list, int line) override;
    bool expand(const std::string& tree, int row) override;
    bool collapse(const std::string& tree, int row) override;
    bool toggle(const std::string& check_box) override;
    bool set_date(const std::string& picker, const std::string& text) override;
    bool focus(const std::string& control) override;
    bool type(const std::string& text) override;
    bool paste(const std::string& text) override;
    bool copy(const std::string& text) override;
    bool key(Key key) override;
    bool accelerator(char letter) override;
    bool close_box() override;
    bool answer(std::int32_t button) override;
    void pass_ticks(int times) override;
    std::string help() override;
    std::optional<Waiting> waiting() override;
    bool stop() override;

private:
    /// Looks on the forms' thread, at once when this is it.
    template <class Look> auto there(Look&& look) {
        decltype(look()) result{};
        if (std::this_thread::get_id() == forms_thread_) return look();
        baton_.hand_over([&] { result = look(); });
        return result;
    }

    /// Does something on the forms' thread. A deed that has opened a window has not ended yet, and was
    /// possible; so is one that has to wait until code has run.
    bool deed(std::function<bool()> work, bool leaves = false) {
        if (std::this_thread::get_id() == forms_thread_) return engine_.person_does(std::move(work), leaves);
        const auto possible = std::make_shared<bool>(true);
        baton_.hand_over([this, possible, leaves, work = std::move(work)] {
            *possible = engine_.person_does(work, leaves);
        });
        return *possible;
    }

    Baton& baton_;
    HeadlessEngine& engine_;
    HeadlessUser user_;
    std::string clipboard_;
    std::thread::id forms_thread_;
};

/// The portable component on a thread of its own, over the headless engine.
class HeadlessStage : public Stage {
public:
    explicit HeadlessStage(FakeHost& host);
    ~HeadlessStage() override;

    Screen& screen() override { return screen_; }
    void start(std::function<void()> job) override;
    bool busy() override { return jobs_running_ > 0; }
    std::unique_ptr<PublicClass> create(const std::string& name) override;
    void pass(std::chrono::milliseconds time) override { engine_.work().pass(time); }
    std::string leaks() override;
    std::string differences() override { return {}; }

    /// On the forms' thread: takes input until `end_pump`, as foreign code does that waits for messages.
    void pump();
    void end_pump();

    HeadlessEngine& engine() { return engine_; }
    Environment& environment() { return environment_; }

private:
    Baton baton_;
    HeadlessEngine engine_{baton_};
    Environment environment_;
    HeadlessScreen screen_{baton_, engine_};
    std::atomic<int> jobs_running_ = 0;
    std::atomic<bool> over_ = false;
    bool pumps_ = false;
    std::thread thread_;
};

} // namespace brx::checks
