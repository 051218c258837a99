#pragma once

#include "common/model/opc_automation.h"
#include "host/recorded.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brx::checks {

/// What one call of Validate was given.
struct Validation {
    StringArray item_ids;
    std::optional<ShortArray> data_types;
    std::optional<StringArray> access_paths;
    bool operator==(const Validation&) const = default;
};

/// One item of the simulated group.
class FakeOPCItem : public OPCItem, public Recorded {
public:
    FakeOPCItem(CallLog& calls, std::string item_id, std::int16_t data_type)
        : Recorded(calls, "OPCItem"), item_id_(std::move(item_id)), data_type_(data_type) {}

    std::string ItemID() override { return read("ItemID", item_id_); }
    bool IsActive() override { return read("IsActive", active_); }
    void set_IsActive(bool value) override { write("IsActive", active_, value); }
    bool active() const { return active_; }
    std::int16_t CanonicalDataType() override { return read("CanonicalDataType", data_type_); }
    const std::string& id() const { return item_id_; }

private:
    std::string item_id_;
    std::int16_t data_type_;
    bool active_ = false;
};

/// The items of the simulated group.
class FakeOPCItems : public OPCItems, public Recorded {
public:
    static constexpr std::int32_t unknown_item = -1073479673;   // 0xC0040007
    static constexpr std::int32_t invalid_handle = -1073479679; // 0xC0040001

    explicit FakeOPCItems(CallLog& calls) : Recorded(calls, "OPCItems") {}

    /// The error code for each item; an item that is not listed is unknown.
    std::map<std::string, std::int32_t> answers;
    /// The VARTYPE code of each item; that of a double where none is listed.
    std::map<std::string, std::int16_t> data_types;
    /// What Validate answers instead: an array of whatever shape.
    std::optional<LongArray> claimed_errors;
    /// The handles that AddItems gives instead.
    std::optional<LongArray> claimed_handles;
    std::vector<Validation> validations;
    /// What was handed to AddItems and Remove.
    std::vector<StringArray> added;
    std::vector<LongArray> client_handles;
    std::vector<std::optional<ShortArray>> requested_types;
    std::vector<std::optional<StringArray>> added_paths;
    std::vector<LongArray> removed;

    /// Puts an item into the group and gives its handle.
    std::int32_t has(const std::string& item_id);
    std::vector<std::string> ids() const;
    void forget_all() { entries_.clear(); }
    /// Whether the group has the item and collects it.
    bool is_active(const std::string& item_id) const;
    /// 0 for an item that is not in the group.
    std::int32_t handle_of(const std::string& item_id) const;

    std::int32_t Count() override;
    OPCItemPtr Item(const Variant& item_specifier) override;
    AddedItems AddItems(const StringArray& item_ids, const LongArray& handles,
                        const std::optional<ShortArray>& requested_data_types,
                        const std::optional<StringArray>& access_paths) override;
    LongArray Remove(const LongArray& server_handles) override;
    LongArray Validate(const StringArray& item_ids, const std::optional<ShortArray>& requested_data_types,
                       const std::optional<StringArray>& access_paths) override;

private:
    std::int32_t error_of(const std::string& item_id) const;

    struct Entry {
        std::int32_t handle;
        std::shared_ptr<FakeOPCItem> item;
    };
    std::vector<Entry> entries_;
    std::int32_t last_handle_ = 100;
};

/// A simulated group.
class FakeOPCGroup : public OPCGroup, public Recorded {
public:
    explicit FakeOPCGroup(CallLog& calls)
        : Recorded(calls, "OPCGroup"), items(std::make_shared<FakeOPCItems>(calls)) {}

    std::weak_ptr<brx::OPCServer> server;
    std::string name = "Group1";
    std::shared_ptr<FakeOPCItems> items;

    OPCServerPtr Parent() override { return read("Parent", server.lock()); }
    std::string Name() override { return read("Name", name); }
    OPCItemsPtr OPCItems() override { return read("OPCItems", items); }
};

/// The groups of the simulated server.
class FakeOPCGroups : public OPCGroups, public Recorded {
public:
    explicit FakeOPCGroups(CallLog& calls) : Recorded(calls, "OPCGroups") {}

    std::vector<std::shared_ptr<FakeOPCGroup>> entries;
    void has(const std::string& name) {
        entries.push_back(std::make_shared<FakeOPCGroup>(calls_));
        entries.back()->name = name;
    }

    std::int32_t Count() override { return read("Count", static_cast<std::int32_t>(entries.size())); }
    OPCGroupPtr Item(const Variant& position) override {
        note("Item");
        const auto* index = std::get_if<std::int32_t>(&position);
        if (!index || *index < 1 || static_cast<std::size_t>(*index) > entries.size())
            throw Error(error::subscript_out_of_range);
        return answered(OPCGroupPtr(entries[static_cast<std::size_t>(*index) - 1]));
    }
    OPCGroupPtr Add(const std::optional<std::string>&) override {
        throw Error(error::internal, "No group was to be added");
    }
    void RemoveAll() override { throw Error(error::internal, "No group was to be removed"); }
    void Remove(const Variant&) override { throw Error(error::internal, "No group was to be removed"); }
};

} // namespace brx::checks
