// The form from the keyboard alone.
#include <gtest/gtest.h>

#include <algorithm>

#include "edit_rig.h"

namespace varno::gui {
namespace {

// Where the focus is: a control of the form by its name, or the flag beside it.
struct Stop {
    Field field;
    int index = 0;
    bool flag = false;
    bool operator==(const Stop&) const = default;
};

void PrintTo(const Stop& stop, std::ostream* out) {
    *out << (stop.flag ? "flag" : "field " + std::to_string(static_cast<int>(stop.field))) << "("
         << stop.index << ")";
}

const Stop flagStop{Field::rubrik, 0, true};
const Stop pictureStop{Field::loadFrame, idLoadPicture};

class EditKeys : public Editing {
  protected:
    static Stop stop() {
        const int id = program().focused().id();
        if (id >= idFlag && id <= idFlag + 6) return flagStop;
        const auto control = controlOfId(id);
        if (!control) return {Field::loadFrame, id};
        return {control->field, control->index};
    }
    // From the title on, until the focus is there again.
    static std::vector<Stop> wayWith(WORD key, bool shift = false) {
        constexpr std::size_t most = 100;
        std::vector<Stop> way;
        expectFocus(field(Field::rubrik));
        do {
            way.push_back(stop());
            const Control before = program().focused();
            if (shift) {
                keyboard::pressWith(VK_SHIFT, key);
            } else {
                keyboard::press(key);
            }
            program().until([&] { return program().focused() != before; });
        } while (stop() != Stop{Field::rubrik} && way.size() < most);
        return way;
    }
    static void press(WORD key, const Control& reached,
                      std::source_location place = std::source_location::current()) {
        keyboard::press(key);
        expectFocus(reached, place);
    }
    static std::vector<Stop> wayOfThreeSpans();
};

// The case of three spans, rule set 3 with class 2, category 0.
std::vector<Stop> EditKeys::wayOfThreeSpans() {
    std::vector<Stop> way{{Field::rubrik}, {Field::nfack}};
    for (const Field row : {Field::spv, Field::ptjl, Field::plast, Field::flast}) {
        for (int span = 1; span <= 3; ++span)
            way.push_back({row, span});
    }
    const std::vector<Stop> rest{{Field::upl, 1},       {Field::upl, 2},   {Field::konsv},
                                 {Field::konsh},        {Field::lokt},     {Field::lastkomb, 3},
                                 {Field::pkl, 2},       {Field::btg},      {Field::kutak, 1},
                                 {Field::aok},          {Field::dok},      {Field::ktack},
                                 {Field::kavko},        {Field::auk},      {Field::duk},
                                 {Field::duarm},        {Field::brandk},   {Field::brandb, 2},
                                 {Field::brukskomb, 1}, {Field::initiell}, {Field::tillkommande},
                                 {Field::overhojning},  flagStop,          pictureStop};
    way.insert(way.end(), rest.begin(), rest.end());
    return way;
}

TEST_F(EditKeys, TabGoesAsOneFillsTheFormIn) {
    open({{25, "2"}});
    EXPECT_EQ(wayWith(VK_TAB), wayOfThreeSpans());
}

TEST_F(EditKeys, ShiftTabGoesBack) {
    open({{25, "2"}});
    std::vector<Stop> back = wayOfThreeSpans();
    std::reverse(back.begin() + 1, back.end());
    EXPECT_EQ(wayWith(VK_TAB, true), back);
}

TEST_F(EditKeys, EnterMovesOnLikeTab) {
    open({{25, "2"}});
    // On the flag, which comes then, Enter presses it.
    std::vector<Stop> way = wayOfThreeSpans();
    way.resize(way.size() - 2);
    for (std::size_t i = 0; i + 1 < way.size(); ++i) {
        ASSERT_EQ(stop(), way[i]);
        move(VK_RETURN);
    }
    EXPECT_EQ(stop(), way.back());
    move(VK_RETURN);
    EXPECT_EQ(stop(), flagStop);
    keyboard::press(VK_RETURN);
    expectSoon(program(), true, [] { return mainItem(idFlag + 3).visible(); });
    expectFocus(mainItem(idFlag + 3));
    move(VK_TAB);
    EXPECT_EQ(stop(), pictureStop);
    move(VK_TAB);
    EXPECT_EQ(stop(), Stop{Field::rubrik});
}

// The lines of the five option groups.
TEST_F(EditKeys, TabReachesGroupsWithoutAChoiceAndChoosesNothing) {
    open({{4, "0"}, {11, "0"}, {25, "0"}, {26, "0"}, {31, "0"}});
    const DesignCase before = saved();
    const auto none = [](Field group) {
        for (int i = 1; i <= 2; ++i) {
            if (field(group, i).checked()) return false;
        }
        return true;
    };
    const std::vector<Stop> way = wayWith(VK_TAB);
    for (const Field group : {Field::lastkomb, Field::pkl, Field::kutak, Field::brandb, Field::brukskomb}) {
        EXPECT_EQ(std::ranges::count(way, Stop{group, 1}), 1) << static_cast<int>(group);
        EXPECT_TRUE(none(group)) << static_cast<int>(group);
    }
    EXPECT_EQ(way.size(), wayOfThreeSpans().size());
    EXPECT_EQ(saved(), before);
    while (stop() != Stop{Field::lastkomb, 1})
        move(VK_TAB);
    keyboard::press(VK_SPACE);
    expectSoon(program(), true, [] { return field(Field::lastkomb, 1).checked(); });
    keyboard::press(VK_DOWN);
    expectFocus(field(Field::lastkomb, 2));
    EXPECT_EQ(saved().lastkomb, 2);
}

TEST_F(EditKeys, TabReachesTheGroupWhoseChoiceIsHidden) {
    open({{25, "4"}});
    const std::vector<Stop> way = wayWith(VK_TAB);
    EXPECT_EQ(std::ranges::count(way, Stop{Field::brandb, 1}), 1);
    EXPECT_TRUE(field(Field::brandb, 4).checked());
    EXPECT_EQ(saved().brandb, 4);
}

TEST_F(EditKeys, TabSelectsTheWholeField) {
    open();
    clickInto(field(Field::nfack));
    tab();
    const Control first = field(Field::spv, 1);
    expectFocus(first);
    const int length = static_cast<int>(first.text().size());
    expectSoon(program(), std::pair(0, length), [&] { return first.selection(); });
    keyboard::type("8");
    expectSoon(program(), std::string("8"), [&] { return first.text(); });
}

TEST_F(EditKeys, ArrowsStayInTheColumn) {
    open();
    clickInto(field(Field::spv, 2));
    press(VK_UP, field(Field::spv, 2));
    for (const Field row : {Field::ptjl, Field::plast, Field::flast, Field::upl})
        press(VK_DOWN, field(row, 2));
    press(VK_DOWN, field(Field::upl, 2));
    for (const Field row : {Field::flast, Field::plast, Field::ptjl, Field::spv})
        press(VK_UP, field(row, 2));
}

TEST_F(EditKeys, ArrowsPassOverLockedBoxes) {
    open({{9, "1"}}); // the category fixes the variable loads
    clickInto(field(Field::plast, 1));
    press(VK_DOWN, field(Field::upl, 1));
    press(VK_UP, field(Field::plast, 1));
    // Under the last span there is only the locked end support.
    clickInto(field(Field::plast, 3));
    keyboard::press(VK_DOWN);
    press(VK_UP, field(Field::ptjl, 3));
}

TEST_F(EditKeys, ArrowStoresWhatWasTyped) {
    open();
    type(field(Field::spv, 1), "4,2");
    press(VK_DOWN, field(Field::ptjl, 1));
    expectText(Field::spv, 1, shown("4.20"));
    keyboard::type("0,2");
    press(VK_UP, field(Field::spv, 1));
    expectText(Field::ptjl, 1, shown("0.200"));
    const DesignCase stored = saved();
    EXPECT_EQ(stored.spv(3), 4.2f);
    EXPECT_EQ(stored.ptjl(3), 0.2f);
}

TEST_F(EditKeys, EnterStoresWhatWasTyped) {
    open();
    type(field(Field::konsv), "1,5x");
    press(VK_RETURN, field(Field::konsh));
    expectText(Field::konsv, shown("1.50"));
    EXPECT_EQ(saved().konsv, 1.5f);
}

TEST_F(EditKeys, F2AndClicksKeepWhatWasTyped) {
    open();
    const Control box = field(Field::spv, 1);
    type(box, "7,5");
    keyboard::press(VK_F2);
    keyboard::press(VK_HOME);
    expectSoon(program(), std::pair(0, 0), [&] { return box.selection(); });
    EXPECT_EQ(box.text(), "7,5");
    keyboard::type("1");
    expectSoon(program(), std::string("17,5"), [&] { return box.text(); });
    box.clickInto();
    settle();
    EXPECT_EQ(box.text(), "17,5") << "a click into the same box";
    EXPECT_EQ(program().focused(), box);
    clickInto(field(Field::ktack));
    expectText(Field::spv, 1, shown("17.50"));
    EXPECT_EQ(saved().spv(1), 17.5f);
}

TEST_F(EditKeys, ClickBesideTheControlsGoesToTheTitle) {
    open();
    type(field(Field::spv, 3), "3,3");
    form().clickAt(3, 3);
    expectFocus(field(Field::rubrik));
    expectText(Field::spv, 3, shown("3.30"));
}

// The foreground window's thread is in a menu.
bool inMenu() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(0, &info) && (info.flags & GUI_INMENUMODE) != 0;
}

TEST_F(EditKeys, MenuKeepsWhatWasTyped) {
    open();
    type(field(Field::konsh), "0,75");
    keyboard::press(VK_F10);
    keyboard::press(VK_DOWN);
    expectFocus(field(Field::rubrik));
    keyboard::press(VK_ESCAPE);
    keyboard::press(VK_ESCAPE);
    // A command that came while the menu still has the keys would lose its dialog to the second Escape.
    expectSoon(program(), false, [] { return inMenu(); });
    expectText(Field::konsh, shown("0.75"));
    EXPECT_EQ(saved().konsh, 0.75f);
}

} // namespace
} // namespace varno::gui
