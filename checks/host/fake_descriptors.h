#pragma once

#include "common/model/configuration.h"
#include "common/values/text.h"
#include "host/recorded.h"

#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

class FakeDescriptors;

/// What a descriptor holds.
struct DescriptorFields {
    std::int32_t type = 0;
    std::string item;
    std::string group;
    bool operator==(const DescriptorFields&) const = default;
};

/// One descriptor of the fake host.
class FakeDescriptor : public hlxOPCDescriptor, public Recorded {
public:
    FakeDescriptor(CallLog& calls, const FakeDescriptors& owner, DescriptorFields of_fields)
        : Recorded(calls, "hlxOPCDescriptor"), fields(std::move(of_fields)), owner_(owner) {}

    DescriptorFields fields;

    std::int32_t Index() override;
    std::int32_t Type() override { return read("Type", fields.type); }
    std::string ItemName() override { return read("ItemName", fields.item); }
    void set_ItemName(const std::string& value) override { write("ItemName", fields.item, kept(value)); }
    std::string GroupName() override { return read("GroupName", fields.group); }
    void set_GroupName(const std::string& value) override { write("GroupName", fields.group, kept(value)); }

private:
    std::string kept(const std::string& value) const;

    const FakeDescriptors& owner_;
};

/// The descriptors of the fake configuration.
class FakeDescriptors : public RecordedCollection<hlxOPCDescriptors, hlxOPCDescriptor, FakeDescriptor> {
public:
    explicit FakeDescriptors(CallLog& calls) : RecordedCollection(calls, "hlxOPCDescriptors") {}

    bool adds_in_front = false; ///< Add makes the new one the first
    bool trims_names = false;   ///< leading and trailing blanks are not kept

    void has(const DescriptorFields& fields) {
        entries.push_back(std::make_shared<FakeDescriptor>(calls_, *this, fields));
    }
    std::vector<DescriptorFields> fields() const {
        std::vector<DescriptorFields> all;
        for (const auto& entry : entries) all.push_back(entry->fields);
        return all;
    }

    std::unique_ptr<Enumerator<hlxOPCDescriptor>> NewEnum() override {
        note("NewEnum");
        return std::make_unique<ForEach>(*this);
    }
    hlxOPCDescriptorPtr Add(std::int32_t type) override {
        note("Add");
        const auto fresh = std::make_shared<FakeDescriptor>(
            calls_, *this, DescriptorFields{.type = type, .item = {}, .group = {}});
        entries.insert(adds_in_front ? entries.begin() : entries.end(), fresh);
        return added(fresh);
    }

private:
    class ForEach : public Enumerator<hlxOPCDescriptor> {
    public:
        explicit ForEach(FakeDescriptors& all) : all_(all) {}
        hlxOPCDescriptorPtr Next() override {
            all_.note("Next");
            if (next_ >= all_.entries.size()) return nullptr;
            return all_.answered(hlxOPCDescriptorPtr(all_.entries[next_++]));
        }

    private:
        FakeDescriptors& all_;
        std::size_t next_ = 0;
    };
};

inline std::string FakeDescriptor::kept(const std::string& value) const {
    return owner_.trims_names ? trim(value) : value;
}

inline std::int32_t FakeDescriptor::Index() { return read("Index", owner_.position_of(this)); }

} // namespace brx::checks
