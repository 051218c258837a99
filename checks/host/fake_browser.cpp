#include "host/fake_browser.h"

#include <algorithm>

namespace brx::checks {

namespace {

constexpr std::int32_t unspecified = -2147467259; // 0x80004005

}

void FakeBrowser::is_asked(const std::string& member, const std::string& arguments) {
    before(member);
    note(member + arguments);
    if (failing.contains(member)) throw Error(failure, member + " is out of order", "OPCBrowser");
}

std::int32_t FakeBrowser::Organization() {
    is_asked("Organization");
    return answered(organization);
}

std::int32_t FakeBrowser::Count() {
    is_asked("Count");
    return answered(claimed_count.value_or(static_cast<std::int32_t>(list_.size())));
}

std::string FakeBrowser::Item(std::int32_t index) {
    is_asked("Item", "(" + std::to_string(index) + ")");
    if (index < 1 || static_cast<std::size_t>(index) > list_.size())
        throw Error(error::subscript_out_of_range);
    return answered(list_[static_cast<std::size_t>(index) - 1]);
}

void FakeBrowser::ShowBranches() {
    is_asked("ShowBranches");
    list_.clear();
    for (const FakeBranch& branch : here_->branches) list_.push_back(branch.name);
}

void FakeBrowser::ShowLeafs(bool flat) {
    is_asked("ShowLeafs", flat ? "(True)" : "(False)");
    list_.clear();
    if (flat)
        list_all_below(*here_, "");
    else
        list_ = here_->leaves;
}

void FakeBrowser::list_all_below(const FakeBranch& branch, const std::string& path) {
    for (const std::string& leaf : branch.leaves) list_.push_back(path + leaf);
    for (const FakeBranch& below : branch.branches) list_all_below(below, path + below.name + ".");
}

void FakeBrowser::MoveToRoot() {
    is_asked("MoveToRoot");
    here_ = &root;
    path_.clear();
}

void FakeBrowser::MoveTo(const StringArray& branches) {
    std::string names;
    for (const std::string& name : branches.elements) names += (names.empty() ? "" : "|") + name;
    is_asked("MoveTo", "(" + names + ")");
    lower_bound = branches.lower_bound;
    here_ = &root;
    path_.clear();
    for (const std::string& name : branches.elements) {
        const auto found = std::find_if(here_->branches.begin(), here_->branches.end(),
                                        [&](const FakeBranch& each) { return each.name == name; });
        if (found == here_->branches.end()) throw Error(unspecified, "There is no " + name, "OPCBrowser");
        here_ = &*found;
        path_ += name + ".";
    }
}

std::string FakeBrowser::GetItemID(const std::string& leaf) {
    is_asked("GetItemID", "(" + leaf + ")");
    if (std::find(list_.begin(), list_.end(), leaf) == list_.end())
        throw Error(unspecified, "There is no " + leaf, "OPCBrowser");
    return answered(path_ + leaf);
}

} // namespace brx::checks
