// The line at the foot of the main window.
#include <gtest/gtest.h>

#include "driver/keyboard.h"
#include "driver/program.h"
#include "picture.h"
#include "shell/menu_table.h"
#include "soon.h"

namespace varno::gui {
namespace {

class Status : public ::testing::Test {
  protected:
    Status() { program.passStartUp(); }
    std::string part(int id) { return program.main().item(id).text(); }
    void expectPart(int id, const std::string& text,
                    std::source_location place = std::source_location::current()) {
        expectSoon(
            program, text, [&] { return part(id); }, place);
    }
    void pointAt(const RECT& box) { SetCursorPos((box.left + box.right) / 2, (box.top + box.bottom) / 2); }
    static RECT placeOf(const Control& control) {
        RECT box{};
        GetWindowRect(control.handle(), &box);
        return box;
    }
    void pointAt(const Control& control) { pointAt(placeOf(control)); }
    // Pointed again while it is waited: a display may report the pointer's old place once more.
    void expectReasonAt(const RECT& box, const std::string& text,
                        std::source_location place = std::source_location::current()) {
        program.until([&] {
            pointAt(box);
            return part(idStatusReason) == text;
        });
        expectPart(idStatusReason, text, place);
    }
    void expectReasonAt(const Control& control, const std::string& text,
                        std::source_location place = std::source_location::current()) {
        expectReasonAt(placeOf(control), text, place);
    }

    Scene scene;
    Program program{scene};
};

TEST_F(Status, TellsWhatBecameOfTheCase) {
    expectPart(idStatusState, "Nytt fall");
    program.open("BOSTAD.IND");
    expectPart(idStatusState, "Sparad");
    expectPart(idStatusFolder, "Sparas i " + scene.folder());
    expectPart(idStatusResult, "Inte beräknad");
    program.calculate();
    expectSoon(program, true, [&] { return part(idStatusResult).starts_with("Beräknad 20"); });
    const std::string result = part(idStatusResult);
    program.typeInto({Field::konsv}, "2");
    program.field(Field::rubrik).clickInto();
    expectPart(idStatusState, "Ändrad, inte sparad");
    expectPart(idStatusResult, result + ", äldre än indata");
}

TEST_F(Status, TellsWhyABoxIsLocked) {
    expectReasonAt(program.field(Field::upl, 0), "Låst: ändupplagens bredd är alltid 0.");
    EXPECT_TRUE(program.main().item(idStatusReason).visible());
    EXPECT_FALSE(program.main().item(idStatusState).visible());
    expectReasonAt(program.field(Field::upl, 1), "");
    EXPECT_TRUE(program.main().item(idStatusState).visible());
}

TEST_F(Status, MarksAndTellsWhatToLookAtTwice) {
    program.open("KONTOR.IND");
    expectPart(idStatusState, "Sparad");
    const Control box = program.field(Field::upl, 4);
    const auto ground = [&] { return Picture::ofScreen(box.handle()).at(4, 4); };
    const COLORREF before = ground();
    program.typeInto({Field::upl, 4}, "0");
    program.field(Field::rubrik).clickInto();
    pointAt(program.main().item(idLoadPicture));
    expectSoon(program, true, [&] { return part(idStatusState).ends_with(", se över 1"); });
    expectSoon(program, true, [&] { return ground() != before; });
    expectReasonAt(box, "Upplagsbredden vid stöd 4 är 0 m.");
    expectReasonAt(program.main().item(idLoadPicture), "");
    expectReasonAt(program.main().item(idStatusState), "Se över: Upplagsbredden vid stöd 4 är 0 m.");
    program.typeInto({Field::upl, 4}, "0,2");
    program.field(Field::rubrik).clickInto();
    expectPart(idStatusState, "Ändrad, inte sparad");
    expectSoon(program, before, [&] { return ground(); });
}

constexpr const char* notCalculated =
    "Diagram är grå: fallet är inte beräknat. Välj \"Kör...\" i menyn \"Beräkning\".";
constexpr const char* changedSince =
    "Diagram är grå: indata har ändrats sedan beräkningen. Välj \"Kör...\" i menyn \"Beräkning\".";

TEST_F(Status, TellsWhyDiagramIsGrey) {
    program.open("KONTOR.IND");
    const Control toolbar = program.main().item(idToolbar);
    RECT button = program.toolbarButtonPlace(idMoment);
    MapWindowPoints(toolbar.handle(), nullptr, reinterpret_cast<POINT*>(&button), 2);
    expectReasonAt(button, notCalculated);
    program.calculate();
    expectPart(idStatusReason, "");
    program.typeInto({Field::konsv}, "2");
    program.field(Field::rubrik).clickInto();
    expectPart(idStatusReason, changedSince);

    // The same of the menu, walked through with keys.
    expectReasonAt(program.main().item(idLoadPicture), "");
    keyboard::press(VK_F10);
    for (int menu = 0; menu < diagramMenuPlace; ++menu)
        keyboard::press(VK_RIGHT);
    expectPart(idStatusReason, changedSince);
    keyboard::press(VK_ESCAPE);
    expectPart(idStatusReason, "");
}

TEST_F(Status, TellsWhyDiagramIsGreyWithThePointerOnItsMenu) {
    program.open("KONTOR.IND");
    expectReasonAt(program.menuBarPlace(diagramMenuPlace), notCalculated);
    expectReasonAt(program.main().item(idLoadPicture), "");
}

} // namespace
} // namespace varno::gui
