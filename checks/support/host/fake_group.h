#pragma once

#include "common/model/opc_automation.h"
#include "host/call_log.h"

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

/// The items of the simulated group. Nothing can be added yet.
class FakeOPCItems : public OPCItems {
public:
    static constexpr std::int32_t unknown_item = -1073479673; // 0xC0040007

    explicit FakeOPCItems(CallLog& calls) : calls_(calls) {}

    /// The error code for each item; an item that is not listed is unknown.
    std::map<std::string, std::int32_t> answers;
    /// What Validate answers instead: an array of whatever shape.
    std::optional<LongArray> claimed_errors;
    std::vector<Validation> validations;

    std::int32_t Count() override { return unexpected<std::int32_t>("OPCItems.Count"); }
    OPCItemPtr Item(const Variant&) override { return unexpected<OPCItemPtr>("OPCItems.Item"); }
    AddedItems AddItems(const StringArray&, const LongArray&, const std::optional<ShortArray>&,
                        const std::optional<StringArray>&) override {
        return unexpected<AddedItems>("OPCItems.AddItems");
    }
    LongArray Remove(const LongArray&) override { return unexpected<LongArray>("OPCItems.Remove"); }
    LongArray Validate(const StringArray& item_ids, const std::optional<ShortArray>& requested_data_types,
                       const std::optional<StringArray>& access_paths) override {
        calls_.note("OPCItems.Validate");
        validations.push_back({item_ids, requested_data_types, access_paths});
        if (claimed_errors) return *claimed_errors;
        LongArray errors;
        for (const std::string& id : item_ids.elements) {
            const auto known = answers.find(id);
            errors.elements.push_back(known == answers.end() ? unknown_item : known->second);
        }
        return errors;
    }

private:
    template <class Value> Value unexpected(const char* member) {
        calls_.note(member);
        throw Error(error::internal, std::string(member) + " was not to be called", "FakeOPCItems");
    }

    CallLog& calls_;
};

/// A simulated group.
class FakeOPCGroup : public OPCGroup {
public:
    explicit FakeOPCGroup(CallLog& calls) : items(std::make_shared<FakeOPCItems>(calls)), calls_(calls) {}

    std::weak_ptr<brx::OPCServer> server;
    std::shared_ptr<FakeOPCItems> items;

    OPCServerPtr Parent() override {
        calls_.note("OPCGroup.Parent");
        return server.lock();
    }
    std::string Name() override {
        calls_.note("OPCGroup.Name");
        return "Group1";
    }
    OPCItemsPtr OPCItems() override {
        calls_.note("OPCGroup.OPCItems");
        return items;
    }

private:
    CallLog& calls_;
};

} // namespace brx::checks
