#include "input/field_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "input/form_filling.h"

namespace varno {
namespace {

TEST(FieldTable, EveryFieldHasOneRowAndANameOfItsOwn) {
    std::set<Field> fields;
    std::set<std::string_view> names;
    const auto add = [&](const FieldRow& row) {
        EXPECT_TRUE(fields.insert(row.field).second) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_EQ(fieldRow(row.field), &row);
    };
    for (const TextField& row : textFields)
        add(row);
    for (const ChoiceField& row : choiceFields)
        add(row);
    for (const FieldRow& row : otherFields)
        add(row);
    EXPECT_EQ(fields.size(), 18u + 12 + 2);
    EXPECT_EQ(fieldRow(Field::shkl), nullptr);
}

} // namespace
} // namespace varno
