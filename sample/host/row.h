#pragma once

#include "common/values/variant.h"
#include "host/sqlite.h"

#include <initializer_list>
#include <string>
#include <variant>

namespace brx::host {

/// What a column holds; nothing is NULL.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string>;

inline Cell cell_of(bool value) { return std::int64_t{value}; }
inline Cell cell_of(std::int16_t value) { return std::int64_t{value}; }
inline Cell cell_of(std::int32_t value) { return std::int64_t{value}; }
/// Error 5 for what is no number, which the file would not keep.
Cell cell_of(double value);
inline Cell cell_of(float value) { return cell_of(double{value}); }
inline Cell cell_of(Date value) { return cell_of(value.days); }
inline Cell cell_of(const std::string& value) { return value; }

struct ColumnValue {
    const char* column;
    Cell value;
};

/// One row of a table, by its id.
class Row {
public:
    Row(SqliteFile& file, const char* table, std::int64_t id) : file_(file), table_(table), id_(id) {}

    /// Writes all these columns or, when it fails, none. It also fails when the row is gone.
    void write(std::initializer_list<ColumnValue> values) const;

private:
    SqliteFile& file_;
    const char* table_;
    std::int64_t id_;
};

/// Which of Variant's types a value has, as the file keeps it beside the value: the VARTYPE code. Error 13
/// for values that are not kept: objects, arrays, omitted arguments and foreign types.
Cell type_cell_of(const Variant& value);
Cell value_cell_of(const Variant& value);
/// The value again, from the two columns of a row.
Variant value_from(const Statement& row, int type_column, int value_column);

} // namespace brx::host
