#include "host/fake_group.h"

#include <algorithm>

namespace brx::checks {

std::int32_t FakeOPCItems::has(const std::string& item_id) {
    const auto type = data_types.find(item_id);
    entries_.push_back(
        {++last_handle_, std::make_shared<FakeOPCItem>(
                             calls_, item_id, type == data_types.end() ? std::int16_t{5} : type->second)});
    return last_handle_;
}

std::vector<std::string> FakeOPCItems::ids() const {
    std::vector<std::string> ids;
    for (const Entry& entry : entries_) ids.push_back(entry.item->id());
    return ids;
}

std::int32_t FakeOPCItems::handle_of(const std::string& item_id) const {
    for (const Entry& entry : entries_)
        if (entry.item->id() == item_id) return entry.handle;
    return 0;
}

bool FakeOPCItems::is_active(const std::string& item_id) const {
    return std::any_of(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.item->id() == item_id && entry.item->active();
    });
}

std::int32_t FakeOPCItems::error_of(const std::string& item_id) const {
    const auto known = answers.find(item_id);
    return known == answers.end() ? unknown_item : known->second;
}

std::int32_t FakeOPCItems::Count() {
    note("Count");
    return answered(static_cast<std::int32_t>(entries_.size()));
}

OPCItemPtr FakeOPCItems::Item(const Variant& item_specifier) {
    note("Item");
    if (const auto* position = std::get_if<std::int32_t>(&item_specifier))
        if (*position >= 1 && static_cast<std::size_t>(*position) <= entries_.size())
            return answered(OPCItemPtr(entries_[static_cast<std::size_t>(*position) - 1].item));
    if (const auto* id = std::get_if<std::string>(&item_specifier))
        for (const Entry& entry : entries_)
            if (entry.item->id() == *id) return answered(OPCItemPtr(entry.item));
    throw Error(error::subscript_out_of_range);
}

AddedItems FakeOPCItems::AddItems(const StringArray& item_ids, const LongArray& handles,
                                  const std::optional<ShortArray>& types,
                                  const std::optional<StringArray>& paths) {
    note("AddItems");
    added.push_back(item_ids);
    client_handles.push_back(handles);
    requested_types.push_back(types);
    added_paths.push_back(paths);
    AddedItems result;
    for (const std::string& id : item_ids.elements) {
        result.Errors.elements.push_back(error_of(id));
        result.ServerHandles.elements.push_back(error_of(id) == 0 ? has(id) : 0);
    }
    if (claimed_handles) result.ServerHandles = *claimed_handles;
    return result;
}

LongArray FakeOPCItems::Remove(const LongArray& server_handles) {
    note("Remove");
    removed.push_back(server_handles);
    LongArray errors;
    for (const std::int32_t handle : server_handles.elements)
        errors.elements.push_back(
            std::erase_if(entries_, [&](const Entry& each) { return each.handle == handle; })
                ? 0
                : invalid_handle);
    return errors;
}

LongArray FakeOPCItems::Validate(const StringArray& item_ids,
                                 const std::optional<ShortArray>& requested_data_types,
                                 const std::optional<StringArray>& access_paths) {
    note("Validate");
    validations.push_back({item_ids, requested_data_types, access_paths});
    if (claimed_errors) return *claimed_errors;
    LongArray errors;
    for (const std::string& id : item_ids.elements) errors.elements.push_back(error_of(id));
    return errors;
}

} // namespace brx::checks
