// The menus and the toolbar, read back from the real window.
#include <gtest/gtest.h>

#include "shared_program.h"
#include "soon.h"

namespace varno::gui {

// Readable failures.
static void PrintTo(const MenuLine& line, std::ostream* out) {
    *out << line.depth << " \"" << line.caption << "\" " << line.id << (line.enabled ? "" : " (grey)");
}

namespace {

class Menus : public SharedProgram {};

struct Expected {
    int depth;
    const char* caption;
    int id;
};

// The fixed tree.
const std::vector<Expected> tree{
    {0, "Arkiv", 0},
    {1, "Ny", idNew},
    {1, "Öppna...", idOpen},
    {1, "-", 0},
    {1, "Spara", idSave},
    {1, "Spara som...", idSaveAs},
    {1, "-", 0},
    {1, "Skriv ut...", idPrint},
    {1, "Skrivarinställning...", idPrinterSetup},
    {1, "-", 0},
    {1, "Avsluta", idExit},
    {0, "Linjelaster", 0},
    {1, "Linjelaster", idLineLoads},
    {0, "Beräkning", 0},
    {1, "Kör...", idRun},
    {0, "Resultat", 0},
    {1, "Resultat på skärm", idShowResult},
    {1, "Resultat på skrivare", idPrintResult},
    {0, "Filhantering", 0},
    {1, "Ta bort", 0},
    {2, "Resultatfiler", idDeleteResults},
    {2, "Indatafiler", idDeleteInputs},
    {2, "Resultat+Indatafiler", idDeleteBoth},
    {0, "Diagram", 0},
    {1, "Moment", idMoment},
    {0, "Viktigt", idImportant},
};

TEST_F(Menus, AreTheFixedTree) {
    const auto lines = program().menuOf(program().main());
    ASSERT_EQ(lines.size(), tree.size());
    for (std::size_t i = 0; i < tree.size(); ++i) {
        EXPECT_EQ(lines[i].caption, tree[i].caption) << "line " << i;
        EXPECT_EQ(lines[i].depth, tree[i].depth) << lines[i].caption;
        EXPECT_EQ(lines[i].id, tree[i].id) << lines[i].caption;
        // Before a calculation there is nothing to draw.
        if (lines[i].depth > 0) continue;
        EXPECT_EQ(lines[i].enabled, lines[i].caption != "Diagram") << lines[i].caption;
    }
}

TEST_F(Menus, ToolbarRunsTheMenuItemsAndIsNamedByThem) {
    const auto buttons = program().toolbarButtons();
    const std::vector<std::pair<int, std::string>> expected{
        {idNew, "Ny"},
        {idOpen, "Öppna..."},
        {idSave, "Spara"},
        {idPrintResult, "Resultat på skrivare"},
        {idRun, "Kör..."},
        {idShowResult, "Resultat på skärm"},
        {idMoment, "Moment"},
        // No menu item opens the free line loads, so they have a button of their own.
        {idFreeLineLoads, "Fria linjelaster"},
    };
    ASSERT_EQ(buttons.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(buttons[i].id, expected[i].first);
        EXPECT_EQ(buttons[i].tip, expected[i].second);
    }
    EXPECT_FALSE(buttons[6].enabled) << "without a calculation there is no moment diagram";
}

TEST_F(Menus, ToolbarButtonsRunTheirCommands) {
    program().clickToolbar(idOpen);
    const Control dialog = program().window(fileDialogClass);
    EXPECT_EQ(dialog.text(), "Välj Indatafil");
    dialog.item(idCancelButton).click();
    program().waitGone(dialog);

    program().clickToolbar(idRun);
    EXPECT_EQ(program().answer(), (Message{"", "Du måste spara Filen först !"}));
}

TEST_F(Menus, ImportantShowsTheDisclaimerBesideTheProgram) {
    program().command(idImportant);
    const Control disclaimer = program().window(disclaimerClass);
    EXPECT_TRUE(program().main().enabled()) << "it is not modal here";
    EXPECT_EQ(disclaimer.item(idProductLabel).text(), "Kalvora Tessaplan ver 7.10");
    disclaimer.item(idOkButton).click();
    program().waitGone(disclaimer);
    program().command(idImportant);
    EXPECT_EQ(program().window(disclaimerClass), disclaimer) << "there is one of it";
    disclaimer.item(idOkButton).click();
    program().waitGone(disclaimer);
}

TEST_F(Menus, OpeningArkivEndsTheEditingOfTheField) {
    program().typeInto({Field::konsv}, "1,5x");
    program().main().post(WM_SYSCOMMAND, SC_KEYMENU);
    program().main().key(VK_DOWN);
    expectSoon(program(), program().field(Field::rubrik), [&] { return program().focused(); });
    expectSoon(program(), true, [&] { return program().field(Field::konsv).text().ends_with("50"); });
    program().main().key(VK_ESCAPE);
    program().main().key(VK_ESCAPE);
}

TEST(Viewer, HasTheFontMenu) {
    Scene scene;
    Program program(scene);
    program.passStartUp();
    scene.write("NAMNLÖS.res", "Resultat\r\n");
    program.command(idShowResult);
    const auto lines = program.menuOf(program.window(viewerClass));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], (MenuLine{0, "Typsnitt", 0, true}));
    EXPECT_EQ(lines[1], (MenuLine{1, "Redigera", idEditFont, true}));
}

} // namespace
} // namespace varno::gui
