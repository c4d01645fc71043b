#include "controls/control_ids.h"

#include <gtest/gtest.h>

#include <set>

#include "controls/rule_sets.h"
#include "input/form_layout.h"

namespace varno::testing {
namespace {

TEST(ControlIds, EveryControlHasANumberOfItsOwnThatLeadsBackToIt) {
    std::set<int> seen;
    for (int field = 0; field <= static_cast<int>(Field::loadFrame); ++field) {
        const auto name = static_cast<Field>(field);
        for (int index = 0; index <= 15; ++index) {
            const Control control{name, index};
            const int id = controlId(control);
            EXPECT_TRUE(seen.insert(id).second) << id;
            EXPECT_EQ(controlOfId(id), control) << id;
            EXPECT_LT(id, idFormLabel);
        }
    }
    EXPECT_EQ(controlOfId(idFormLabel), std::nullopt);
    EXPECT_EQ(controlOfId(idNew), std::nullopt);
    EXPECT_EQ(controlOfId(0), std::nullopt);
}

bool isFrame(const ControlSpec& control) {
    return control.kind == ControlKind::group;
}

bool overlap(const ControlSpec& a, const ControlSpec& b) {
    return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

TEST(FormLayout, HoldsEveryControlOfTheFormOnceAndInsideIt) {
    std::set<int> placed;
    for (const ControlSpec& control : inputFormLayout()) {
        EXPECT_GE(control.x, 0);
        EXPECT_GE(control.y, 0);
        EXPECT_LE(control.right(), formWidth) << control.text;
        EXPECT_LE(control.bottom(), formHeight) << control.text;
        if (controlOfId(control.id)) {
            EXPECT_TRUE(placed.insert(control.id).second) << control.id;
        }
    }
    const auto count = [&](Field field, int first, int last) {
        for (int i = first; i <= last; ++i)
            EXPECT_TRUE(placed.contains(controlId({field, i}))) << i;
    };
    for (const auto& [first, last] :
         {std::pair{Field::rubrik, Field::nfack}, std::pair{Field::konsv, Field::brandk},
          std::pair{Field::kavko, Field::loadFrame}}) {
        for (int field = static_cast<int>(first); field <= static_cast<int>(last); ++field)
            count(static_cast<Field>(field), 0, 0);
    }
    for (const Field row : {Field::spv, Field::ptjl, Field::plast, Field::flast})
        count(row, 1, 10);
    count(Field::upl, 0, 10);
    for (const Field group : {Field::lastkomb, Field::shkl, Field::shklpl, Field::pkl, Field::shklfi,
                              Field::shkldk, Field::shkleu}) {
        count(group, 1, 3);
    }
    count(Field::brandb, 1, 4);
    count(Field::kutak, 1, 2);
    count(Field::brukskomb, 1, 2);
}

TEST(FormLayout, NothingCoversAnythingButTheClassGroupsOneAnother) {
    const auto controls = inputFormLayout();
    const auto inClassGroup = [](const ControlSpec& control) {
        const auto known = controlOfId(control.id);
        return known && ruleSetWith(&RuleSet::classGroup, known->field) != nullptr;
    };
    for (std::size_t i = 0; i < controls.size(); ++i) {
        for (std::size_t j = i + 1; j < controls.size(); ++j) {
            if (isFrame(controls[i]) || isFrame(controls[j])) continue;
            if (inClassGroup(controls[i]) && inClassGroup(controls[j])) continue;
            EXPECT_FALSE(overlap(controls[i], controls[j]))
                << controls[i].id << " '" << controls[i].text << "' and " << controls[j].id << " '"
                << controls[j].text << "'";
        }
    }
}

TEST(FormLayout, TheGridStandsInColumnsWithTheSupportsBetweenTheSpans) {
    int spans[11] = {};
    int supports[11] = {};
    for (const ControlSpec& control : inputFormLayout()) {
        const auto known = controlOfId(control.id);
        if (!known) continue;
        if (known->field == Field::spv) spans[known->index] = control.x;
        if (known->field == Field::upl) supports[known->index] = control.x;
    }
    for (int span = 1; span < 10; ++span)
        EXPECT_EQ(spans[span + 1] - spans[span], 600);
    for (int support = 0; support < 10; ++support)
        EXPECT_EQ(spans[support + 1] - supports[support], 300);
    EXPECT_EQ(supports[10] - spans[10], 300);
}

} // namespace
} // namespace varno::testing
