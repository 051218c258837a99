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
    reads("ConnectServer", groups_part, [&] {
        const BusyCursor busy(*this);
        work().waits_for("Reading the groups of " + server_title_);
        note_of_groups("");
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
    reads("BuildGroupList", groups_part, [&] {
        if (!browser_) return;
        const bool flat = browser_->Organization() == flat_organization;
        TrView.set_visible(!flat);
        if (flat) return GetAllLeaves();
        browser_->MoveToRoot();
        browser_->ShowBranches();
        const std::int32_t count = browser_->Count();
        if (count < 1) return GetAllLeaves();
        read_each(groups_part, count, [&](std::int32_t i) {
            const std::string name = browser_->Item(i);
            TreeNode& node = TrView.add(name, name);
            node.set_tag(name);
            TrView.add_child(node, "", "xxx");
        });
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
    reads("BuildNodes", groups_part, [&] {
        lstItem.clear();
        set_path("");
        note_of_items("");
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
        read_each(groups_part, count, [&](std::int32_t i) {
            const std::string name = browser_->Item(i);
            const std::string key = parent.tag() + "." + name;
            TreeNode& node = TrView.add_child(parent, key, name);
            node.set_tag(key);
            TrView.add_child(node, "", "XXX");
        });
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
    reads("BuildLeaves", items_of_group, [&] {
        if (work().is_stopped()) return; // what the same click has read so far stays
        lstItem.clear();
        set_path("");
        note_of_items("");
        const StringArray branches = branches_of(Key);
        if (!browser_) return;
        work().waits_for("Reading branch " + Key + " of " + server_title_);
        browser_->MoveToRoot();
        ignoring([&] { browser_->MoveTo(branches); });
        ignoring([&] { browser_->ShowLeafs(false); });
        list_items(items_of_group, browser_->Count());
    });
}

void dlgItemSelect::GetAllLeaves() {
    reads("GetAllLeaves", all_items, [&] {
        lstItem.clear();
        if (!browser_) return;
        work().waits_for("Reading all items of " + server_title_);
        browser_->MoveToRoot();
        browser_->ShowLeafs(true);
        const std::int32_t count = browser_->Count();
        if (count > 0) TrView.set_visible(false);
        list_items(all_items, count);
    });
}

void dlgItemSelect::list_items(const Part& part, std::int32_t count) {
    std::string name;
    read_each(part, count, [&](std::int32_t i) {
        browser_->read_item(i, name);
        hlxListTools::add(lstItem, name);
    });
}

void dlgItemSelect::reads(const char* procedure, const Part& part, const std::function<void()>& body) {
    trap(procedure, [&] {
        try {
            body();
        } catch (const Stopped&) {
            note_of(part,
                    std::string("Reading was stopped. To read the ") + part.of + ": " + part.again + ".");
        }
    });
}

void dlgItemSelect::read_each(const Part& part, std::int32_t count,
                              const std::function<void(std::int32_t)>& step) {
    const int read = work().each(count, step);
    if (read >= count) return;
    const Locale& locale = environment().locale;
    note_of(part, "Reading was stopped at " + grouped(read, locale) + " of " + grouped(count, locale) + " " +
                      part.of + ". To read them all: " + part.again + ".");
}

void dlgItemSelect::ignoring(const std::function<void()>& step) {
    work().expect_no_stop();
    attempt([&] {
        try {
            step();
        } catch (const Error& error) {
            if (!work().is_stopped() && tells_of_a_lost_server(error.number()))
                note_of_items("The server does not answer: " + error.description());
        }
    });
}

void dlgItemSelect::note_of_groups(const std::string& notice) {
    groups_notice_ = notice;
    note_of_items("");
}

void dlgItemSelect::note_of_items(const std::string& notice) {
    const char* const between = groups_notice_.empty() || notice.empty() ? "" : "  ";
    lblNotice.set_caption(groups_notice_ + between + notice);
}

void dlgItemSelect::note_of(const Part& part, const std::string& notice) {
    if (&part == &groups_part)
        note_of_groups(notice);
    else
        note_of_items(notice);
}

} // namespace brx
