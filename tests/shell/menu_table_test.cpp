#include "shell/menu_table.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace varno::testing {
namespace {

TEST(MenuTable, IsTheFixedTree) {
    std::string tree;
    for (const MenuEntry& entry : menuTree) {
        static constexpr const char* indents[] = {"", "  ", "  ", "  ", "    ", ""};
        tree += std::string(indents[entry.kind]) + entry.name + " " + entry.caption + "\n";
    }
    EXPECT_EQ(tree, "ark Arkiv\n"
                    "  n Ny\n"
                    "  op Öppna...\n"
                    "  t1 -\n"
                    "  spar Spara\n"
                    "  spars Spara som...\n"
                    "  t2 -\n"
                    "  sut Skriv ut...\n"
                    "  skrinst Skrivarinställning...\n"
                    "  t3 -\n"
                    "  av Avsluta\n"
                    "red Linjelaster\n"
                    "  blin Linjelaster\n"
                    "ber Beräkning\n"
                    "  start Kör...\n"
                    "res Resultat\n"
                    "  res1 Resultat på skärm\n"
                    "  res2 Resultat på skrivare\n"
                    "fil Filhantering\n"
                    "  del Ta bort\n"
                    "    del1 Resultatfiler\n"
                    "    del2 Indatafiler\n"
                    "    del3 Resultat+Indatafiler\n"
                    "dia Diagram\n"
                    "  mom Moment\n"
                    "vikt Viktigt\n");
}

TEST(MenuTable, TheDiagramMenuStandsWhereItIsSwitched) {
    int place = -1;
    std::string at;
    for (const MenuEntry& entry : menuTree) {
        if (entry.kind != MenuEntry::menu && entry.kind != MenuEntry::plainItem) continue;
        if (++place == diagramMenuPlace) at = entry.name;
    }
    EXPECT_EQ(at, "dia");
}

TEST(MenuTable, ToolbarButtonsRunTheirMenuItemsInOrder) {
    std::vector<std::pair<std::string, int>> buttons;
    for (const ToolbarKey& button : toolbarKeys)
        buttons.emplace_back(button.key, button.id);
    EXPECT_EQ(buttons, (std::vector<std::pair<std::string, int>>{{"new", idNew},
                                                                 {"open", idOpen},
                                                                 {"save", idSave},
                                                                 {"print", idPrintResult},
                                                                 {"berakning", idRun},
                                                                 {"res1", idShowResult},
                                                                 {"momk", idMoment},
                                                                 {"fria", idFreeLineLoads}}));
}

} // namespace
} // namespace varno::testing
