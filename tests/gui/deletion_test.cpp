// "Ta bort": the deletion window with its two small ones.
#include <gtest/gtest.h>

#include <set>

#include "driver/keyboard.h"
#include "driver/program.h"
#include "driver/wait.h"
#include "soon.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

constexpr const char* deletionClass = "VarnoDelFile";
constexpr const char* confirmationClass = "VarnoVeri";
constexpr const char* helpClass = "VarnoHelp";

using Names = std::vector<std::string>;

class Deletions : public ::testing::Test {
  protected:
    Deletions() {
        for (const std::string& name : results)
            scene.write(name, "resultat\r\n");
        program.passStartUp();
    }

    Control opened(int command = idDeleteResults) const {
        program.command(command);
        return program.window(deletionClass);
    }
    static Control list(const Control& window) { return window.item(idFileList); }
    static bool selected(const Control& window, int row) {
        return list(window).send(LB_GETSEL, static_cast<WPARAM>(row)) > 0;
    }
    static void select(const Control& window, const std::set<int>& rows) {
        for (const int row : rows)
            list(window).send(LB_SETSEL, TRUE, row);
    }
    static std::set<int> selection(const Control& window) {
        std::set<int> rows;
        for (int row = 0; row < static_cast<int>(list(window).send(LB_GETCOUNT)); ++row) {
            if (selected(window, row)) rows.insert(row);
        }
        return rows;
    }
    static void clickRow(const Control& window, int row) {
        const int height = static_cast<int>(list(window).send(LB_GETITEMHEIGHT));
        list(window).clickAt(10, height * row + height / 2);
    }
    void expectSelected(const Control& window, const std::set<int>& rows) const {
        expectSoon(program, rows, [&] { return selection(window); });
    }
    void untick(const Control& window) const {
        window.item(idConfirm).click();
        expectSoon(program, false, [&] { return window.item(idConfirm).checked(); });
    }
    // "Ta bort", and what the list then shows.
    void expectLeft(const Control& window, const Names& names) const {
        // The rows are asked for one by one, so not before the list has settled.
        expectSoon(program, names.size(),
                   [&] { return static_cast<std::size_t>(list(window).send(LB_GETCOUNT)); });
        EXPECT_EQ(list(window).rows(), names);
        expectSoon(program, true, [&] { return window.item(idConfirm).checked() && window.enabled(); });
    }
    // Answers the question about one file.
    void answer(const std::string& name, int position, int button) const {
        const Control question = program.window(confirmationClass);
        EXPECT_EQ(question.item(idFileName).text(), name);
        EXPECT_EQ(question.item(idPosition).text(), std::to_string(position));
        question.item(button).click();
        program.waitGone(question);
    }
    bool has(const std::string& name) const { return scene.has(name); }
    void close(const Control& window) const {
        window.item(idCancelButton).click();
        program.waitGone(window);
    }
    void setReadOnly(const std::string& name, bool readOnly) const {
        const std::wstring path = win32::wide(scene.path(name));
        SetFileAttributesW(path.c_str(), readOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
    }

    Scene scene;
    Program program{scene};
    const Names results{"A.res", "B.RES", "C.res"};
    const Names cases{"BOSTAD.IND", "KONTOR.IND", "TIOFACK.IND"};
};

TEST_F(Deletions, EveryMenuItemShowsItsFiles) {
    const std::pair<int, Names> items[] = {
        {idDeleteResults, results},
        {idDeleteInputs, cases},
        {idDeleteBoth, {"A.res", "B.RES", "BOSTAD.IND", "C.res", "KONTOR.IND", "TIOFACK.IND"}},
    };
    for (const auto& [item, names] : items) {
        const Control window = opened(item);
        EXPECT_EQ(window.text(), "Ta bort Filer");
        EXPECT_EQ(list(window).rows(), names);
        EXPECT_EQ(list(window).send(LB_GETSELCOUNT), 0);
        EXPECT_TRUE(window.item(idConfirm).checked());
        EXPECT_EQ(window.item(idConfirm).text(), "Bekräfta");
        EXPECT_EQ(window.item(idPathLabel).text(), scene.folder());
        EXPECT_EQ(window.item(idDelete).text(), "Ta bort");
        EXPECT_EQ(window.item(idCancelButton).text(), "Avsluta");
        EXPECT_EQ(window.item(idDeletionHelp).text(), "Hjälp");
        EXPECT_FALSE(program.main().enabled()) << "the window is modal";
        close(window);
        EXPECT_TRUE(program.main().enabled());
    }
}

TEST_F(Deletions, WithoutConfirmingAllSelectedGoAtOnce) {
    const Control window = opened(idDeleteBoth);
    select(window, {0, 1, 3});
    untick(window);
    window.item(idDelete).click();
    expectLeft(window, cases);
    for (const std::string& name : results)
        EXPECT_FALSE(has(name)) << name;
    EXPECT_FALSE(program.shows(confirmationClass));
}

TEST_F(Deletions, EveryFileIsAskedFor) {
    const Control window = opened();
    select(window, {0, 2});
    window.item(idDelete).click();
    const Control question = program.window(confirmationClass);
    EXPECT_EQ(question.text(), "Bekräfta");
    EXPECT_EQ(question.item(idQuestion).text(), "Är Du säker på att Du vill ta bort:");
    EXPECT_EQ(question.item(idYesButton).text(), "Ja");
    EXPECT_EQ(question.item(idCancelButton).text(), "Ångra");
    EXPECT_FALSE(question.item(idPosition).visible());
    EXPECT_FALSE(window.enabled());
    answer("A.RES", 0, idYesButton);
    expectSoon(program, false, [&] { return has("A.res"); });
    answer("C.RES", 2, idYesButton);
    expectLeft(window, {"B.RES"});
    EXPECT_TRUE(has("B.RES"));
}

TEST_F(Deletions, ARefusedFileStaysUnselectedAndTheNextIsAskedFor) {
    const Control window = opened();
    select(window, {0, 1, 2});
    window.item(idDelete).click();
    answer("A.RES", 0, idCancelButton);
    program.window(confirmationClass);
    EXPECT_FALSE(selected(window, 0));
    EXPECT_TRUE(selected(window, 1));
    EXPECT_TRUE(has("A.res"));
    answer("B.RES", 1, idYesButton);
    // Esc is "Ångra" too.
    const Control question = program.window(confirmationClass);
    question.item(idYesButton).key(VK_ESCAPE);
    program.waitGone(question);
    expectLeft(window, {"A.res", "C.res"});
}

TEST_F(Deletions, TheQuestionIsAnsweredWithKeys) {
    const Control window = opened();
    select(window, {0, 1, 2});
    while (program.focused() != window.item(idDelete)) {
        const Control before = program.focused();
        keyboard::press(VK_TAB);
        ASSERT_TRUE(program.until([&] { return program.focused() != before; }));
    }
    keyboard::press(VK_RETURN);
    const auto question = [&](const std::string& name) {
        Control asked;
        const auto askedAbout = [&]() -> std::string {
            asked = program.window(confirmationClass);
            try {
                return asked.item(idFileName).text();
            } catch (const GuiError&) {
                return {}; // the question before it has just gone
            }
        };
        expectSoon(program, name, askedAbout);
        expectSoon(program, asked.item(idCancelButton), [&] { return program.focused(); });
        return asked;
    };
    question("A.RES");
    keyboard::press('N');
    question("B.RES");
    keyboard::press('J');
    const Control last = question("C.RES");
    keyboard::press(VK_LEFT);
    expectSoon(program, last.item(idYesButton), [&] { return program.focused(); });
    keyboard::press(VK_RETURN);
    expectLeft(window, {"A.res"});
}

TEST_F(Deletions, AClickSelectsOrUnselectsAFileAndLeavesTheOthers) {
    const Control window = opened();
    clickRow(window, 0);
    clickRow(window, 2);
    expectSelected(window, {0, 2});
    clickRow(window, 0);
    expectSelected(window, {2});
    clickRow(window, 1);
    expectSelected(window, {1, 2});
    untick(window);
    window.item(idDelete).click();
    expectLeft(window, {"A.res"});
}

TEST_F(Deletions, TheArrowsMoveAndTheBlankSelects) {
    const Control window = opened();
    expectSoon(program, list(window), [&] { return program.focused(); });
    list(window).key(VK_SPACE);
    list(window).key(VK_DOWN);
    list(window).key(VK_DOWN);
    expectSelected(window, {0});
    list(window).key(VK_SPACE);
    expectSelected(window, {0, 2});
    list(window).key(VK_SPACE);
    expectSelected(window, {0});
}

TEST_F(Deletions, EnterKeepsTheFileUnlessYesHasTheFocus) {
    const Control window = opened();
    select(window, {0, 1});
    window.item(idDelete).click();
    Control question = program.window(confirmationClass);
    expectSoon(program, question.item(idCancelButton), [&] { return program.focused(); });
    question.item(idCancelButton).key(VK_RETURN);
    program.waitGone(question);
    EXPECT_TRUE(has("A.res"));

    question = program.window(confirmationClass);
    EXPECT_EQ(question.item(idFileName).text(), "B.RES");
    expectSoon(program, question.item(idCancelButton), [&] { return program.focused(); });
    question.item(idCancelButton).key(VK_TAB);
    expectSoon(program, question.item(idYesButton), [&] { return program.focused(); });
    question.item(idYesButton).key(VK_RETURN);
    program.waitGone(question);
    expectLeft(window, {"A.res", "C.res"});
}

TEST_F(Deletions, NothingSelectedIsTold) {
    const Control window = opened();
    untick(window);
    window.item(idDelete).click();
    EXPECT_EQ(program.answer(), (Message{"", "Markera först de filer som Du vill ta bort !"}));
    expectLeft(window, results);
    EXPECT_FALSE(program.shows(confirmationClass));
}

TEST_F(Deletions, HelpTellsWhatToDo) {
    const Control window = opened();
    window.item(idDeletionHelp).click();
    const Control help = program.window(helpClass);
    EXPECT_EQ(help.text(), "Hjälp");
    EXPECT_EQ(help.item(idTextOne).text(), "Clicka med musen på de Filer Du vill ta bort");
    EXPECT_EQ(help.item(idTextTwo).text(), "Clicka sedan på 'Ta bort'");
    EXPECT_FALSE(window.enabled());
    help.item(idOkButton).click();
    program.waitGone(help);
    expectSoon(program, true, [&] { return window.enabled(); });
}

// An error is told in a message box; the window below stays as usable as it was.
class FailedDeletions : public Deletions {
  protected:
    ~FailedDeletions() override { setReadOnly("A.res", false); }
    void expectError(const Control& window, const std::string& name, const std::string& reason,
                     const std::string& lastLine) const {
        const Message said = program.answer();
        EXPECT_EQ(said.title, "Varno");
        EXPECT_NE(said.text.find(scene.path(name)), std::string::npos) << said.text;
        EXPECT_NE(said.text.find(reason), std::string::npos) << said.text;
        EXPECT_NE(said.text.find("Filen har inte tagits bort"), std::string::npos) << said.text;
        EXPECT_TRUE(said.text.ends_with("\n" + lastLine)) << said.text;
        EXPECT_TRUE(window.visible());
        expectSoon(program, true, [&] { return window.enabled(); });
        EXPECT_FALSE(program.main().enabled()) << "the window is still modal";
    }
};

TEST_F(FailedDeletions, ReadOnlyFileStopsTheLoopAndTheWindowStaysUsable) {
    setReadOnly("A.res", true);
    const Control window = opened();
    select(window, {0, 1});
    untick(window);
    window.item(idDelete).click();
    expectError(window, "A.res", "en skrivskyddad fil", "Run-time error '75': Path/File access error");
    expectLeft(window, results);
    EXPECT_EQ(selection(window), (std::set<int>{0, 1})) << "what was not deleted";

    // The next try comes to the same question; the file is given up and the other one goes.
    window.item(idDelete).click();
    answer("A.RES", 0, idCancelButton);
    answer("B.RES", 1, idYesButton);
    expectLeft(window, {"A.res", "C.res"});
    EXPECT_EQ(selection(window), std::set<int>{});
    close(window);
    EXPECT_TRUE(program.main().enabled());
}

TEST_F(FailedDeletions, FileInUseIsReported) {
    const win32::UniqueHandle held(CreateFileW(win32::wide(scene.path("B.RES")).c_str(), GENERIC_READ, 0,
                                               nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_NE(held.get(), INVALID_HANDLE_VALUE);
    const Control window = opened();
    select(window, {1});
    window.item(idDelete).click();
    answer("B.RES", 1, idYesButton);
    expectError(window, "B.RES", "är öppen i ett annat program", "Run-time error '70': Permission denied");
    expectLeft(window, results);
    EXPECT_EQ(selection(window), std::set<int>{1});
}

TEST_F(FailedDeletions, FileGoneMeanwhileIsReported) {
    const Control window = opened();
    select(window, {2});
    window.item(idDelete).click();
    program.window(confirmationClass);
    scene.remove("C.res");
    answer("C.RES", 2, idYesButton);
    expectError(window, "C.res", "finns inte", "Run-time error '53': File not found");
    expectLeft(window, {"A.res", "B.RES"});
}

class DeletionFolders : public Deletions {
  protected:
    DeletionFolders() {
        scene.makeFolder("Bygge å");
        scene.write("Bygge å\\GAMMAL.RES", "");
    }
    // Leaves the file-name dialog in the folder.
    void visitFolder() const {
        program.command(idOpen);
        const Control dialog = program.window(fileDialogClass);
        program.chooseFile("Bygge å\\");
        expectSoon(program, scene.path("Bygge å"), [&] { return dialog.item(idPathLabel).text(); });
        close(dialog);
    }
};

TEST_F(DeletionFolders, StartsWhereTheFileDialogWasLeft) {
    visitFolder();
    const Control window = opened();
    EXPECT_EQ(window.item(idPathLabel).text(), scene.path("Bygge å"));
    EXPECT_EQ(list(window).rows(), Names{"GAMMAL.RES"});
    select(window, {0});
    untick(window);
    window.item(idDelete).click();
    expectLeft(window, {});
    EXPECT_FALSE(has("Bygge å\\GAMMAL.RES"));
    EXPECT_TRUE(has("A.res"));
}

TEST_F(DeletionFolders, FolderThatIsGoneIsReported) {
    visitFolder();
    scene.remove("Bygge å\\GAMMAL.RES");
    ASSERT_TRUE(RemoveDirectoryW(win32::wide(scene.path("Bygge å")).c_str()));
    program.command(idDeleteResults);
    EXPECT_EQ(program.answerError().text, "Run-time error '76': Path not found");
    EXPECT_TRUE(program.main().enabled());
    EXPECT_EQ(program.caption(), "NAMNLÖS.IND");
}

TEST_F(DeletionFolders, ListsLeadToOtherFolders) {
    const Control window = opened();
    const Control folders = window.item(idDirectoryList);
    for (const std::string& row : folders.rows()) {
        if (row.ends_with("Bygge å")) folders.doubleClick(row);
    }
    expectSoon(program, scene.path("Bygge å"), [&] { return window.item(idPathLabel).text(); });
    EXPECT_EQ(list(window).rows(), Names{"GAMMAL.RES"});
    window.item(idDriveList).choose(scene.folder().substr(0, 2));
    expectSoon(program, scene.folder(), [&] { return window.item(idPathLabel).text(); });
    EXPECT_EQ(list(window).rows(), results);
    EXPECT_EQ(program.currentDirectory(), scene.folder());
}

} // namespace
} // namespace varno::gui
