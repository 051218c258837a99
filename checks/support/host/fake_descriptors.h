#pragma once

#include "common/model/configuration.h"
#include "common/values/text.h"
#include "host/call_log.h"

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
class FakeDescriptor : public hlxOPCDescriptor {
public:
    FakeDescriptor(CallLog& calls, const FakeDescriptors& owner, DescriptorFields of_fields)
        : fields(std::move(of_fields)), calls_(calls), owner_(owner) {}

    DescriptorFields fields;
    std::string untold; ///< the member that cannot be read

    std::int32_t Index() override;
    std::int32_t Type() override { return read("Type", fields.type); }
    std::string ItemName() override { return read("ItemName", fields.item); }
    void set_ItemName(const std::string& value) override { write("ItemName=", fields.item, value); }
    std::string GroupName() override { return read("GroupName", fields.group); }
    void set_GroupName(const std::string& value) override { write("GroupName=", fields.group, value); }

private:
    template <class Value> Value read(const std::string& member, const Value& value) {
        calls_.note("hlxOPCDescriptor." + member);
        if (member == untold) throw Error(error::invalid_procedure_call);
        return value;
    }
    void write(const std::string& member, std::string& field, const std::string& value);

    CallLog& calls_;
    const FakeDescriptors& owner_;
};

/// The descriptors of the fake configuration.
class FakeDescriptors : public hlxOPCDescriptors {
public:
    explicit FakeDescriptors(CallLog& calls) : calls_(calls) {}

    std::vector<std::shared_ptr<FakeDescriptor>> entries;
    bool keeps_all = false;       ///< Remove fails
    bool drops_and_fails = false; ///< Remove fails, and has removed it all the same
    bool adds_in_front = false;   ///< Add makes the new one the first
    bool adds_and_fails = false;  ///< Add fails, and has added it all the same
    bool gives_nothing = false;   ///< Add gives Nothing, and has added it all the same
    bool trims_names = false;     ///< leading and trailing blanks are not kept

    void has(const DescriptorFields& fields) {
        entries.push_back(std::make_shared<FakeDescriptor>(calls_, *this, fields));
    }
    std::vector<DescriptorFields> fields() const {
        std::vector<DescriptorFields> all;
        for (const auto& entry : entries) all.push_back(entry->fields);
        return all;
    }

    std::unique_ptr<Enumerator<hlxOPCDescriptor>> NewEnum() override {
        calls_.note("hlxOPCDescriptors.NewEnum");
        return std::make_unique<ForEach>(*this);
    }
    hlxOPCDescriptorPtr Add(std::int32_t type) override {
        calls_.note("hlxOPCDescriptors.Add");
        const auto added = std::make_shared<FakeDescriptor>(
            calls_, *this, DescriptorFields{.type = type, .item = {}, .group = {}});
        entries.insert(adds_in_front ? entries.begin() : entries.end(), added);
        if (adds_and_fails) throw Error(error::invalid_procedure_call);
        return gives_nothing ? nullptr : added;
    }
    hlxOPCDescriptorPtr Item(const Variant& position) override {
        calls_.note("hlxOPCDescriptors.Item");
        return entries.at(static_cast<std::size_t>(std::get<std::int32_t>(position)) - 1);
    }
    std::int32_t Count() override {
        calls_.note("hlxOPCDescriptors.Count");
        return static_cast<std::int32_t>(entries.size());
    }
    void Remove(std::int32_t position) override {
        calls_.note("hlxOPCDescriptors.Remove");
        if (keeps_all) throw Error(error::invalid_procedure_call);
        if (position < 1 || static_cast<std::size_t>(position) > entries.size())
            throw Error(error::subscript_out_of_range);
        entries.erase(entries.begin() + position - 1);
        if (drops_and_fails) throw Error(error::invalid_procedure_call);
    }

private:
    class ForEach : public Enumerator<hlxOPCDescriptor> {
    public:
        explicit ForEach(FakeDescriptors& all) : all_(all) {}
        hlxOPCDescriptorPtr Next() override {
            all_.calls_.note("hlxOPCDescriptors.Next");
            return next_ < all_.entries.size() ? all_.entries[next_++] : nullptr;
        }

    private:
        FakeDescriptors& all_;
        std::size_t next_ = 0;
    };

    CallLog& calls_;
};

inline void FakeDescriptor::write(const std::string& member, std::string& field, const std::string& value) {
    calls_.note("hlxOPCDescriptor." + member);
    field = owner_.trims_names ? trim(value) : value;
}

inline std::int32_t FakeDescriptor::Index() {
    calls_.note("hlxOPCDescriptor.Index");
    std::int32_t position = 0;
    for (const auto& entry : owner_.entries) {
        ++position;
        if (entry.get() == this) return position;
    }
    return 0;
}

} // namespace brx::checks
