// What comes up when the pointer rests on something.
#include <gtest/gtest.h>

#include "driver/mouse.h"
#include "edit_rig.h"

namespace varno::gui {
namespace {

class Tips : public Editing {
  protected:
    // The text of the tip that is shown now.
    static std::string shownTip() {
        const auto tip = program().find("tooltips_class32");
        return tip ? tip->text() : "";
    }
    static void expectTip(const Control& control, int hundredths, const std::string& text,
                          std::source_location place = std::source_location::current()) {
        mouse::restOn(control, hundredths);
        expectSoon(
            program(), text, [] { return shownTip(); }, place);
    }
};

TEST_F(Tips, TheSketchTellsItsMeasures) {
    open({{6, cells({"4.000", "5.000", "6.000"})}});
    const std::string whole = "\nHela plattan " + shown("15.00") + " m";
    const std::string loads =
        "\nPermanent last " + shown("0.50") + " kN/m2, variabel last " + shown("2.00") + " kN/m2";
    const std::string second =
        "Fack 2: spännvidd " + shown("5.00") + " m, plattjocklek " + shown("0.170") + " m" + loads + whole;
    expectTip(loadPicture(), 45, second);
    enter(Field::spv, 3, "7");
    const std::string third = "Fack 3: spännvidd " + shown("7.00") + " m, plattjocklek " + shown("0.170") +
                              " m" + loads + "\nHela plattan " + shown("16.00") + " m";
    expectTip(loadPicture(), 80, third);
    expectTip(slabStrip().item(idSupportButton + 1), 50, "Stöd 1: upplagsbredd " + shown("0.100") + " m");
}

TEST_F(Tips, TheFlagTellsWhatAClickDoes) {
    open();
    expectTip(mainItem(idFlag + 2), 50,
              "Eurokod, Sverige\nEtt klick byter till Eurokod, Danmark.\n"
              "Högerklick: byt till svenska byggregler (BKR).");
}

TEST_F(Tips, LettersTellTheirNames) {
    open();
    const auto letter = [](Field field) {
        return Control(GetWindow(Editing::field(field).handle(), GW_HWNDPREV));
    };
    expectTip(letter(Field::lambdaG), 30, "Partialkoefficient för permanent last");
    expectTip(letter(Field::psi1), 30, "Faktor för frekvent värde, psi 1");
    // A click on a letter is one beside all fields.
    clickInto(field(Field::konsv));
    mouse::clickUntil([&] { return program().focused() == field(Field::rubrik); },
                      [&] { mouse::click(letter(Field::ksi)); });
    expectFocus(field(Field::rubrik));
}

TEST_F(Tips, AToolbarButtonTellsMoreThanItsName) {
    open();
    const Control toolbar = mainItem(idToolbar);
    RECT first{};
    GetWindowRect(toolbar.handle(), &first);
    // The first button stands at the left end.
    const int width = first.right - first.left;
    expectTip(toolbar, 1500 / width, "Ny\nBörjar om med standardfallet");
}

} // namespace
} // namespace varno::gui
