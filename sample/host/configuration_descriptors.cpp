#include "host/configuration_descriptors.h"

#include "collect/reference.h"
#include "host/host.h"
#include "host/positions.h"

namespace brx::host {

namespace {

/// Goes through the descriptors as they were when it began.
class Descriptors final : public Enumerator<hlxOPCDescriptor> {
public:
    explicit Descriptors(std::vector<hlxOPCDescriptorPtr> all) : all_(std::move(all)) {}
    hlxOPCDescriptorPtr Next() override { return next_ < all_.size() ? all_[next_++] : nullptr; }

private:
    std::vector<hlxOPCDescriptorPtr> all_;
    std::size_t next_ = 0;
};

} // namespace

void ConfigurationDescriptor::write(const char* column, std::string& field, const std::string& value) {
    host_.configurations().descriptor_row(id()).write({{column, cell_of(value)}});
    field = value;
}

void ConfigurationDescriptor::set_ItemName(const std::string& value) {
    write("item_name", stored_.item_name, value);
}

void ConfigurationDescriptor::set_GroupName(const std::string& value) {
    write("group_name", stored_.group_name, value);
}

std::int32_t ConfigurationDescriptor::Index() {
    const auto descriptors = descriptors_.lock();
    return descriptors ? descriptors->position(this) : 0;
}

std::shared_ptr<DescriptorList> DescriptorList::make(Host& host, std::int64_t configuration_id) {
    auto made = std::make_shared<DescriptorList>(host, configuration_id);
    for (StoredDescriptor& stored : host.configurations().descriptors_of(configuration_id))
        made->descriptors_.push_back(
            std::make_shared<ConfigurationDescriptor>(host, made, std::move(stored)));
    return made;
}

std::unique_ptr<Enumerator<hlxOPCDescriptor>> DescriptorList::NewEnum() {
    std::vector<hlxOPCDescriptorPtr> all;
    for (const auto& each : descriptors_) all.push_back(host_.kept(each));
    return std::make_unique<host::Descriptors>(std::move(all));
}

hlxOPCDescriptorPtr DescriptorList::Add(std::int32_t type) {
    checked_code(type, 0, 8);
    descriptors_.reserve(descriptors_.size() + 1); // nothing may fail once it is stored
    const auto added = std::make_shared<ConfigurationDescriptor>(
        host_, weak_from_this(), host_.configurations().add_descriptor(configuration_id_, type));
    descriptors_.push_back(added);
    return host_.kept(added);
}

hlxOPCDescriptorPtr DescriptorList::Item(const Variant& position) {
    return host_.kept(descriptors_[index_of(descriptors_, position_in(position))]);
}

void DescriptorList::Remove(std::int32_t position) {
    const std::size_t index = index_of(descriptors_, position);
    host_.configurations().remove_descriptor(descriptors_[index]->id());
    descriptors_[index]->leave();
    erase_at(descriptors_, index);
}

std::int32_t DescriptorList::position(const ConfigurationDescriptor* descriptor) const {
    return position_of(descriptors_, descriptor);
}

std::set<std::string> DescriptorList::items() const {
    std::set<std::string> found;
    for (const auto& each : descriptors_)
        found.insert({collect::referred_item(each->ItemName()), collect::referred_item(each->GroupName())});
    return found;
}

} // namespace brx::host
