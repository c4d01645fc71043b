#include "input/field_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "input/form_filling.h"
#include "model/plausibility.h"

namespace varno {
namespace {

// Of a case with something wrong in every respect.
TEST(FieldTable, HasTheFieldsOfWhatIsImplausible) {
    DesignCase c;
    c.nfack = 2;
    c.loadCode = 3;
    c.lokt = 1;
    c.konsv = c.konsh = 1;
    c.nllast = 0;
    std::set<std::string_view> names;
    for (const TextField& row : textFields)
        names.insert(row.name);
    std::set<Finding::Kind> kinds;
    for (const Finding& finding : implausible(c)) {
        EXPECT_TRUE(names.contains(finding.field)) << finding.field;
        kinds.insert(finding.kind);
    }
    EXPECT_EQ(kinds.size(), 5U) << "all but those of the line loads, which have windows of their own";
}

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
