// What the program says and shows must stand in the help, word for word.
#include <gtest/gtest.h>

#include <string>

#include "base/open_file.h"
#include "base/run_time_error.h"
#include "controls/rule_sets.h"
#include "help/help_pages.h"
#include "help/help_viewer.h"
#include "input/field_table.h"
#include "input/form_view.h"
#include "input/grid_clipboard.h"
#include "lineloads/line_load_set.h"
#include "shell/menu_table.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

TEST(HelpMessages, EveryMenuCaptionAndToolbarButtonIsExplained) {
    for (const MenuEntry& entry : menuTree) {
        if (entry.kind != MenuEntry::separator) expectExplained(entry.caption);
    }
    for (const ToolbarKey& key : toolbarKeys)
        expectExplained(key.tip);
}

TEST(HelpMessages, EveryFieldCaptionAndOptionIsExplained) {
    for (const TextField& field : textFields) {
        if (!field.isFactor()) expectExplained(field.caption);
    }
    for (const ChoiceField& field : choiceFields) {
        if (field.kind == ChoiceKind::list) continue;
        expectExplained(field.caption);
        // Those are explained without their padding.
        if (field.field == Field::brandb) continue;
        for (const std::string_view option : field.options)
            expectExplained(option);
    }
    for (const RuleSet& rules : ruleSets)
        expectExplained(rules.frame);
    for (int flag = 1; flag <= 6; ++flag)
        expectExplained(flagName(flag));
}

TEST(HelpMessages, TheLineLoadEditorsAreExplained) {
    for (const char* text : {caseLineLoads.caption, freeLineLoads.caption, lineLoadFrame, multiplierFrame})
        expectExplained(text);
    for (const LineLoadColumn& column : lineLoadColumns)
        expectExplained(column.heading);
    for (const char* label : multiplierLabels)
        expectExplained(label);
}

TEST(HelpMessages, TheHintAtTheTitleIsExplained) {
    expectExplained(commaHint);
    expectExplained(leftOutHint);
}

TEST(HelpMessages, EveryDiskErrorIsExplained) {
    MemoryFiles files;
    FakeMessageBoxes boxes;
    FileOpener opener(files, boxes);
    for (int error = 0; error < 1000; ++error)
        opener.reportFileError(error);
    EXPECT_EQ(boxes.shown.size(), 9U);
    for (const auto& message : boxes.shown) {
        expectExplained(message.text);
        expectExplained(message.title);
    }
}

TEST(HelpMessages, EveryRunTimeErrorIsExplainedWithItsNumber) {
    const std::string unknown = runTimeErrorText(-1);
    expectExplained(unknown);
    int errors = 0;
    for (int number = 1; number < 1000; ++number) {
        if (runTimeErrorText(number) == unknown) continue;
        expectExplained(std::to_string(number) + " " + runTimeErrorText(number));
        ++errors;
    }
    EXPECT_GE(errors, 18);
    expectExplained("Run-time error");
}

// Every message box that a rule shows in any test of these is looked up as it is shown: FakeMessageBoxes does it.
TEST(HelpMessages, AMessageIsLookedUpWithoutTheNamesInIt) {
    EXPECT_TRUE(isExplained("HUS1.IND finns redan. Vill Du ersätta filen ?"));
    EXPECT_TRUE(isExplained("Resultatfil till C:\\arbete\\BRO.IND saknas !"));
    EXPECT_TRUE(isExplained(std::string(helpNotOpened) + "D:\\arbete\\help\\falt-spv.html"));
    EXPECT_FALSE(isExplained("HUS1.IND finns inte. Vill Du ersätta filen ?"));
}

TEST(HelpMessages, TheTextsOfTheSmallWindowsAreExplained) {
    for (const char* text :
         {"Det finns ingen skrivare att skriva ut på. Installera en skrivare i Windows och försök igen.",
          "Vill Du spara ändringarna i", "FÖRÄNDRINGAR i denna version:", "Visa inte detta nästa gång",
          "FILNAMN:", "Är Du säker på att Du vill ta bort:", "Clicka med musen på de Filer Du vill ta bort",
          "Clicka sedan på 'Ta bort'", "Installerade skrivarfonter", "Lagrat fontval", "Visas just nu",
          "OK / Stäng", "Avbryt / Stäng", "Plotta på skrivare", "Välj Indatafil", "Välj Resultatfil",
          "Byt till svenska byggregler (BKR)"})
        expectExplained(text);
}

TEST(HelpMessages, EveryFileOfTheProgramIsExplained) {
    for (const char* name : {".IND", ".RES", "momk.dat", "~indata~.tmp", "varno.ini", "varno.def",
                             "varno.ver", "Varnfnt.ini", "Varno.HLP", "varnowb.exe"})
        expectExplained(name);
    // In the path of the place where the help is registered, too.
    expectExplained(registeredHelpFile);
}

} // namespace
} // namespace varno::testing
