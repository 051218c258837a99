#pragma once

#include "common/model/object.h"

#include <cstdint>
#include <string>

namespace brx {

class hlxDatabase;
class hlxTestData;
class hlxRecord;
class hlxSelection;
using hlxDatabasePtr = std::shared_ptr<hlxDatabase>;
using hlxTestDataPtr = std::shared_ptr<hlxTestData>;
using hlxRecordPtr = std::shared_ptr<hlxRecord>;
using hlxSelectionPtr = std::shared_ptr<hlxSelection>;

// The host's database library, brxDatabase6. Numbers in brackets are positions in the automation interface.
// Ids are positive; 0 is none.

/// The connection to the host's database. The dialogs only pass it on.
class hlxDatabase : public Object {};

/// The record of a test characteristic.
class hlxTestData : public Object {
public:
    virtual std::int32_t ID() = 0;                         ///< (1)
    virtual void set_ID(std::int32_t value) = 0;           ///< (2)
    virtual std::int32_t GroupID() = 0;                    ///< (3) the characteristic's group
    virtual std::string Name() = 0;                        ///< (4)
    virtual void set_Flag(std::int16_t value) = 0;         ///< (5) 0 before a save
    virtual void set_Mode(std::int16_t value) = 0;         ///< (6) 1: found by its id
    virtual bool Load(const hlxDatabasePtr& database) = 0; ///< (7) true when the record was found
    virtual void Save(const hlxDatabasePtr& database) = 0; ///< (8)
};

/// A record found by its key: a part, process, job, shift or descriptor, or a group of these or of tests.
///
/// Set the key (the name, or the id with the name left empty) and SearchFlag 1, then Load. A descriptor is
/// looked up by name within the group that GroupID says.
class hlxRecord : public Object {
public:
    virtual std::int32_t ID() = 0;                       ///< (1)
    virtual void set_ID(std::int32_t value) = 0;         ///< (2)
    virtual std::string Name() = 0;                      ///< (3)
    virtual void set_Name(const std::string& value) = 0; ///< (4)
    virtual std::int32_t GroupID() = 0;                  ///< (5) 0 for a group
    virtual void set_GroupID(std::int32_t value) = 0;    ///< (6)
    virtual void set_SearchFlag(std::int16_t value) = 0; ///< (7)
    /// (8) True when the record was found; the other fields are then filled.
    virtual bool Load(const hlxDatabasePtr& database) = 0;
};

/// A dialog of the database library in which a person picks a record: one class per kind.
class hlxSelection : public Object {
public:
    /// (1) Shows the dialog with the record `id` of the group `group_id` as the current choice. True when a
    /// record was picked.
    virtual bool Show(const hlxDatabasePtr& database, std::int32_t id, std::int32_t group_id) = 0;
    /// (2) What was picked, Nothing before: an hlxTestData from the characteristic picker, an hlxRecord
    /// otherwise.
    virtual ObjectPtr Record() = 0;
};

} // namespace brx
