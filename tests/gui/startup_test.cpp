// What happens between the start and the first command.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "driver/wait.h"
#include "soon.h"

namespace varno::gui {
namespace {

// 7.1 as a little-endian single.
const Bytes version71 = "\x33\x33\xE3\x40";

// The class of the first window that start-up shows over the main window.
std::string firstWindow(const Program& program) {
    std::string first;
    program.until([&] {
        for (const char* name : {noticeClass, disclaimerClass, messageBoxClass}) {
            if (program.shows(name)) first = name;
        }
        return !first.empty();
    });
    return first;
}

TEST(Notice, ComesForOlderOrMissingVersions) {
    Scene scene;
    for (const float version : {7.0f, 0.0f}) {
        scene.writeVersion(version);
        EXPECT_EQ(firstWindow(Program(scene)), noticeClass) << version;
    }
    scene.write("varno.ver", "");
    EXPECT_EQ(firstWindow(Program(scene)), noticeClass) << "empty";
    scene.remove("varno.ver");
    EXPECT_EQ(firstWindow(Program(scene)), noticeClass) << "missing";
    EXPECT_EQ(scene.read("varno.ver"), "") << "opening makes the file";
}

TEST(Notice, StaysAwayFromItsOwnVersionOn) {
    Scene scene;
    for (const float version : {7.1f, 8.0f}) {
        scene.writeVersion(version);
        EXPECT_EQ(firstWindow(Program(scene)), disclaimerClass) << version;
    }
}

TEST(Notice, SaysWhatIsNew) {
    Scene scene;
    scene.remove("varno.ver");
    const Program program(scene);
    const Control notice = program.window(noticeClass);
    EXPECT_EQ(notice.item(idProductLabel).text(), "Kalvora Tessaplan ver 7.10");
    EXPECT_EQ(notice.item(idHeading).text(), "FÖRÄNDRINGAR i denna version:");
    EXPECT_EQ(notice.item(idTextOne).text(), "1. Diverse smärre justeringar och förtydligande");
    EXPECT_EQ(notice.item(idHideNotice).text(), "Visa inte detta nästa gång");
    EXPECT_FALSE(notice.item(idHideNotice).checked());
    EXPECT_EQ(notice.item(idOkButton).text(), "OK");
    EXPECT_TRUE(notice.item(idPicture).visible());
    EXPECT_FALSE(program.main().enabled()) << "the notice is modal";
}

TEST(Notice, TickedWritesFourBytesAtTheStartOfTheFile) {
    Scene scene;
    scene.write("varno.ver", Bytes("\0\0\0\0", 4) + "rest");
    {
        const Program program(scene);
        const Control notice = program.window(noticeClass);
        notice.item(idHideNotice).click();
        expectSoon(program, true, [&] { return notice.item(idHideNotice).checked(); });
        notice.item(idOkButton).click();
        program.window(disclaimerClass);
        EXPECT_EQ(scene.read("varno.ver"), version71 + "rest");
    }
    EXPECT_EQ(firstWindow(Program(scene)), disclaimerClass);
}

TEST(Notice, NotTickedLeavesTheFile) {
    Scene scene;
    scene.writeVersion(7.0f);
    const Bytes before = scene.read("varno.ver");
    {
        Program program(scene);
        program.window(noticeClass).item(idOkButton).click();
        program.window(disclaimerClass);
        EXPECT_EQ(scene.read("varno.ver"), before);
    }
    EXPECT_EQ(firstWindow(Program(scene)), noticeClass);
}

TEST(Disclaimer, ComesEveryTimeWithItsTwoTexts) {
    Scene scene;
    for (int start = 1; start <= 2; ++start) {
        const Program program(scene);
        const Control disclaimer = program.window(disclaimerClass);
        EXPECT_EQ(disclaimer.item(idProductLabel).text(), "Kalvora Tessaplan ver 7.10");
        EXPECT_EQ(
            disclaimer.item(idTextOne).text(),
            "OBS! Beräkningen anger armering endast i bjälklagsfält och innerstöd med avseende på "
            "bärförmåga för angivna laster. Annan erforderlig armering för sprickfördelning, inspänning, "
            "kantarmering eller för totalstabilitet redovisas ej.");
        EXPECT_EQ(disclaimer.item(idTextTwo).text(),
                  "I detta program finns vissa begränsningar inbyggda som gör att storheter utanför vissa "
                  "gränser inte accepteras. Det har dock inte varit möjligt att begränsa de kombinationer av "
                  "indata som är olämpliga men ändå kan ge ett svar av datorn. Användare av programmet måste "
                  "därför själv ansvara för att använda programmet med ett ingenjörsmässigt omdöme.");
        EXPECT_TRUE(disclaimer.item(idPicture).visible());
        EXPECT_FALSE(program.main().enabled()) << "at start-up it is modal";
    }
}

TEST(StartUp, FormIsSeenOnlyWithTheCaseInIt) {
    Scene scene;
    scene.writeVersion(7.0f);
    Program program(scene);
    const Control notice = program.window(noticeClass);
    EXPECT_TRUE(program.main().visible());
    EXPECT_FALSE(program.form().visible());
    notice.item(idOkButton).click();
    program.window(disclaimerClass);
    EXPECT_FALSE(program.form().visible());
    program.passStartUp();
    EXPECT_TRUE(program.form().visible());
}

TEST(StartUp, ShowsTheDefaultCaseWithItsTitleSelected) {
    Scene scene;
    scene.write("varno.def", withLine(scene.read("varno.def"), 1, "hus7"));
    Program program(scene);
    program.passStartUp();
    EXPECT_EQ(program.caption(), "HUS7.IND");
    const Control title = program.field(Field::rubrik);
    EXPECT_EQ(title.text(), "Nytt bjälklag");
    expectSoon(program, title, [&] { return program.focused(); });
    EXPECT_EQ(title.selection(), std::pair(0, 13));
    EXPECT_EQ(program.currentDirectory(), scene.folder());
    EXPECT_FALSE(program.diagramEnabled());

    // Nothing was changed yet, so nothing is asked.
    program.command(idExit);
    EXPECT_EQ(program.exitCode(), 0u);
}

TEST(StartUp, DefaultCaseThatCannotBeDrawnIsToldOfAndOpen) {
    Scene scene;
    scene.write("varno.def", withLine(scene.read("varno.def"), 6, "5.500  5.500  0.010  "));
    Program program(scene);
    program.window(disclaimerClass).item(idOkButton).click();
    EXPECT_EQ(program.answerError(), (Message{"Varno", "Run-time error '11': Division by zero"}));
    expectCaption(program, "NAMNLÖS.IND");
    EXPECT_EQ(program.field(Field::rubrik).text(), "Nytt bjälklag");
    EXPECT_TRUE(program.form().visible());
    program.command(idExit);
    EXPECT_EQ(program.exitCode(), 0u);
}

// Starts in `scene` with the work folder that varno.ini names, and gives the case's caption.
std::string captionWithIni(const Scene& scene) {
    Program program(scene);
    program.passStartUp();
    return program.caption();
}

// A work folder whose default case bears this name.
void makeWorkFolder(const Scene& scene, const std::string& folder, const Bytes& caseName) {
    writeFile(folder + "\\varno.def", withLine(scene.read("varno.def"), 1, caseName));
}

TEST(Ini, UnquotedPathIsCutAtItsComma) {
    Scene scene;
    const std::string cut = scene.beside("bygg");
    const std::string whole = scene.beside("bygg, hus");
    makeWorkFolder(scene, cut, "KORT");
    makeWorkFolder(scene, whole, "HEL");
    scene.writeIni(whole);
    EXPECT_EQ(captionWithIni(scene), "KORT.IND");
    scene.writeIni("\"" + whole + "\"");
    EXPECT_EQ(captionWithIni(scene), "HEL.IND");
}

TEST(Ini, DosLettersAndWindowsLettersNameTheSameFolder) {
    Scene scene;
    const std::string folder = scene.beside("Åäö verk");
    makeWorkFolder(scene, folder, "VERK");
    scene.writeIni(folder);
    EXPECT_EQ(captionWithIni(scene), "VERK.IND");

    Bytes dos = encodeWindows1252(folder);
    dos.replace(dos.size() - 8, 3, "\x8F\x84\x94");
    scene.write("varno.ini", dos + "\r\nannat\r\n");
    EXPECT_EQ(captionWithIni(scene), "VERK.IND");
}

TEST(StartUp, WithoutIniEndsWithError52) {
    Scene scene;
    scene.remove("varno.ini");
    Program program(scene);
    const Message said = program.answerError();
    EXPECT_EQ(said.text, "Run-time error '52': Bad file name or number");
    EXPECT_EQ(program.exitCode(), 1u);
}

TEST(StartUp, WithoutDefaultCaseEndsWithError52) {
    Scene scene;
    scene.remove("varno.def");
    Program program(scene);
    program.window(disclaimerClass).item(idOkButton).click();
    const Message said = program.answerError();
    EXPECT_EQ(said.text, "Run-time error '52': Bad file name or number");
    EXPECT_EQ(program.exitCode(), 1u);
}

TEST(StartUp, MissingWorkFolderIsReportedUntilItIsThere) {
    Scene scene;
    const std::string folder = scene.folder() + "\\saknas";
    scene.writeIni(folder);
    Program program(scene);
    program.window(disclaimerClass).item(idOkButton).click();
    const Message expected{"Disk Error", "Path Does Not Exist"};
    EXPECT_EQ(program.answer(), expected);
    EXPECT_EQ(program.message(), expected) << "an error that lasts comes again after every OK";
    scene.makeFolder("saknas");
    makeWorkFolder(scene, folder, "FANNS");
    program.answer();
    expectCaption(program, "FANNS.IND");
}

} // namespace
} // namespace varno::gui
