#include "input/field_table.h"

#include <algorithm>

namespace varno {

namespace {

template <typename Table>
const typename Table::value_type* rowOf(const Table& table, Field field) {
    const auto row = std::ranges::find(table, field, [](const auto& candidate) { return candidate.field; });
    return row == table.end() ? nullptr : &*row;
}

} // namespace

const TextField* textField(Field field) {
    return rowOf(textFields, field);
}
const ChoiceField* choiceField(Field field) {
    return rowOf(choiceFields, field);
}

} // namespace varno
