// What the program says when a file cannot hold the case, does not hold one, or belongs to another.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "driver/wait.h"
#include "soon.h"

namespace varno::gui {
namespace {

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

class DataChecks : public ::testing::Test {
  protected:
    DataChecks() { program.passStartUp(); }

    void typeAndLeave(varno::Control control, const std::string& text) {
        program.typeInto(control, text);
        program.field(Field::rubrik).clickInto();
        expectSoon(program, program.field(Field::rubrik), [&] { return program.focused(); });
    }
    std::string saveAsTelling(const std::string& name) {
        program.command(idSaveAs);
        program.chooseFile(name);
        const std::string text = program.answer().text;
        expectCaption(program, name + ".IND");
        expectSoon(program, true, [&] { return program.main().enabled(); });
        return text;
    }
    std::string openTelling(const std::string& name) {
        program.command(idOpen);
        program.chooseFile(name);
        return program.answer().text;
    }
    Bytes letter() const {
        Bytes text;
        for (int i = 0; i < 60; ++i)
            text += "Hej alla glada\r\n";
        return text;
    }
    void expectNoMessage() {
        program.main().send(WM_NULL);
        EXPECT_FALSE(program.shows(messageBoxClass));
    }
    std::string title() const { return program.field(Field::rubrik).text(); }

