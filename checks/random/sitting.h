#pragma once

#include "host/fake_host.h"
#include "random/deed.h"
#include "random/watch.h"
#include "stage.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace brx::checks {

/// A host, and a person before its screen: from the first deed until everything is closed again. What is
/// found wrong is thrown as a Finding.
class Sitting {
public:
    explicit Sitting(int world = 0);
    ~Sitting();
    Sitting(const Sitting&) = delete;
    Sitting& operator=(const Sitting&) = delete;

    Screen& screen() { return stage_->screen(); }
    bool is_showing() { return stage_->busy(); }
    /// Does it, or leaves it out. True when it was possible.
    bool plays(const Deed& deed);
    void ends();

    /// The forms that were in front after a deed.
    const std::set<std::string>& seen() const { return seen_; }

private:
    bool does(const Deed& deed);
    bool person_does(const Deed& deed);
    void host_does(const Deed& deed);
    bool shows(const Deed& deed);
    std::vector<ObjectPtr> objects_for(const Deed& deed) const;
    void is_called(std::size_t position);
    void close_everything();
    void look();

    int alive_before_;
    std::unique_ptr<FakeHost> host_;
    std::unique_ptr<Stage> stage_;
    std::unique_ptr<Watch> watch_;
    Deeds in_calls_;
    Disturbance disturbance_;
    std::set<std::string> seen_;
    bool ended_ = false;
};

} // namespace brx::checks
