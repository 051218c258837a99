#include "plant/groups.h"

#include "plant/keep.h"
#include "plant/opc_errors.h"
#include "plant/server.h"
#include "plant/specifier.h"

#include <algorithm>

namespace brx::plant {

Group::Group(Server& server, std::string name, std::int32_t server_handle)
    : server_(&server), name_(std::move(name)), server_handle_(server_handle), items_(*this) {}

Server& Group::server() const {
    if (!server_) throw failure(com_error::unspecified);
    return *server_;
}

OPCServerPtr Group::Parent() { return server().shared_from_this(); }

std::string Group::Name() {
    static_cast<void>(server());
    return name_;
}

std::shared_ptr<Items> Group::items() {
    const auto group = keep_with(server().shared_from_this(), shared_from_this());
    return std::shared_ptr<Items>(group, &items_);
}

OPCItemsPtr Group::OPCItems() { return items(); }

void Group::remove() {
    items_.remove_all();
    server_ = nullptr;
}

OPCGroupPtr Groups::Item(const Variant& item_specifier) {
    const auto position =
        position_of(item_specifier, groups_, [](const auto& group) { return group->Name(); });
    return keep_with(server_->shared_from_this(), groups_[position]);
}

std::shared_ptr<Group> Groups::make(const std::string& name) {
    if (!server_) throw failure(com_error::unspecified);
    const std::int32_t handle = server_->connection().new_handle();
    const std::string wanted = name.empty() ? "Group" + std::to_string(handle) : name;
    if (std::ranges::any_of(groups_, [&](const auto& group) { return group->Name() == wanted; }))
        throw failure(opc_error::duplicate_name);
    const auto& added = groups_.emplace_back(std::make_shared<Group>(*server_, wanted, handle));
    return keep_with(server_->shared_from_this(), added);
}

void Groups::Remove(const Variant& item_specifier) {
    const auto* const handle = std::get_if<std::int32_t>(&item_specifier);
    const auto* const name = std::get_if<std::string>(&item_specifier);
    const auto is_meant = [&](const auto& group) {
        return handle ? group->ServerHandle() == *handle : name && group->Name() == *name;
    };
    const auto group = std::ranges::find_if(groups_, is_meant);
    if (group == groups_.end()) throw failure(com_error::invalid_argument);
    (*group)->remove();
    groups_.erase(group);
}

void Groups::RemoveAll() {
    for (const auto& group : groups_) group->remove();
    groups_.clear();
}

void Groups::leave_server() {
    RemoveAll();
    server_ = nullptr;
}

} // namespace brx::plant
