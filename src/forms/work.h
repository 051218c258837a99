#pragma once

#include <atomic>
#include <chrono>
#include <mutex>
#include <string>
#include <utility>

namespace brx {

struct Locale;

/// The work of one handler, from its first statement to its last: what it waits for, how far it is, and
/// whether a person wants it to end. The thread of the forms does it; an engine shows work that lasts, from
/// another thread where that is the one that lives.
class Work {
public:
    using Milliseconds = std::chrono::milliseconds;

    /// Work that is shorter than this is shown by nothing.
    static constexpr Milliseconds shown_after{1000};
    /// What nobody waits for in particular leaves the thread to a person by then.
    static constexpr Milliseconds long_for_a_tick{500};

    /// What a person wants of it.
    enum class Wish {
        go_on,
        leave, ///< what it is for: it need not go on, but no call fails for that
        stop,  ///< it: the next call fails
    };

    /// What there is to tell of it.
    struct Report {
        std::string what;      ///< is waited for, as a sentence without its full stop
        int done = 0;          ///< of `total`
        int total = 0;         ///< 0 where nobody knows
        Milliseconds lasted{}; ///< since it began, or went on after a person was asked something
        Wish wish = Wish::go_on;
        bool call_goes_on = false; ///< at a stop: it could not be broken off
        unsigned turn = 0;         ///< which work of its thread it is, for `stop`
    };

    Work();
    virtual ~Work() { forget(); }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    // For what does the work.

    /// From here on this is waited for.
    void waits_for(const std::string& what);
    /// The same for a part of the work that a person who has stopped the last one does not wait for.
    void go_on_with(const std::string& what);
    /// There is so much of it to be done, one after the other.
    void counts_to(int total) { done_ = 0, total_ = total; }
    void has_done(int count) { done_.store(count, std::memory_order_relaxed); }
    /// Does it for 1 to `count`, as long as nobody wants it to end. Returns for how many it was done.
    template <class Step> int each(int count, Step&& step) {
        counts_to(count);
        int done = 0;
        for (; done < count && !is_stopped(); has_done(++done)) step(done + 1);
        return done;
    }
    /// The same, and throws when it has ended before the last one.
    template <class Step> void all(int count, Step&& step) {
        if (each(count, std::forward<Step>(step)) < count) expect_no_stop();
    }
    /// The first of 1 to `count` that is sought, 0 for none. Throws when it has ended before.
    template <class IsSought> int first_of(int count, IsSought&& is_sought) {
        counts_to(count);
        for (int i = 1; i <= count; ++i, has_done(i - 1)) {
            expect_no_stop();
            if (is_sought(i)) return i;
        }
        return 0;
    }
    /// Whether a person wants it to end before its next call. What does not ask has its next call fail.
    bool is_stopped() { return is_seen_.load(std::memory_order_relaxed) && looks_for_stop(); }
    /// Throws `Stopped` or `Left` then.
    void expect_no_stop();
    /// Whether a person has done something that waits for it to end.
    virtual bool keeps_a_person_waiting() { return false; }
    Milliseconds lasted() const { return now() - began_.load(); }
    virtual Milliseconds now() const;

    // For what shows it.

    Report report() const;
    /// Whether there is work, and no person is being asked something meanwhile.
    bool is_going_on() const { return going_on_; }
    /// A person wants it to end. Nothing happens when other work goes on by now than that of this turn.
    void stop(unsigned turn);
    void stop() { stop(report().turn); }
    /// A person is about to leave what it is for: what asks need not go on. No call fails for that.
    void leave();

    /// Whether calls of this thread are to fail by now, so that work which does not ask ends too.
    static bool refuses_calls();

    /// For its lifetime a handler runs, unless one runs already.
    class Scope {
    public:
        explicit Scope(Work& work);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        Work* own_;
    };

    /// What becomes of a Stop after a pause.
    enum class Afterwards {
        as_before,
        afresh, ///< it is forgotten: a person has worked in between
    };

    /// For its lifetime the thread waits for a person, not a person for it. Work of others goes on from what
    /// it was.
    class Pause {
    public:
        explicit Pause(Afterwards afterwards = Afterwards::as_before);
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        Work* paused_;
        std::string what_;
        int done_ = 0;
        int total_ = 0;
        Wish wish_{};
        bool undoes_;
        Afterwards afterwards_;
    };

protected:
    /// It begins, ends, is paused or goes on.
    virtual void changed() {}
    /// A person sees it, and so can want it to end: asked before each call, which costs nothing before that.
    void is_seen();
    virtual bool looks_for_stop() { return wish_ != Wish::go_on; }
    /// Breaks off the call that is under way. The work does not end meanwhile. False where that cannot be
    /// done.
    virtual bool break_off_call() { return true; }

private:
    void go_on(bool on);
    void forget();

    mutable std::mutex mutex_; ///< of `what_` and the turns
    std::string what_;
    unsigned turn_ = 0;
    std::atomic<int> done_ = 0;
    std::atomic<int> total_ = 0;
    std::atomic<Wish> wish_ = Wish::go_on;
    std::atomic<bool> call_goes_on_ = false;
    std::atomic<bool> is_seen_ = false;
    std::atomic<bool> going_on_ = false;
    std::atomic<Milliseconds> began_{};
};

/// As a person reads it: "Reading the items of Line1", and "12 s - 5,000 of 20,000".
std::string told_what(const Work::Report& report);
std::string grouped(int number, const Locale& locale); ///< with the user's sign between thousands
std::string told_how_far(const Work::Report& report, const Locale& locale);

} // namespace brx
