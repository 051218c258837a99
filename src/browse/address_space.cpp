// What the item browser shows of the server's address space: branches as a tree, the items of one as a list.

#include "browse/dlgItemSelect.h"
#include "common/values/text.h"
#include "forms/busy_cursor.h"
#include "forms/list_tools.h"

namespace brx {

namespace {

constexpr std::int32_t flat_organization = 2;

/// A branch's path as the list of names from the root down. A name with a full stop in it falls apart here.
StringArray branches_of(const std::string& key) {
    StringArray branches;
    branches.lower_bound = 0;
    std::size_t begin = 0;
    for (std::size_t end; (end = key.find('.', begin)) != std::string::npos; begin = end + 1)
        branches.elements.push_back(key.substr(begin, end - begin));
    branches.elements.push_back(key.substr(begin));
    return branches;
}

/// The server or the way to it has gone, by the codes that the system has for that.
bool tells_of_a_lost_server(std::int32_t number) {
    switch (static_cast<std::uint32_t>(number)) {
    case 0x80010006: // RPC_E_CONNECTION_TERMINATED
    case 0x80010007: // RPC_E_SERVER_DIED
    case 0x80010012: // RPC_E_SERVER_DIED_DNE
    case 0x80010108: // RPC_E_DISCONNECTED
    case 0x800401FD: // CO_E_OBJNOTCONNECTED
    case 0x80080005: // CO_E_SERVER_EXEC_FAILURE
    case 0x800706BA: // RPC_S_SERVER_UNAVAILABLE
    case 0x800706BE: // RPC_S_CALL_FAILED
    case 0x800706BF: // RPC_S_CALL_FAILED_DNE
        return true;
    default:
        return false;
    }
}

} // namespace

bool dlgItemSelect::is_placeholder(const TreeNode& node) { return to_upper(node.text()) == "XXX"; }

void dlgItemSelect::ConnectServer() {
    reads("ConnectServer", "groups", "Refresh", [&] {
        const BusyCursor busy(*this);
        work().waits_for("Reading the groups of " + server_title_);
        note("", "");
        TrView.clear();
        lstItem.clear();
        set_path("");
        if (!browser_) ignoring([&] { browser_ = the(server_).CreateBrowser(); });
        work().expect_no_stop();
        if (!browser_) return show_nothing_to_browse();
        browser_->MoveToRoot();
        browser_->ShowBranches();
        if (browser_->Count() == 0) {
            // A flat server without branches to show counts as one that cannot browse.
            browser_ = nullptr;
            return show_nothing_to_browse();
        }
        show_browsing();
        BuildGroupList();
    });
}

void dlgItemSelect::show_nothing_to_browse() {
    picTrView.bring_to_front();
    TrView.set_visible(false);
    lstItem.set_enabled(false);
    lstItem.set_back_color(color::button_face);
    txtFullPath.set_focus();
}

void dlgItemSelect::show_browsing() {
    picTrView.send_to_back();
    TrView.set_visible(true);
    lstItem.set_enabled(true);
    lstItem.set_back_color(color::window);
}

void dlgItemSelect::BuildGroupList() {
    reads("BuildGroupList", "groups", "Refresh", [&] {
        if (!browser_) return;
        const bool flat = browser_->Organization() == flat_organization;
        TrView.set_visible(!flat);
        if (flat) return GetAllLeaves();
        browser_->MoveToRoot();
        browser_->ShowBranches();
        const std::int32_t count = browser_->Count();
        if (count < 1) return GetAllLeaves();
        work().counts_to(count);
        for (std::int32_t i = 1; i <= count; ++i) {
            if (work().is_stopped()) return note(stopped_after(i - 1, count, "groups", "Refresh"), "");
            work().has_done(i - 1);
            const std::string name = browser_->Item(i);
            TreeNode& node = TrView.add(name, name);
            node.set_tag(name);
            TrView.add_child(node, "", "xxx");
        }
    });
}

void dlgItemSelect::TrView_Expand(TreeNode& Node) {
    trap("TrView_Expand", [&] {
        const int index = Node.index();
        if (TreeNode* child = Node.child(); child && is_placeholder(*child)) {
            TrView.remove(*child);
            BuildNodes(Node.key(), index);
        }
        TrView.select(&TrView.node(index));
    });
}

void dlgItemSelect::BuildNodes(const std::string& ParentKey, int ParentIndex) {
    reads("BuildNodes", "groups", "Refresh", [&] {
        lstItem.clear();
        set_path("");
        note(groups_notice_, "");
        const StringArray branches = branches_of(ParentKey);
        if (!browser_) return;
        work().waits_for("Reading branch " + ParentKey + " of " + server_title_);
        if (browser_->Organization() == flat_organization) return GetAllLeaves();
        browser_->MoveToRoot();
        // After a failed move the branches of wherever the browser stands are read.
        ignoring([&] { browser_->MoveTo(branches); });
        ignoring([&] { browser_->ShowBranches(); });
        const std::int32_t count = browser_->Count();
        if (count < 1) {
            TreeNode* child = TrView.node(ParentIndex).child();
            if (!child || !is_placeholder(*child)) return;
            TrView.select(child);
            TrView.remove(*child);
            return;
        }
        TreeNode& parent = TrView.node(ParentKey);
        work().counts_to(count);
        for (std::int32_t i = 1; i <= count; ++i) {
            if (work().is_stopped()) return note(stopped_after(i - 1, count, "groups", "Refresh"), "");
            work().has_done(i - 1);
            const std::string name = browser_->Item(i);
            const std::string key = parent.tag() + "." + name;
            TreeNode& node = TrView.add_child(parent, key, name);
            node.set_tag(key);
            TrView.add_child(node, "", "XXX");
        }
    });
}

void dlgItemSelect::TrView_NodeClick(TreeNode& Node) {
    trap("TrView_NodeClick", [&] { BuildLeaves(Node.key(), Node.index()); });
}

void dlgItemSelect::TrView_Click() {
    trap("TrView_Click", [&] {
        // A sign can be pressed where no node is selected.
        if (const TreeNode* node = TrView.selected()) BuildLeaves(node->key(), node->index());
    });
}

void dlgItemSelect::BuildLeaves(const std::string& Key, int) {
    reads("BuildLeaves", "items", "a click on the group", [&] {
        if (work().is_stopped()) return; // what the same click has read so far stays
        lstItem.clear();
        set_path("");
        note(groups_notice_, "");
        const StringArray branches = branches_of(Key);
        if (!browser_) return;
        work().waits_for("Reading branch " + Key + " of " + server_title_);
        browser_->MoveToRoot();
        ignoring([&] { browser_->MoveTo(branches); });
        ignoring([&] { browser_->ShowLeafs(false); });
        list_items(browser_->Count(), "a click on the group");
    });
}

void dlgItemSelect::GetAllLeaves() {
    reads("GetAllLeaves", "items", "Refresh", [&] {
        lstItem.clear();
        if (!browser_) return;
        work().waits_for("Reading all items of " + server_title_);
        browser_->MoveToRoot();
        browser_->ShowLeafs(true);
        const std::int32_t count = browser_->Count();
        if (count > 0) TrView.set_visible(false);
        list_items(count, "Refresh");
    });
}

void dlgItemSelect::list_items(std::int32_t count, const char* again) {
    Work& reading = work();
    reading.counts_to(count);
    std::string name;
    for (std::int32_t i = 1; i <= count; ++i) {
        if (reading.is_stopped()) return note(groups_notice_, stopped_after(i - 1, count, "items", again));
        reading.has_done(i - 1);
        browser_->read_item(i, name);
        hlxListTools::add(lstItem, name);
    }
}

void dlgItemSelect::reads(const char* procedure, const std::string& what, const std::string& again,
                          const std::function<void()>& body) {
    trap(procedure, [&] {
        try {
            body();
        } catch (const Stopped&) {
            const std::string notice = "Reading was stopped. To read the " + what + ": " + again + ".";
            if (what == "groups")
                note(notice, "");
            else
                note(groups_notice_, notice);
        }
    });
}

void dlgItemSelect::ignoring(const std::function<void()>& step) {
    work().expect_no_stop();
    attempt([&] {
        try {
            step();
        } catch (const Error& error) {
            if (!work().is_stopped() && tells_of_a_lost_server(error.number()))
                note(groups_notice_, "The server does not answer: " + error.description());
        }
    });
}

void dlgItemSelect::note(const std::string& of_groups, const std::string& of_items) {
    groups_notice_ = of_groups;
    const char* const between = of_groups.empty() || of_items.empty() ? "" : "  ";
    lblNotice.set_caption(of_groups + between + of_items);
}

std::string dlgItemSelect::stopped_after(int read, int of_all, const char* what, const char* again) const {
    const Locale& locale = environment().locale;
    return "Reading was stopped at " + grouped(read, locale) + " of " + grouped(of_all, locale) + " " + what +
           ". To read them all: " + again + ".";
}

} // namespace brx
