#pragma once

#include "common/model/object.h"

#include <cstdint>
#include <optional>
#include <string>

namespace brx {

class OPCServer;
class OPCGroups;
class OPCGroup;
class OPCItems;
class OPCItem;
class OPCBrowser;
using OPCServerPtr = std::shared_ptr<OPCServer>;
using OPCGroupsPtr = std::shared_ptr<OPCGroups>;
using OPCGroupPtr = std::shared_ptr<OPCGroup>;
using OPCItemsPtr = std::shared_ptr<OPCItems>;
using OPCItemPtr = std::shared_ptr<OPCItem>;
using OPCBrowserPtr = std::shared_ptr<OPCBrowser>;

// The members of OPC Data Access Automation 2.02 that the dialogs and their hosts use, in their published
// order.

/// A connection to one OPC server. Unconnected it can still list the servers of a node; most of its
/// properties then fail.
class OPCServer : public Object {
public:
    /// Times are the server's own, in UTC.
    virtual Date StartTime() = 0;
    virtual Date CurrentTime() = 0;
    /// A server that never sent data reports a date in 1601.
    virtual Date LastUpdateTime() = 0;
    virtual std::int16_t MajorVersion() = 0;
    virtual std::int16_t MinorVersion() = 0;
    virtual std::int16_t BuildNumber() = 0;
    virtual std::string VendorInfo() = 0;
    /// 1 running, 2 failed, 3 no configuration, 4 suspended, 5 test, 6 disconnected.
    virtual std::int32_t ServerState() = 0;
    /// The program identifier it was connected with.
    virtual std::string ServerName() = 0;
    /// The computer name; "" for the local computer.
    virtual std::string ServerNode() = 0;
    virtual std::string ClientName() = 0;
    /// Percent; -1 when the server does not know.
    virtual std::int32_t Bandwidth() = 0;
    virtual OPCGroupsPtr OPCGroups() = 0;
    /// The program identifiers registered on `node`, normally as a StringArray from 1, also where they came
    /// in variants; the local computer without the argument. Any other answer is handed on as it is.
    virtual Variant GetOPCServers(const std::optional<std::string>& node) = 0;
    /// A new browser; fails on a server that cannot browse.
    virtual OPCBrowserPtr CreateBrowser() = 0;
    /// The server's text for one of its error codes.
    virtual std::string GetErrorString(std::int32_t error_code) = 0;
};

/// The groups of a server, numbered from 1.
class OPCGroups : public Object {
public:
    virtual std::int32_t Count() = 0;
    /// By position (32-bit integer) or by name (text, exact case).
    virtual OPCGroupPtr Item(const Variant& item_specifier) = 0;
    /// A new group; the server makes up a name when it is omitted.
    virtual OPCGroupPtr Add(const std::optional<std::string>& name) = 0;
    virtual void RemoveAll() = 0;
    /// By the group's handle (32-bit integer) or by name (text, exact case).
    virtual void Remove(const Variant& item_specifier) = 0;
};

/// A group of items that share their sampling.
class OPCGroup : public Object {
public:
    /// The server that the group belongs to.
    virtual OPCServerPtr Parent() = 0;
    virtual std::string Name() = 0;
    virtual OPCItemsPtr OPCItems() = 0;
};

/// What adding items gave, one element for each item in the order given.
struct AddedItems {
    LongArray ServerHandles; ///< 0 for an item that failed
    LongArray Errors;        ///< 0 (or positive) for an item that was added
};

/// The items of a group, numbered from 1.
///
/// Arrays of one call go together: element by element, each from 1. The data types are VARTYPE codes, 0 for
/// the server's own; both trailing arguments may be omitted. A refused item fails in the result, not by an
/// error.
class OPCItems : public Object {
public:
    virtual std::int32_t Count() = 0;
    /// By position (32-bit integer) or by item identifier (text, exact case).
    virtual OPCItemPtr Item(const Variant& item_specifier) = 0;
    virtual AddedItems AddItems(const StringArray& item_ids, const LongArray& client_handles,
                                const std::optional<ShortArray>& requested_data_types,
                                const std::optional<StringArray>& access_paths) = 0;
    /// Handles must come from AddItems; a zero or stale one can bring a real server down. Gives error codes.
    virtual LongArray Remove(const LongArray& server_handles) = 0;
    /// Asks whether the items could be added, and adds none. Gives error codes.
    virtual LongArray Validate(const StringArray& item_ids,
                               const std::optional<ShortArray>& requested_data_types,
                               const std::optional<StringArray>& access_paths) = 0;
};

/// One item of a group.
class OPCItem : public Object {
public:
    virtual std::string ItemID() = 0;
    virtual bool IsActive() = 0;
    virtual void set_IsActive(bool value) = 0;
    /// The VARTYPE code of the value as the server keeps it.
    virtual std::int16_t CanonicalDataType() = 0;
};

/// Walks a server's address space. Each Move and Show empties the list that Count and Item read.
class OPCBrowser : public Object {
public:
    /// 1 hierarchical, 2 flat.
    virtual std::int32_t Organization() = 0;
    virtual std::int32_t Count() = 0;
    /// The name at a position from 1.
    virtual std::string Item(std::int32_t index) = 0;
    /// The same into a text that is there already, for names by the million.
    virtual void read_item(std::int32_t index, std::string& name) { name = Item(index); }
    /// Lists the branches at the current position.
    virtual void ShowBranches() = 0;
    /// Lists the leaves at the current position, or (flat) every leaf from there down.
    virtual void ShowLeafs(bool flat) = 0;
    virtual void MoveToRoot() = 0;
    /// Goes from the root down the named branches. When one is unknown it fails and stays at the last one
    /// reached.
    virtual void MoveTo(const StringArray& branches) = 0;
    /// The item identifier of a leaf at the current position.
    virtual std::string GetItemID(const std::string& leaf) = 0;
};

} // namespace brx
