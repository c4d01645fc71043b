// Reading in the result viewer: searching, the size of the text, copying and printing.
#include <gtest/gtest.h>

#include <algorithm>

#include "driver/clipboard.h"
#include "driver/keyboard.h"
#include "driver/prints.h"
#include "driver/program.h"
#include "soon.h"

namespace varno::gui {
namespace {

class Reader : public ::testing::Test {
  protected:
    Reader() {
        scene.write("KONTOR.res", "Bjm 1\r\nmoment ett\r\nMOMENT tv\x86\r\nslut\r\n");
        program.passStartUp();
        program.open("kontor.ind");
        program.command(idShowResult);
        viewer = program.window(viewerClass);
        text = viewer.item(idFileTextBox);
        expectSoon(program, text, [&] { return program.focused(); });
    }
    Control part(int id) const { return viewer.item(id); }
    void expectSelected(const std::string& word, int begin,
                        std::source_location place = std::source_location::current()) {
        const int length = static_cast<int>(utf16FromUtf8(word).size());
        expectSoon(
            program, std::pair(begin, begin + length), [&] { return text.selection(); }, place);
    }
    int height() const { return static_cast<int>(program.fontOf(text).lfHeight); }

    Prints prints;
    Scene scene;
    Program program{scene};
    Control viewer;
    Control text;
};

TEST_F(Reader, SearchesFromTheKeyboard) {
    EXPECT_FALSE(part(idFindWord).visible());
    keyboard::pressWith(VK_CONTROL, 'F');
    expectSoon(program, part(idFindWord), [&] { return program.focused(); });
    EXPECT_EQ(part(idFindLabel).text(), "Sök:");
    keyboard::type("moment");
    expectSelected("moment", 9);
    keyboard::press(VK_RETURN);
    expectSelected("moment", 21);
    EXPECT_EQ(program.focused(), part(idFindWord));
    EXPECT_NE(text.style() & ES_NOHIDESEL, 0) << "the found place is seen while the focus is elsewhere";
    keyboard::press(VK_F3);
    expectSelected("moment", 9);
    EXPECT_EQ(part(idFindNote).text(), "Började om uppifrån.");
    keyboard::pressWith(VK_SHIFT, VK_F3);
    expectSelected("moment", 21);
    EXPECT_EQ(part(idFindNote).text(), "Började om nedifrån.");
    part(idFindPrevious).click();
    expectSelected("moment", 9);
    part(idFindNext).click();
    expectSelected("moment", 21);
    part(idFindWord).clickInto();
    keyboard::type("x");
    expectSoon(program, std::string("Texten finns inte."), [&] { return part(idFindNote).text(); });
    keyboard::press(VK_ESCAPE);
    expectSoon(program, text, [&] { return program.focused(); });
    expectSoon(program, false, [&] { return part(idFindWord).visible(); });
    EXPECT_TRUE(viewer.visible());
    keyboard::press(VK_ESCAPE);
    program.waitGone(viewer);
}

TEST_F(Reader, TellsWhichFileIsShownAndWhetherItIsOlderThanTheInput) {
    const auto expectAge = [&](const std::string& begin, const std::string& end) {
        expectSoon(program, true, [&] {
            const std::string age = part(idResultAge).text();
            return age.starts_with(begin) && age.ends_with(end);
        });
    };
    program.command(idRun);
    expectAge("KONTOR.res, beräknad 20", "");
    EXPECT_EQ(part(idResultAge).text().size(), std::string("KONTOR.res, beräknad 2026-11-21 15:40").size());
    program.typeInto({Field::spv, 1}, "5,1");
    program.field(Field::rubrik).clickInto();
    expectAge("KONTOR.res, beräknad 20", ", äldre än indata");
    EXPECT_EQ(viewer.text(), "Utdata");
    program.command(idSave);
    program.command(idRun);
    expectSoon(program, false, [&] { return part(idResultAge).text().ends_with("indata"); });
    program.open("bostad.ind");
    expectAge("KONTOR.res, beräknad 20", ". Nu är BOSTAD.IND öppet.");
}

TEST_F(Reader, GrowsAndShrinks) {
    const int normal = height();
    keyboard::pressWith(VK_CONTROL, VK_ADD);
    expectSoon(program, true, [&] { return height() < normal; });
    keyboard::pressWith(VK_CONTROL, '0');
    expectSoon(program, normal, [&] { return height(); });
    keyboard::pressWith(VK_CONTROL, VK_SUBTRACT);
    expectSoon(program, true, [&] { return height() > normal; });
    text.post(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, WHEEL_DELTA));
    expectSoon(program, normal, [&] { return height(); });
    text.post(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
    text.send(WM_NULL);
    EXPECT_EQ(height(), normal);
}

TEST_F(Reader, CopiesAllAndPrints) {
    keyboard::pressWith(VK_CONTROL, 'A');
    expectSoon(program, true, [&] { return text.selection().second > 30; });
    keyboard::press(VK_TAB);
    expectSoon(program, part(idReturn), [&] { return program.focused(); });
    keyboard::pressWith(VK_CONTROL, 'C');
    expectSoon(program, std::string("\r\nBjm 1\r\nmoment ett\r\nMOMENT två\r\nslut"),
               [] { return clipboard::text(); });
    // The case that is shown is printed, whichever is open now.
    program.open("bostad.ind");
    program.command(idPrintResult);
    EXPECT_EQ(program.answer().text, "Resultatfil till BOSTAD.IND saknas !");
    viewer.item(idFileTextBox).clickInto();
    expectSoon(program, text, [&] { return program.focused(); });
    keyboard::pressWith(VK_CONTROL, 'P');
    const Print print = prints.next();
    ASSERT_EQ(print.pages.size(), 1u);
    EXPECT_TRUE(print.pages[0].lines.at(0).ends_with("sid 1"));
    EXPECT_NE(std::ranges::find(print.pages[0].lines, "moment ett"), print.pages[0].lines.end());
}

} // namespace
} // namespace varno::gui
