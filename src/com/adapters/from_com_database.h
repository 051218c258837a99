#pragma once

#include "com/adapters/com_model.h"

namespace brx {

template <> class FromCom<hlxDatabase> final : public ComModel<hlxDatabase> {
public:
    using ComModel::ComModel;
};

template <> class FromCom<hlxTestData> final : public ComModel<hlxTestData> {
public:
    using ComModel::ComModel;
    std::int32_t ID() override { return call<std::int32_t>(&Interface::get_ID)(); }
    void set_ID(std::int32_t value) override { call<void> (&Interface::put_ID)(value); }
    std::int32_t GroupID() override { return call<std::int32_t>(&Interface::get_GroupID)(); }
    std::string Name() override { return call<std::string>(&Interface::get_Name)(); }
    void set_Flag(std::int16_t value) override { call<void> (&Interface::put_Flag)(value); }
    void set_Mode(std::int16_t value) override { call<void> (&Interface::put_Mode)(value); }
    bool Load(const hlxDatabasePtr& database) override { return call<bool>(&Interface::Load)(database); }
    void Save(const hlxDatabasePtr& database) override { call<void> (&Interface::Save)(database); }
};

template <> class FromCom<hlxRecord> final : public ComModel<hlxRecord> {
public:
    using ComModel::ComModel;
    std::int32_t ID() override { return call<std::int32_t>(&Interface::get_ID)(); }
    void set_ID(std::int32_t value) override { call<void> (&Interface::put_ID)(value); }
    std::string Name() override { return call<std::string>(&Interface::get_Name)(); }
    void set_Name(const std::string& value) override { call<void> (&Interface::put_Name)(value); }
    std::int32_t GroupID() override { return call<std::int32_t>(&Interface::get_GroupID)(); }
    void set_GroupID(std::int32_t value) override { call<void> (&Interface::put_GroupID)(value); }
    void set_SearchFlag(std::int16_t value) override { call<void> (&Interface::put_SearchFlag)(value); }
    bool Load(const hlxDatabasePtr& database) override { return call<bool>(&Interface::Load)(database); }
};

template <> class FromCom<hlxSelection> final : public ComModel<hlxSelection> {
public:
    using ComModel::ComModel;
    bool Show(const hlxDatabasePtr& database, std::int32_t id, std::int32_t group_id) override {
        return call<bool>(&Interface::Show)(database, id, group_id);
    }
    ObjectPtr Record() override { return call<ObjectPtr>(&Interface::get_Record)(); }
};

} // namespace brx
