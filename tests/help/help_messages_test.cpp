// What the program says and shows must stand in the help, word for word.
#include <gtest/gtest.h>

#include <string>

#include "base/open_file.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "help/help_pages.h"
#include "help/help_viewer.h"
#include "input/field_table.h"
#include "lineloads/line_load_set.h"
#include "shell/flag_pictures.h"
#include "shell/menu_table.h"
#include "support/memory_files.h"
#include "support/temporary_folder.h"

namespace varno::testing {
namespace {

void expectExplained(std::string_view text) {
    const std::string wanted = trimBlanks(joined(text));
    EXPECT_NE(readText().find(wanted), std::string::npos) << wanted;
}

// The string literals of a statement.
std::vector<std::string> literalsOf(std::string_view statement) {
    std::vector<std::string> literals;
    for (std::size_t at = statement.find('"'); at != std::string_view::npos;
         at = statement.find('"', at + 1)) {
        const auto end = statement.find('"', at + 1);
        if (end == std::string_view::npos) break;
        literals.emplace_back(statement.substr(at + 1, end - at - 1));
        at = end;
    }
    return literals;
}

TEST(HelpMessages, EveryMenuCaptionAndToolbarButtonIsExplained) {
    for (const MenuEntry& entry : menuTree) {
        if (entry.kind != MenuEntry::separator) expectExplained(entry.caption);
    }
    for (const ToolbarKey& key : toolbarKeys)
        expectExplained(key.tip);
}

TEST(HelpMessages, EveryFieldCaptionAndOptionIsExplained) {
    for (const TextField& field : textFields)
        expectExplained(field.caption);
    for (const ChoiceField& field : choiceFields) {
        expectExplained(field.caption);
        for (const std::string_view option : field.options)
            expectExplained(option);
    }
    for (const ClassGroup& group : classGroupFields)
        expectExplained(group.caption);
    for (int flag = 1; flag <= 6; ++flag)
        expectExplained(flagName(flag));
}

TEST(HelpMessages, TheLineLoadEditorsAreExplained) {
    for (const char* text : {caseLineLoads.caption, freeLineLoads.caption, lineLoadFrame, multiplierFrame})
        expectExplained(text);
    for (const LineLoadColumn& column : lineLoadColumns)
        expectExplained(column.heading);
    for (const MultiplierBox& box : multiplierBoxes)
        expectExplained(box.label);
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

TEST(HelpMessages, EveryTextInAMessageBoxIsExplained) {
    int texts = 0;
    for (const auto& file : filesOf(sourceFolder() / "src", ".cpp")) {
        const std::string source = contentOf(file);
        for (const char* call : {".tell(", ".show("}) {
            for (const std::string& statement : between(source, call, ";")) {
                for (const std::string& literal : literalsOf(statement)) {
                    expectExplained(literal);
                    ++texts;
                }
            }
        }
    }
    EXPECT_GE(texts, 8);
    expectExplained(helpMissing);
    expectExplained(helpNotOpened);
}

TEST(HelpMessages, TheTextsOfTheSmallWindowsAreExplained) {
    for (const char* text :
         {"Vill Du spara ändringarna i", "FÖRÄNDRINGAR i denna version:", "Visa inte detta nästa gång",
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
