#pragma once

#include <array>

#include "controls/control_ids.h"

namespace varno {

/// A line of the main window's menu tree.
struct MenuEntry {
    enum Kind { menu, item, separator, submenu, submenuItem, plainItem } kind;
    const char* name;    ///< the name its handler is keyed by
    const char* caption; ///< as shown; no item has a keyboard shortcut
    int id;              ///< 0 for a menu or separator
};

inline constexpr std::array menuTree{
    MenuEntry{MenuEntry::menu, "ark", "Arkiv", 0},
    MenuEntry{MenuEntry::item, "n", "Ny", idNew},
    MenuEntry{MenuEntry::item, "op", "Öppna...", idOpen},
    MenuEntry{MenuEntry::separator, "t1", "-", 0},
    MenuEntry{MenuEntry::item, "spar", "Spara", idSave},
    MenuEntry{MenuEntry::item, "spars", "Spara som...", idSaveAs},
    MenuEntry{MenuEntry::separator, "t2", "-", 0},
    MenuEntry{MenuEntry::item, "sut", "Skriv ut...", idPrint},
    MenuEntry{MenuEntry::item, "skrinst", "Skrivarinställning...", idPrinterSetup},
    MenuEntry{MenuEntry::separator, "t3", "-", 0},
    MenuEntry{MenuEntry::item, "av", "Avsluta", idExit},
    MenuEntry{MenuEntry::menu, "red", "Linjelaster", 0},
    MenuEntry{MenuEntry::item, "blin", "Linjelaster", idLineLoads},
    MenuEntry{MenuEntry::menu, "ber", "Beräkning", 0},
    MenuEntry{MenuEntry::item, "start", "Kör...", idRun},
    MenuEntry{MenuEntry::menu, "res", "Resultat", 0},
    MenuEntry{MenuEntry::item, "res1", "Resultat på skärm", idShowResult},
    MenuEntry{MenuEntry::item, "res2", "Resultat på skrivare", idPrintResult},
    MenuEntry{MenuEntry::menu, "fil", "Filhantering", 0},
    MenuEntry{MenuEntry::submenu, "del", "Ta bort", 0},
    MenuEntry{MenuEntry::submenuItem, "del1", "Resultatfiler", idDeleteResults},
    MenuEntry{MenuEntry::submenuItem, "del2", "Indatafiler", idDeleteInputs},
    MenuEntry{MenuEntry::submenuItem, "del3", "Resultat+Indatafiler", idDeleteBoth},
    MenuEntry{MenuEntry::menu, "dia", "Diagram", 0},
    MenuEntry{MenuEntry::item, "mom", "Moment", idMoment},
    MenuEntry{MenuEntry::plainItem, "vikt", "Viktigt", idImportant},
};

/// The place of "Diagram" in the menu bar.
inline constexpr int diagramMenuPlace = 5;

/// A button of the toolbar. It runs the menu item of its action; its tip is that item's caption, and more where there is
/// more to say.
struct ToolbarKey {
    const char* key;
    const char* tip;
    int id;
    const char* more = "";
};

inline constexpr std::array toolbarKeys{
    ToolbarKey{"new", "Ny", idNew, "Börjar om med standardfallet"},
    ToolbarKey{"open", "Öppna...", idOpen},
    ToolbarKey{"save", "Spara", idSave, "Skriver fallet till filen med namnet i fönstrets namnlist"},
    ToolbarKey{"print", "Resultat på skrivare", idPrintResult},
    ToolbarKey{"berakning", "Kör...", idRun, "Beräknar det sparade fallet och visar resultatet"},
    ToolbarKey{"res1", "Resultat på skärm", idShowResult, "Visar den senaste beräkningen av fallet"},
    ToolbarKey{"momk", "Moment", idMoment,
               "Visar momentdiagrammet; kräver en beräkning utan ändringar efter den"},
    // The free line load editor has no place in the fixed menu tree.
    ToolbarKey{"fria", "Fria linjelaster", idFreeLineLoads, "Visas bara i skissen, sparas och beräknas inte"},
};

} // namespace varno
