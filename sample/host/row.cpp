#include "host/row.h"

#include <cmath>

namespace brx::host {

namespace {

template <class... Cases> struct Overloaded : Cases... { using Cases::operator()...; };
template <class... Cases> Overloaded(Cases...) -> Overloaded<Cases...>;

} // namespace

Cell cell_of(double value) {
    if (std::isnan(value)) throw Error(error::invalid_procedure_call);
    return value;
}

void Row::write(std::initializer_list<ColumnValue> values) const {
    std::string text = std::string("UPDATE ") + table_ + " SET ";
    const char* separator = "";
    int parameter = 0;
    for (const ColumnValue& each : values) {
        text += std::string(separator) + each.column + " = ?" + std::to_string(++parameter);
        separator = ", ";
    }
    text += " WHERE id = ?" + std::to_string(parameter + 1);
    Statement update(file_, text.c_str());
    parameter = 0;
    for (const ColumnValue& each : values) {
        ++parameter;
        std::visit(Overloaded{[&](std::monostate) { update.bind_null(parameter); },
                              [&](const auto& value) { update.bind(parameter, value); }},
                   each.value);
    }
    update.bind(parameter + 1, id_).step();
    if (file_.changes() == 0) throw failed_database(std::string("The ") + table_ + " has been removed.");
}

Cell type_cell_of(const Variant& value) { return std::int64_t{vartype(value)}; }

Cell value_cell_of(const Variant& value) {
    const auto refused = []() -> Cell { throw Error(error::type_mismatch); };
    return std::visit(
        Overloaded{[](Empty) -> Cell { return {}; }, [](Null) -> Cell { return {}; },
                   [](Currency amount) -> Cell { return amount.ten_thousandths; },
                   [&](Missing) { return refused(); }, [&](const ObjectPtr&) { return refused(); },
                   [&](const StringArray&) { return refused(); }, [&](const Opaque&) { return refused(); },
                   [](const auto& plain) { return cell_of(plain); }},
        value);
}

Variant value_from(const Statement& row, int type_column, int value_column) {
    switch (row.number(type_column)) {
    case 1:
        return Null{};
    case 2:
        return static_cast<std::int16_t>(row.number(value_column));
    case 3:
        return static_cast<std::int32_t>(row.number(value_column));
    case 4:
        return static_cast<float>(row.real(value_column));
    case 5:
        return row.real(value_column);
    case 6:
        return Currency{row.number(value_column)};
    case 7:
        return Date{row.real(value_column)};
    case 8:
        return row.text(value_column);
    case 11:
        return row.number(value_column) != 0;
    default:
        return Empty{};
    }
}

} // namespace brx::host
