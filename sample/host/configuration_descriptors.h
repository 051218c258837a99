#pragma once

#include "common/model/configuration.h"
#include "host/configuration_store.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace brx::host {

class DescriptorList;
class Host;

/// One descriptor of a configuration. What is written is stored at once; a write that fails changes nothing,
/// and every write fails once the descriptor has been removed.
class ConfigurationDescriptor final : public hlxOPCDescriptor {
public:
    ConfigurationDescriptor(Host& host, std::weak_ptr<DescriptorList> descriptors, StoredDescriptor stored)
        : host_(host), descriptors_(std::move(descriptors)), stored_(std::move(stored)) {}

    std::int32_t Index() override;
    std::int32_t Type() override { return stored_.type; }
    std::string ItemName() override { return stored_.item_name; }
    void set_ItemName(const std::string& value) override;
    std::string GroupName() override { return stored_.group_name; }
    void set_GroupName(const std::string& value) override;

    std::int64_t id() const { return stored_.id; }
    void leave() { descriptors_.reset(); }

private:
    void write(const char* column, std::string& field, const std::string& value);

    Host& host_;
    std::weak_ptr<DescriptorList> descriptors_;
    StoredDescriptor stored_;
};

/// The descriptors of a configuration.
class DescriptorList final : public hlxOPCDescriptors, public std::enable_shared_from_this<DescriptorList> {
public:
    static std::shared_ptr<DescriptorList> make(Host& host, std::int64_t configuration_id);
    DescriptorList(Host& host, std::int64_t configuration_id)
        : host_(host), configuration_id_(configuration_id) {}

    std::unique_ptr<Enumerator<hlxOPCDescriptor>> NewEnum() override;
    hlxOPCDescriptorPtr Add(std::int32_t type) override;
    hlxOPCDescriptorPtr Item(const Variant& position) override;
    std::int32_t Count() override { return static_cast<std::int32_t>(descriptors_.size()); }
    void Remove(std::int32_t position) override;

    std::int32_t position(const ConfigurationDescriptor* descriptor) const;
    const std::vector<std::shared_ptr<ConfigurationDescriptor>>& all() const { return descriptors_; }
    /// The items that the descriptors' texts refer to.
    std::set<std::string> items() const;

private:
    Host& host_;
    std::int64_t configuration_id_;
    std::vector<std::shared_ptr<ConfigurationDescriptor>> descriptors_;
};

} // namespace brx::host
