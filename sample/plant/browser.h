#pragma once

#include "plant/server.h"

#include <vector>

namespace brx::plant {

/// Walks the address space of one connection. Browsers of a connection share their position, as those of real
/// servers do; each has its own list. Useless once the server has disconnected.
class Browser final : public OPCBrowser {
public:
    Browser(std::shared_ptr<Server> server, const std::shared_ptr<Connection>& connection);

    std::int32_t Organization() override;
    std::int32_t Count() override;
    std::string Item(std::int32_t index) override;
    void ShowBranches() override;
    void ShowLeafs(bool flat) override;
    void MoveToRoot() override;
    /// Empty names are skipped.
    void MoveTo(const StringArray& branches) override;
    /// The identifier of a branch or leaf here; an item's identifier is itself.
    std::string GetItemID(const std::string& leaf) override;

private:
    /// Every call begins so: it takes as long as the server takes, and may fail.
    void answer();
    std::shared_ptr<Connection> connection() const;
    void list_all_below(const Branch& branch);

    std::shared_ptr<Server> server_;
    std::weak_ptr<Connection> connection_;
    const ServerDescription& description_;
    AddressSpacePtr space_; ///< keeps what the list refers to
    std::vector<const std::string*> list_;
    int calls_ = 0;
    int names_read_ = 0;
};

} // namespace brx::plant
