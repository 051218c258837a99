#pragma once

#include "common/model/collection.h"

#include <memory>

namespace brx {

class hlxOPCConfiguration;
class hlxOPCTests;
class hlxOPCTest;
class hlxOPCDescriptors;
class hlxOPCDescriptor;
using hlxOPCConfigurationPtr = std::shared_ptr<hlxOPCConfiguration>;
using hlxOPCTestsPtr = std::shared_ptr<hlxOPCTests>;
using hlxOPCTestPtr = std::shared_ptr<hlxOPCTest>;
using hlxOPCDescriptorsPtr = std::shared_ptr<hlxOPCDescriptors>;
using hlxOPCDescriptorPtr = std::shared_ptr<hlxOPCDescriptor>;

/// One collection configuration: how values are collected from one server.
///
/// Time units are 0 seconds, 1 minutes, 2 hours, 3 days, 4 weeks, 5 months, 6 quarters, 7 years, -1 none.
/// Trigger types are 0 always, 1 equal, 2 greater, 3 greater or equal, 4 less, 5 less or equal, 6 different.
class hlxOPCConfiguration : public Object {
public:
    virtual hlxOPCServerHolderPtr Server() = 0;                         ///< (3)
    virtual ObjectPtr OPCGroup() = 0;                                   ///< (5) an OPC automation group
    virtual hlxOPCDescriptorsPtr Descriptors() = 0;                     ///< (6)
    virtual hlxOPCTestsPtr Tests() = 0;                                 ///< (7)
    virtual std::int32_t SubgroupSize() = 0;                            ///< (8)
    virtual void set_SubgroupSize(std::int32_t value) = 0;              ///< (9)
    virtual std::string SubgroupTriggerItem() = 0;                      ///< (10) item identifier, "" for none
    virtual void set_SubgroupTriggerItem(const std::string& value) = 0; ///< (11)
    virtual std::int32_t SubgroupInterval() = 0;                        ///< (12) in SubgroupTimeUnit
    virtual void set_SubgroupInterval(std::int32_t value) = 0;          ///< (13)
    virtual std::int16_t SubgroupTimeUnit() = 0;                        ///< (14) -1..7
    virtual void set_SubgroupTimeUnit(std::int16_t value) = 0;          ///< (15)
    virtual std::string PieceTriggerItem() = 0;                         ///< (16) item identifier, "" for none
    virtual void set_PieceTriggerItem(const std::string& value) = 0;    ///< (17)
    virtual std::int32_t PieceInterval() = 0;                           ///< (18) in PieceTimeUnit
    virtual void set_PieceInterval(std::int32_t value) = 0;             ///< (19)
    virtual std::int16_t PieceTimeUnit() = 0;                           ///< (20) -1..7
    virtual void set_PieceTimeUnit(std::int16_t value) = 0;             ///< (21)
    virtual Date SyncDateTime() = 0;                                    ///< (23)
    virtual void set_SyncDateTime(Date value) = 0;                      ///< (24)
    virtual std::int16_t SubgroupTriggerType() = 0;                     ///< (27) 0..6
    virtual void set_SubgroupTriggerType(std::int16_t value) = 0;       ///< (28)
    virtual Variant SubgroupTriggerValue() = 0;                         ///< (29)
    virtual void set_SubgroupTriggerValue(const Variant& value) = 0;    ///< (30)
    virtual std::int16_t PieceTriggerType() = 0;                        ///< (31) 0..6
    virtual void set_PieceTriggerType(std::int16_t value) = 0;          ///< (32)
    virtual Variant PieceTriggerValue() = 0;                            ///< (33)
    virtual void set_PieceTriggerValue(const Variant& value) = 0;       ///< (34)
    virtual std::string Name() = 0;                                     ///< (39)
    virtual void set_Name(const std::string& value) = 0;                ///< (40)
    virtual bool Active() = 0;                                          ///< (41)
    virtual void set_Active(bool value) = 0;                            ///< (42)
    virtual float DeadBand() = 0;                                       ///< (43) percent of full scale
    virtual void set_DeadBand(float value) = 0;                         ///< (44)
    virtual std::int32_t UpdateRate() = 0;                              ///< (45) milliseconds
    virtual void set_UpdateRate(std::int32_t value) = 0;                ///< (46)
};

/// The tests of a configuration.
class hlxOPCTests : public Object {
public:
    virtual hlxOPCTestPtr Add() = 0;                         ///< (1) appends a new test
    virtual hlxOPCTestPtr Item(const Variant& position) = 0; ///< (2)
    virtual std::int32_t Count() = 0;                        ///< (3)
    virtual void Remove(std::int32_t position) = 0;          ///< (4)
    virtual hlxOPCConfigurationPtr Parent() = 0;             ///< (7) the owning configuration
};

/// States of a test that the dialogs know.
namespace test_state {
inline constexpr std::int32_t edited = 1;         ///< what the test dialog writes
inline constexpr std::int32_t item_not_shown = 2; ///< its item could not be had: not shown, and highlighted
} // namespace test_state

/// One test: a characteristic bound to an OPC item.
class hlxOPCTest : public Object {
public:
    virtual std::int32_t State() = 0;               ///< (1) 2 marks a test whose item is not shown
    virtual void set_State(std::int32_t value) = 0; ///< (2) the test dialog writes 1
    virtual hlxOPCTestsPtr Parent() = 0;            ///< (3) the owning collection
    virtual std::int32_t Index() = 0;               ///< (4) position in the owning collection
    virtual ObjectPtr TestData() = 0;               ///< (7) the characteristic's record (hlxTestData)
    virtual std::string OPCItemID() = 0;            ///< (10)
    virtual std::string ItemText() = 0;             ///< (11) the identifier to show at first
    virtual void set_OPCItemID(const std::string& value) = 0; ///< (12)
    virtual std::int32_t ClientHandle() = 0;                  ///< (13)
    virtual void set_ClientHandle(std::int32_t value) = 0;    ///< (14)
    virtual void set_ItemTrigger(bool value) = 0;             ///< (16) a change of the item's value collects
    virtual bool ItemTrigger() = 0;                           ///< (17)
    virtual std::int16_t TriggerExpression() = 0;             ///< (18) operator code 0..6
    virtual void set_TriggerExpression(std::int16_t value) = 0; ///< (19)
    virtual Variant TriggerValue() = 0;                         ///< (20)
    virtual void set_TriggerValue(const Variant& value) = 0;    ///< (21)
    virtual double Constant() = 0;                              ///< (22)
    virtual void set_Constant(double value) = 0;                ///< (23)
    virtual std::int16_t SaveAs() = 0;                          ///< (24) save-as code 0..3
    virtual void set_SaveAs(std::int16_t value) = 0;            ///< (25)
    virtual std::string CharacteristicName() = 0;               ///< (29)
};

/// Goes through the elements of a collection in order.
template <class Element> class Enumerator {
public:
    virtual ~Enumerator() = default;
    /// The next element; Nothing after the last.
    virtual std::shared_ptr<Element> Next() = 0;
};

/// The descriptors of a configuration.
class hlxOPCDescriptors : public Object {
public:
    /// Begins an enumeration (For Each).
    virtual std::unique_ptr<Enumerator<hlxOPCDescriptor>> NewEnum() = 0;
    virtual hlxOPCDescriptorPtr Add(std::int32_t type) = 0;        ///< (2) appends one of a type 0..8
    virtual hlxOPCDescriptorPtr Item(const Variant& position) = 0; ///< (3)
    virtual std::int32_t Count() = 0;                              ///< (4)
    virtual void Remove(std::int32_t position) = 0;                ///< (5)
};

/// A label attached to collected data.
class hlxOPCDescriptor : public Object {
public:
    virtual std::int32_t Index() = 0;                         ///< (2) position in the owning collection
    virtual std::int32_t Type() = 0;                          ///< (3) type code 0..8
    virtual std::string ItemName() = 0;                       ///< (5)
    virtual void set_ItemName(const std::string& value) = 0;  ///< (6)
    virtual std::string GroupName() = 0;                      ///< (7)
    virtual void set_GroupName(const std::string& value) = 0; ///< (8)
};

/// The object behind which a configuration's server is; null while it is not connected.
inline ObjectPtr connection_of(hlxOPCConfiguration& configuration) {
    return the(the(configuration.Server()).ServerEntry()).OPCServer();
}

} // namespace brx