    Scene scene;
    Program program{scene};
};

TEST_F(DataChecks, SavedCommaIsToldWithBothValues) {
    program.typeInto({Field::rubrik}, "Hus, 4 plan");
    const std::string text = saveAsTelling("KOMMA");
    EXPECT_TRUE(holds(text, "Rubrik: \"Hus, 4 plan\" blir \"Hus\"")) << text;
    EXPECT_TRUE(holds(text, "Alla värden efter rubriken hamnar dessutom fel")) << text;
    EXPECT_EQ(linesOf(scene.read("KOMMA.IND")).at(1), "Hus, 4 plan") << "the format stays";
    EXPECT_EQ(title(), "Hus, 4 plan");
}

TEST_F(DataChecks, OneMessageListsEveryLostValue) {
    typeAndLeave({Field::ptjl, 2}, "1234,567");
    typeAndLeave({Field::ptjl, 3}, "12345678");
    program.typeInto({Field::rubrik}, "Łódź ”A”");
    const std::string text = saveAsTelling("MYCKET");
    EXPECT_TRUE(holds(text, "Rubrik: \"Łódź ”A”\" blir \"?ód? öA”\"")) << text;
    EXPECT_TRUE(holds(text, "Plattjocklek (m), fack 2: 1234,567 blir 1234,56")) << text;
    EXPECT_TRUE(holds(text, "Plattjocklek (m), fack 3: 12345678 blir 1234567")) << text;
    EXPECT_FALSE(holds(text, "hamnar")) << text;
    program.command(idSave);
    EXPECT_TRUE(holds(program.answer().text, "fack 3")) << "told at each save";
}

TEST_F(DataChecks, WhatComesBackIsNotTold) {
    program.typeInto({Field::rubrik}, "Bärlägg å ö Å Ä Ö ÅÄÖ åäö – 5 \"tum\"");
    program.saveAs("HELT");
    expectNoMessage();
    for (const char* sample : {"BOSTAD.IND", "KONTOR.IND", "TIOFACK.IND", "HELT.IND"}) {
        program.open(sample);
        expectCaption(program, sample);
        expectNoMessage();
        program.command(idSave);
        expectNoMessage();
    }
}

TEST_F(DataChecks, OpenedFileWithACommaIsToldWithItsLine) {
    scene.write("KOMMA.IND", withLine(withLine(scene.read("KONTOR.IND"), 1, "KOMMA"), 2, "Hus, 1 plan"));
    const std::string text = openTelling("KOMMA.IND");
    EXPECT_TRUE(holds(text, scene.path("KOMMA.IND") + " är inte som en indatafil ska vara.")) << text;
    EXPECT_TRUE(holds(text, "Rad 2 (Rubrik): \"Hus, 1 plan\" läses som flera värden")) << text;
    expectCaption(program, "KOMMA.IND");
    EXPECT_EQ(title(), "Hus") << "what the rules make of it";
}

TEST_F(DataChecks, ShortFileIsToldBesidesItsError) {
    scene.write("SKADAD.IND", "SKADAD\r\nEn halv fil\r\n3\r\n2\r\n2\r\n");
    const std::string text = openTelling("SKADAD.IND");
    EXPECT_TRUE(holds(text, "Filen har bara 5 rader. En indatafil har 37.")) << text;
    EXPECT_TRUE(holds(program.answer().text, "62"));
    expectCaption(program, "NAMNLÖS.IND");
}

TEST_F(DataChecks, FileThatIsNoCaseIsNamedAsSuch) {
    scene.write("BREV.IND", "");
    EXPECT_TRUE(holds(openTelling("BREV.IND"), "BREV.IND är ingen indatafil."));
    EXPECT_TRUE(holds(program.answer().text, "62"));
    scene.write("BREV.IND", letter());
    const std::string text = openTelling("BREV.IND");
    EXPECT_TRUE(holds(text, "BREV.IND är ingen indatafil.")) << text;
    EXPECT_TRUE(holds(text, "Filen har 60 rader.")) << text;
}

TEST_F(DataChecks, WhatIsWrongWithAFileIsReadBeforeTheErrorOfItsSketch) {
    scene.write("BREV.IND", letter());
    program.command(idOpen);
    program.chooseFile("BREV.IND");
    const Control box = program.window(messageBoxClass);
    // The box has a message loop of its own, in which the error that is waiting would come up over it.
    const DWORD aSecond = 1000;
    EXPECT_FALSE(waitUntil([&] { return program.window(messageBoxClass) != box; }, nullptr, aSecond));
    EXPECT_TRUE(holds(program.answer().text, "ingen indatafil"));
    EXPECT_TRUE(holds(program.answer().text, "'11'"));
}

// Whose file it is

class OwnFiles : public DataChecks {
  protected:
    std::string question(const std::string& path) { return path + " finns redan. Vill Du ersätta filen ?"; }
};

TEST_F(OwnFiles, CopyUnderANewNameDoesNotReplaceItsOriginalUnasked) {
    // The first line of the copy names the original, and Save writes to that name.
    scene.write("KOPIA.IND", scene.read("BOSTAD.IND"));
    const Bytes original = scene.read("BOSTAD.IND");
    program.open("KOPIA.IND");
    expectCaption(program, "BOSTAD.IND");
    program.typeInto({Field::rubrik}, "Ändrad");
    program.command(idSave);
    const Message message = program.answer(IDNO);
    EXPECT_EQ(message.text, question(scene.path("BOSTAD.IND")));
    EXPECT_EQ(scene.read("BOSTAD.IND"), original);
    program.command(idSave);
    program.answer(IDYES);
    expectSoon(program, Bytes("\x8Endrad"), [&] { return linesOf(scene.read("BOSTAD.IND")).at(1); });
    // It is the case's own file from now on.
    program.typeInto({Field::rubrik}, "Igen");
    program.command(idSave);
    expectSoon(program, Bytes("Igen"), [&] { return linesOf(scene.read("BOSTAD.IND")).at(1); });
    expectNoMessage();
}

TEST_F(OwnFiles, LookIntoAnotherFolderDoesNotCostTheFileThere) {
    const std::string other = scene.beside("andra");
    writeFile(other + "\\BOSTAD.IND", "en annans");
    program.open("BOSTAD.IND");
    program.command(idOpen);
    const Control dialog = program.window(fileDialogClass);
    dialog.item(idFileName).setText(other);
    dialog.item(idOkButton).click();
    expectSoon(program, other, [&] { return dialog.item(idPathLabel).text(); });
    dialog.item(idCancelButton).click();
    program.waitGone(dialog);
    program.typeInto({Field::rubrik}, "Ändrad");
    program.command(idSave);
    EXPECT_EQ(program.answer(IDNO).text, question(other + "\\BOSTAD.IND"));
    EXPECT_EQ(readFile(other + "\\BOSTAD.IND"), "en annans");
    // Not saved, so still changed.
    program.command(idExit);
    program.window(savePromptClass).item(idNoButton).click();
    EXPECT_EQ(program.exitCode(), 0u);
}

TEST_F(OwnFiles, OwnFileIsSavedUnaskedHoweverItsNameWasTyped) {
    program.open("bostad.ind");
    program.typeInto({Field::rubrik}, "Ändrad");
    program.command(idSave);
    expectSoon(program, Bytes("\x8Endrad"), [&] { return linesOf(scene.read("BOSTAD.IND")).at(1); });
    expectNoMessage();
}

// The title

class TitleBalloon : public DataChecks {
  protected:
    bool shown() const { return program.shows("tooltips_class32"); }
};

TEST_F(TitleBalloon, ComesWithTheCommaAndDisturbsNobody) {
    program.typeInto({Field::rubrik}, "Hus");
    program.main().send(WM_NULL);
    EXPECT_FALSE(shown());
    const Control title = program.field(Field::rubrik);
    title.type(",");
    expectSoon(program, true, [&] { return shown(); });
    EXPECT_EQ(program.focused(), title);
    title.type(" 4 plan");
    expectSoon(program, std::string("Hus, 4 plan"), [&] { return title.text(); });
    EXPECT_TRUE(program.main().enabled());
    EXPECT_FALSE(program.shows(messageBoxClass));
}

TEST_F(TitleBalloon, GoesWithTheCommaAndWhenTheTitleIsLeft) {
    const Control title = program.field(Field::rubrik);
    program.typeInto({Field::rubrik}, "Hus,");
    expectSoon(program, true, [&] { return shown(); });
    title.key(VK_BACK);
    title.type("\b");
    expectSoon(program, false, [&] { return shown(); });
    title.type(",");
    expectSoon(program, true, [&] { return shown(); });
    program.field(Field::konsv).clickInto();
    expectSoon(program, false, [&] { return shown(); });
}

} // namespace
} // namespace varno::gui
