#pragma once

#include "common/model/opc_automation.h"
#include "plant/address_space.h"

#include <memory>
#include <vector>

namespace brx::plant {

class Group;

/// One reading of an item.
struct Reading {
    Variant value;
    std::int16_t quality = 0; ///< 0xC0 good, 0 bad
    Date time;                ///< UTC
};

inline bool is_good(const Reading& reading) { return (reading.quality & 0xC0) == 0xC0; }

/// One item of a group. Once it is removed, every member fails.
class Item final : public OPCItem {
public:
    Item(Group& group, const Leaf& leaf, std::int32_t server_handle, std::int32_t client_handle);

    std::string ItemID() override;
    bool IsActive() override;
    void set_IsActive(bool value) override;
    std::int16_t CanonicalDataType() override;

    std::int32_t ServerHandle() const { return server_handle_; }
    std::int32_t ClientHandle() const { return client_handle_; }
    /// The value now. That of an inactive item is bad.
    Reading read() const;
    /// From its lowest to its highest value; none for an item that has no such limits.
    std::optional<double> range() const;
    void remove() { group_ = nullptr; }

private:
    const Leaf& leaf() const;

    Group* group_; ///< null once removed
    const Leaf* leaf_;
    std::int32_t server_handle_;
    std::int32_t client_handle_;
    bool active_ = true;
};

/// The items of a group, in the order in which they were added.
class Items final : public OPCItems {
public:
    explicit Items(Group& group) : group_(group) {}

    std::int32_t Count() override;
    OPCItemPtr Item(const Variant& item_specifier) override;
    AddedItems AddItems(const StringArray& item_ids, const LongArray& client_handles,
                        const std::optional<ShortArray>& requested_data_types,
                        const std::optional<StringArray>& access_paths) override;
    LongArray Remove(const LongArray& server_handles) override;
    LongArray Validate(const StringArray& item_ids, const std::optional<ShortArray>& requested_data_types,
                       const std::optional<StringArray>& access_paths) override;

    /// By the handle that AddItems gave; null for any other.
    std::shared_ptr<plant::Item> by_handle(std::int32_t server_handle);
    void remove_all();

private:
    std::vector<std::shared_ptr<plant::Item>>::iterator find(std::int32_t server_handle);

    Group& group_;
    std::vector<std::shared_ptr<plant::Item>> items_;
};

} // namespace brx::plant
