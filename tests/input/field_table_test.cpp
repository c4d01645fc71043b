#include "input/field_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "input/form_filling.h"
#include "model/reference_tables.h"

namespace varno {
namespace {

TEST(FieldTable, EveryFieldHasOneRowANameAndAHelpTopic) {
    std::set<Field> fields;
    std::set<std::string_view> names;
    std::set<std::string_view> topics;
    const auto add = [&](const auto& row) {
        EXPECT_TRUE(fields.insert(row.field).second) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_TRUE(topics.insert(row.helpTopic).second) << row.helpTopic;
        std::string slug = "falt-";
        for (const char c : row.name)
            slug += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
        EXPECT_EQ(row.helpTopic, slug);
    };
    for (const TextField& row : textFields)
        add(row);
    for (const ChoiceField& row : choiceFields)
        add(row);
    EXPECT_EQ(fields.size(), 18u + 12);
}

TEST(FieldTable, RowsAreFoundByTheirField) {
    for (const TextField& row : textFields)
        EXPECT_EQ(textField(row.field), &row);
    for (const ChoiceField& row : choiceFields)
        EXPECT_EQ(choiceField(row.field), &row);
    EXPECT_EQ(textField(Field::nfack), nullptr);
    EXPECT_EQ(choiceField(Field::rubrik), nullptr);
}

TEST(FieldTable, ListsHaveAsManyRowsAsTheirTables) {
    EXPECT_EQ(choiceField(Field::btg)->count, static_cast<int>(concreteClasses.size()));
    EXPECT_EQ(choiceField(Field::aok)->count, static_cast<int>(steelGrades.size()));
    EXPECT_EQ(choiceField(Field::auk)->count, static_cast<int>(steelGrades.size()));
    EXPECT_EQ(choiceField(Field::dok)->count, static_cast<int>(barDiameters.size()));
    EXPECT_EQ(choiceField(Field::duk)->count, static_cast<int>(barDiameters.size()));
    EXPECT_EQ(choiceField(Field::brandk)->count, static_cast<int>(fireClasses.size()));
    EXPECT_EQ(choiceField(Field::lokt)->count, static_cast<int>(loadCategories.size()));
}

} // namespace
} // namespace varno
