// The host's database: characteristics, parts and so on, with a way to pick one of them.
#pragma once

#include "values.h"

#include <brxDatabase6.h>

struct Row {
    LONG id;
    LONG group;
    std::wstring name;
};
struct Table {
    std::wstring title;
    std::vector<Row> groups;
    std::vector<Row> rows;
};

inline Table characteristics{
    L"Characteristics", {{1, 0, L"Bottles"}, {2, 0, L"Caps"}}, {{10, 1, L"Weight"}, {11, 2, L"Torque"}}};
inline Table parts{L"Parts", {{1, 0, L"Bottles"}}, {{20, 1, L"Bottle 0.75 l"}, {21, 1, L"Bottle 1 l"}}};
inline Table processes{L"Processes", {{1, 0, L"Filling"}}, {{30, 1, L"Filler"}}};
inline Table jobs{L"Jobs", {{1, 0, L"November"}}, {{40, 1, L"Job 4711"}}};
inline Table shifts{L"Shifts", {{1, 0, L"Week"}}, {{50, 1, L"Early"}, {51, 1, L"Late"}}};
inline Table descriptors_table{L"Descriptors", {{1, 0, L"Operators"}}, {{60, 1, L"First operator"}}};

class Database : public brxModel::hlxDatabase {};

/// A row, looked up by its name, or by its id where that is empty.
class Record : public brxModel::hlxRecord {
public:
    explicit Record(const std::vector<Row>& rows) : rows_(rows) {}
    void take(const Row& row) { row_ = row; }

    STDMETHODIMP get_ID(LONG* id) override { return *id = row_.id, S_OK; }
    STDMETHODIMP put_ID(LONG id) override { return row_.id = id, S_OK; }
    STDMETHODIMP get_Name(BSTR* name) override { return brxModel::give(name, row_.name.c_str()); }
    STDMETHODIMP put_Name(BSTR name) override { return row_.name = text_of(name), S_OK; }
    STDMETHODIMP get_GroupID(LONG* group) override { return *group = row_.group, S_OK; }
    STDMETHODIMP put_GroupID(LONG group) override { return row_.group = group, S_OK; }
    STDMETHODIMP put_SearchFlag(short) override { return S_OK; }
    STDMETHODIMP Load(_hlxDatabase*, VARIANT_BOOL* found) override {
        *found = VARIANT_FALSE;
        for (const Row& each : rows_) {
            const bool is_it = row_.name.empty()
                                   ? each.id == row_.id
                                   : each.name == row_.name && (row_.group == 0 || row_.group == each.group);
            if (!is_it) continue;
            row_ = each;
            *found = VARIANT_TRUE;
            break;
        }
        return S_OK;
    }

private:
    const std::vector<Row>& rows_;
    Row row_{};
};

/// What a test measures. A new id counts when it is saved, and nothing else is written then.
class TestData : public brxModel::hlxTestData {
public:
    void take(const Row& row) {
        row_ = row;
        new_id_ = row.id;
    }
    const std::wstring& name() const { return row_.name; }

    STDMETHODIMP get_ID(LONG* id) override { return *id = new_id_, S_OK; }
    STDMETHODIMP put_ID(LONG id) override { return new_id_ = id, S_OK; }
    STDMETHODIMP get_GroupID(LONG* group) override { return *group = row_.group, S_OK; }
    STDMETHODIMP get_Name(BSTR* name) override { return brxModel::give(name, row_.name.c_str()); }
    STDMETHODIMP put_Flag(short) override { return S_OK; }
    STDMETHODIMP put_Mode(short) override { return S_OK; }
    STDMETHODIMP Save(_hlxDatabase*) override {
        for (const Row& each : characteristics.rows)
            if (each.id == new_id_) return take(each), S_OK;
        return brxModel::failed(L"There is no such characteristic.");
    }

private:
    Row row_{};
    LONG new_id_ = 0;
};

/// Asks for one row after the other whether it is the one.
inline const Row* ask(const Table& table) {
    for (const Row& each : table.rows) {
        const std::wstring question = L"Take \"" + each.name + L"\"?";
        const int answer = MessageBoxW(GetActiveWindow(), question.c_str(), table.title.c_str(),
                                       MB_YESNOCANCEL | MB_ICONQUESTION);
        if (answer == IDYES) return &each;
        if (answer == IDCANCEL) break;
    }
    return nullptr;
}

// The component makes these itself, so each is a class without arguments.

template <const Table& table> class GroupOf : public Record {
public:
    GroupOf() : Record(table.groups) {}
};
template <const Table& table> class RecordOf : public Record {
public:
    RecordOf() : Record(table.rows) {}
};

template <const Table& table> class SelectionOf : public brxModel::hlxSelection {
public:
    STDMETHODIMP Show(_hlxDatabase*, LONG, LONG, VARIANT_BOOL* picked) override {
        const Row* row = ask(table);
        if (row) row_ = row;
        *picked = row ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    }
    STDMETHODIMP get_Record(IDispatch** record) override {
        *record = nullptr;
        if (!row_) return S_OK;
        if (&table == &characteristics) {
            auto made = make<TestData>();
            made->take(*row_);
            return brxModel::give(record, made.get());
        }
        auto made = make<RecordOf<table>>();
        made->take(*row_);
        return brxModel::give(record, made.get());
    }

private:
    const Row* row_ = nullptr;
};
