#include "plant/items.h"

#include "plant/groups.h"
#include "plant/keep.h"
#include "plant/opc_errors.h"
#include "plant/server.h"
#include "plant/specifier.h"

#include <algorithm>

namespace brx::plant {

namespace {

constexpr std::int16_t good = 0xC0;
constexpr std::int16_t bad_out_of_service = 0x1C;

bool is_number(Type type) { return type != Type::text && type != Type::date && type != Type::boolean; }

/// What the simulated servers can turn a value into: itself, a text, and numbers into numbers.
bool converts(Type from, std::int16_t wanted) {
    if (wanted == 0 || wanted == static_cast<std::int16_t>(from)) return true;
    const auto to = static_cast<Type>(wanted);
    switch (to) {
    case Type::text:
        return true;
    case Type::short_integer:
    case Type::long_integer:
    case Type::single:
    case Type::real:
    case Type::currency:
    case Type::byte:
        return is_number(from);
    case Type::date:
    case Type::boolean:
        break;
    }
    return false;
}

bool follows_the_syntax(const std::string& item_id) {
    return !item_id.empty() && std::ranges::none_of(item_id, [](unsigned char c) { return c < ' '; });
}

/// What is asked for one item.
struct Wish {
    const std::string& item_id;
    std::int16_t data_type;
    const std::string& access_path;
};

std::uint32_t objection(const AddressSpace& space, const Wish& wish) {
    if (!follows_the_syntax(wish.item_id)) return opc_error::invalid_item_id;
    const Leaf* leaf = space.find(wish.item_id);
    if (!leaf) return opc_error::unknown_item_id;
    if (!wish.access_path.empty()) return opc_error::unknown_path;
    if (!converts(leaf->signal.type, wish.data_type)) return opc_error::bad_type;
    return 0;
}

template <class T> void must_cover(const std::optional<Array<T>>& array, std::size_t count) {
    if (array && array->elements.size() < count) throw failure(com_error::invalid_argument);
}

/// One error code for each item.
LongArray objections(const AddressSpace& space, const StringArray& item_ids,
                     const std::optional<ShortArray>& data_types,
                     const std::optional<StringArray>& access_paths) {
    static const std::string no_path;
    const std::size_t count = item_ids.elements.size();
    must_cover(data_types, count);
    must_cover(access_paths, count);
    LongArray codes;
    for (std::size_t i = 0; i < count; ++i) {
        const Wish wish{.item_id = item_ids.elements[i],
                        .data_type = data_types ? data_types->elements[i] : std::int16_t{0},
                        .access_path = access_paths ? access_paths->elements[i] : no_path};
        codes.elements.push_back(as_number(objection(space, wish)));
    }
    return codes;
}

} // namespace

Item::Item(Group& group, const Leaf& leaf, std::int32_t server_handle, std::int32_t client_handle)
    : group_(&group), leaf_(&leaf), server_handle_(server_handle), client_handle_(client_handle) {}

const Leaf& Item::leaf() const {
    if (!group_) throw failure(com_error::unspecified);
    return *leaf_;
}

std::string Item::ItemID() { return leaf().id; }

bool Item::IsActive() {
    static_cast<void>(leaf());
    return active_;
}

void Item::set_IsActive(bool value) {
    static_cast<void>(leaf());
    active_ = value;
}

std::int16_t Item::CanonicalDataType() {
    if (leaf().trouble == Trouble::type_unreadable) throw failure(opc_error::bad_type);
    return static_cast<std::int16_t>(leaf().signal.type);
}

Reading Item::read() const {
    const Leaf& source = leaf();
    const Server& server = group_->server();
    const Date time = server.clock().now();
    if (!active_) return {Empty{}, bad_out_of_service, time};
    const std::uint64_t seed = server.connection().place().seed ^ seed_of(source.id);
    return {value_at(source.signal, seed, time), good, time};
}

std::optional<double> Item::range() const {
    const Signal& signal = leaf().signal;
    const bool limited = is_number(signal.type) && signal.high > signal.low;
    return limited ? std::optional(signal.high - signal.low) : std::nullopt;
}

std::int32_t Items::Count() {
    static_cast<void>(group_.server());
    return static_cast<std::int32_t>(items_.size());
}

OPCItemPtr Items::Item(const Variant& item_specifier) {
    Server& server = group_.server();
    const auto position =
        position_of(item_specifier, items_, [](const auto& item) { return item->ItemID(); });
    return keep_with(keep_with(server.shared_from_this(), group_.shared_from_this()), items_[position]);
}

AddedItems Items::AddItems(const StringArray& item_ids, const LongArray& client_handles,
                           const std::optional<ShortArray>& requested_data_types,
                           const std::optional<StringArray>& access_paths) {
    Connection& connection = group_.server().connection();
    const std::size_t count = item_ids.elements.size();
    if (client_handles.elements.size() < count) throw failure(com_error::invalid_argument);
    AddedItems added;
    added.Errors = objections(*connection.space(), item_ids, requested_data_types, access_paths);
    for (std::size_t i = 0; i < count; ++i) {
        std::int32_t handle = 0;
        if (added.Errors.elements[i] == 0) {
            const Leaf& leaf = *connection.space()->find(item_ids.elements[i]);
            if (leaf.trouble == Trouble::cannot_be_added) {
                added.Errors.elements[i] = as_number(opc_error::bad_rights);
            } else {
                handle = connection.new_handle();
                items_.push_back(
                    std::make_shared<plant::Item>(group_, leaf, handle, client_handles.elements[i]));
            }
        }
        added.ServerHandles.elements.push_back(handle);
    }
    return added;
}

LongArray Items::Remove(const LongArray& server_handles) {
    static_cast<void>(group_.server());
    LongArray codes;
    for (const std::int32_t handle : server_handles.elements) {
        const auto item = find(handle);
        if (item == items_.end()) {
            codes.elements.push_back(as_number(opc_error::invalid_handle));
            continue;
        }
        (*item)->remove();
        items_.erase(item);
        codes.elements.push_back(0);
    }
    return codes;
}

LongArray Items::Validate(const StringArray& item_ids, const std::optional<ShortArray>& requested_data_types,
                          const std::optional<StringArray>& access_paths) {
    return objections(*group_.server().connection().space(), item_ids, requested_data_types, access_paths);
}

std::shared_ptr<plant::Item> Items::by_handle(std::int32_t server_handle) {
    Server& server = group_.server();
    const auto item = find(server_handle);
    if (item == items_.end()) return nullptr;
    return keep_with(keep_with(server.shared_from_this(), group_.shared_from_this()), *item);
}

std::vector<std::shared_ptr<Item>>::iterator Items::find(std::int32_t server_handle) {
    return std::ranges::find_if(items_,
                                [&](const auto& item) { return item->ServerHandle() == server_handle; });
}

void Items::remove_all() {
    for (const auto& item : items_) item->remove();
    items_.clear();
}

} // namespace brx::plant
