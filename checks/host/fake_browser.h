#pragma once

#include "common/model/opc_automation.h"
#include "host/recorded.h"

#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brx::checks {

/// A branch of a simulated address space.
struct FakeBranch {
    std::string name;
    std::deque<FakeBranch> branches;
    std::vector<std::string> leaves;

    /// A new branch below this one, which stays where it is.
    FakeBranch& has(const std::string& branch, std::vector<std::string> with_leaves = {}) {
        return branches.emplace_back(FakeBranch{branch, {}, std::move(with_leaves)});
    }
};

/// A simulated browser. An item's identifier is its branches and its name, joined with full stops.
class FakeBrowser : public OPCBrowser, public Recorded {
public:
    explicit FakeBrowser(CallLog& calls) : Recorded(calls, "OPCBrowser") {}

    FakeBranch root;
    std::int32_t organization = 1;
    /// What Count answers instead of the truth.
    std::optional<std::int32_t> claimed_count;
    /// Of the path that MoveTo was given last.
    std::int32_t lower_bound = -1;
    /// These members fail, whoever calls them.
    std::set<std::string> failing;
    std::int32_t failure = -2147467259; ///< how they fail: 0x80004005
    /// Runs before each call, with the member's name.
    std::function<void(const std::string& member)> before = [](const std::string&) {};

    /// The address space is empty from now on.
    void loses_everything() {
        root = {};
        here_ = &root;
        path_.clear();
    }

    std::int32_t Organization() override;
    std::int32_t Count() override;
    std::string Item(std::int32_t index) override;
    void ShowBranches() override;
    void ShowLeafs(bool flat) override;
    void MoveToRoot() override;
    void MoveTo(const StringArray& branches) override;
    std::string GetItemID(const std::string& leaf) override;

private:
    void is_asked(const std::string& member, const std::string& arguments = "");
    void list_all_below(const FakeBranch& branch, const std::string& path);

    const FakeBranch* here_ = &root;
    std::string path_; ///< of `here_`, with the full stop that an item's name follows
    std::vector<std::string> list_;
};

} // namespace brx::checks
