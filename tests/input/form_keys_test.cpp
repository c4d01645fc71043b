#include "input/form_layout.h"

#include <gtest/gtest.h>

#include <set>

#include "controls/control_ids.h"
#include "input/field_table.h"

namespace varno::testing {
namespace {

TEST(FormKeys, ArrowsStayInTheColumnOfTheGrid) {
    EXPECT_EQ(gridNeighbour({Field::spv, 3}, 1), (Control{Field::ptjl, 3}));
    EXPECT_EQ(gridNeighbour({Field::ptjl, 3}, 1), (Control{Field::plast, 3}));
    EXPECT_EQ(gridNeighbour({Field::plast, 3}, 1), (Control{Field::flast, 3}));
    EXPECT_EQ(gridNeighbour({Field::flast, 3}, 1), (Control{Field::upl, 3}));
    EXPECT_EQ(gridNeighbour({Field::upl, 3}, -1), (Control{Field::flast, 3}));
    EXPECT_EQ(gridNeighbour({Field::upl, 0}, -1), (Control{Field::flast, 1}));
    EXPECT_EQ(gridNeighbour({Field::flast, 10}, -1), (Control{Field::plast, 10}));
}

TEST(FormKeys, TheGridHasAnEnd) {
    EXPECT_EQ(gridNeighbour({Field::spv, 1}, -1), std::nullopt);
    EXPECT_EQ(gridNeighbour({Field::upl, 1}, 1), std::nullopt);
    EXPECT_EQ(gridNeighbour({Field::konsv}, 1), std::nullopt);
    EXPECT_EQ(gridNeighbour({Field::rubrik}, 1), std::nullopt);
}

TEST(AccessibleNames, EveryBoxAndListHasANameOfItsOwn) {
    std::set<std::string> names;
    for (const ControlSpec& spec : inputFormLayout()) {
        const bool spoken = spec.kind == ControlKind::edit || spec.kind == ControlKind::numberEdit ||
                            spec.kind == ControlKind::dropDown;
        if (!spoken) continue;
        const auto control = controlOfId(spec.id);
        ASSERT_TRUE(control.has_value()) << spec.id;
        const std::string name = accessibleName(*control);
        EXPECT_FALSE(name.empty()) << spec.id;
        EXPECT_TRUE(names.insert(name).second) << name;
    }
    EXPECT_TRUE(names.contains("Upplagsbredd (m), stöd 0"));
    EXPECT_TRUE(names.contains("Spännvidd (m), fack 10"));
}

} // namespace
} // namespace varno::testing
