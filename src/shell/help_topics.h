#pragma once

#include <array>
#include <string_view>

#include "lineloads/line_load_view.h"
#include "model/form_view.h"

// The topics of the help. Help is asked for by context number, `WinHelp` with HELP_CONTEXT: help/build_help writes the
// numbers below into Varno.HLP, and a window or control carries its number as its help context.

namespace varno {

/// A topic: the keyword of its heading in the help source, which is its anchor in the HTML twin too, and its context
/// number. A number belongs to its topic for good: an installed help file may be older or newer than the program.
struct HelpTopic {
    std::string_view name;
    unsigned context;
};

inline constexpr std::array helpTopics{
    // The run, the fields as a whole, the files, the engine
    HelpTopic{"oversikt", 1001},
    HelpTopic{"ansvar", 1002},
    HelpTopic{"indelning", 1003},
    HelpTopic{"korning", 1004},
    HelpTopic{"korning-start", 1005},
    HelpTopic{"korning-geometri", 1006},
    HelpTopic{"korning-laster", 1007},
    HelpTopic{"korning-material", 1008},
    HelpTopic{"korning-spara", 1009},
    HelpTopic{"korning-berakna", 1010},
    HelpTopic{"korning-resultat", 1011},
    HelpTopic{"korning-sluta", 1012},
    HelpTopic{"geometri", 1013},
    HelpTopic{"laster", 1014},
    HelpTopic{"klass", 1015},
    HelpTopic{"faktorer", 1016},
    HelpTopic{"material", 1017},
    HelpTopic{"armering-ok", 1018},
    HelpTopic{"armering-uk", 1019},
    HelpTopic{"brand", 1020},
    HelpTopic{"deformation", 1021},
    HelpTopic{"linjelaster", 1022},
    HelpTopic{"multiplikatorer", 1023},
    HelpTopic{"menyer", 1024},
    HelpTopic{"fonster", 1025},
    HelpTopic{"meddelanden", 1026},
    HelpTopic{"filer", 1027},
    HelpTopic{"fil-ind", 1028},
    HelpTopic{"fil-res", 1029},
    HelpTopic{"fil-momk", 1030},
    HelpTopic{"fil-tmp", 1031},
    HelpTopic{"fil-ini", 1032},
    HelpTopic{"fil-def", 1033},
    HelpTopic{"fil-ver", 1034},
    HelpTopic{"fil-fnt", 1035},
    HelpTopic{"fil-hlp", 1036},
    HelpTopic{"motor", 1037},
    HelpTopic{"motor-raknar", 1038},
    HelpTopic{"motor-fel", 1039},
    HelpTopic{"motor-byte", 1040},
    HelpTopic{"tangenter", 1041},
    // Fields
    HelpTopic{"falt-allmant", 2001},
    HelpTopic{"falt-rubrik", 2002},
    HelpTopic{"falt-nfack", 2003},
    HelpTopic{"falt-spv", 2004},
    HelpTopic{"falt-ptjl", 2005},
    HelpTopic{"falt-plast", 2006},
    HelpTopic{"falt-flast", 2007},
    HelpTopic{"falt-upl", 2008},
    HelpTopic{"falt-konsv", 2009},
    HelpTopic{"falt-konsh", 2010},
    HelpTopic{"falt-flagga", 2011},
    HelpTopic{"falt-lokt", 2012},
    HelpTopic{"falt-lastkomb", 2013},
    HelpTopic{"falt-shkl", 2014},
    HelpTopic{"falt-pkl", 2015},
    HelpTopic{"falt-shkldk", 2016},
    HelpTopic{"falt-shklfi", 2017},
    HelpTopic{"falt-shklpl", 2018},
    HelpTopic{"falt-shkleu", 2019},
    HelpTopic{"falt-lambdag", 2020},
    HelpTopic{"falt-ksi", 2021},
    HelpTopic{"falt-lambdaq", 2022},
    HelpTopic{"falt-psi0", 2023},
    HelpTopic{"falt-psi1", 2024},
    HelpTopic{"falt-psi2", 2025},
    HelpTopic{"falt-btg", 2026},
    HelpTopic{"falt-aok", 2027},
    HelpTopic{"falt-dok", 2028},
    HelpTopic{"falt-ktack", 2029},
    HelpTopic{"falt-kavko", 2030},
    HelpTopic{"falt-auk", 2031},
    HelpTopic{"falt-duk", 2032},
    HelpTopic{"falt-duarm", 2033},
    HelpTopic{"falt-brandk", 2034},
    HelpTopic{"falt-brandb", 2035},
    HelpTopic{"falt-kutak", 2036},
    HelpTopic{"falt-brukskomb", 2037},
    HelpTopic{"falt-initiell", 2038},
    HelpTopic{"falt-tillkommande", 2039},
    HelpTopic{"falt-overhojning", 2040},
    HelpTopic{"falt-heltal", 2041},
    HelpTopic{"falt-nllast", 2042},
    HelpTopic{"falt-llfnr", 2043},
    HelpTopic{"falt-avst", 2044},
    HelpTopic{"falt-lllast", 2045},
    HelpTopic{"falt-mfbro", 2046},
    HelpTopic{"falt-mfbru", 2047},
    HelpTopic{"falt-mflan", 2048},
    HelpTopic{"falt-mfbra", 2049},
    // Menu items: "meny-" and the name of the item
    HelpTopic{"meny-ark", 3001},
    HelpTopic{"meny-n", 3002},
    HelpTopic{"meny-op", 3003},
    HelpTopic{"meny-spar", 3004},
    HelpTopic{"meny-spars", 3005},
    HelpTopic{"meny-sut", 3006},
    HelpTopic{"meny-skrinst", 3007},
    HelpTopic{"meny-av", 3008},
    HelpTopic{"meny-red", 3009},
    HelpTopic{"meny-blin", 3010},
    HelpTopic{"meny-ber", 3011},
    HelpTopic{"meny-start", 3012},
    HelpTopic{"meny-res", 3013},
    HelpTopic{"meny-res1", 3014},
    HelpTopic{"meny-res2", 3015},
    HelpTopic{"meny-fil", 3016},
    HelpTopic{"meny-del1", 3017},
    HelpTopic{"meny-del2", 3018},
    HelpTopic{"meny-del3", 3019},
    HelpTopic{"meny-dia", 3020},
    HelpTopic{"meny-mom", 3021},
    HelpTopic{"meny-vikt", 3022},
    // Windows
    HelpTopic{"fonster-huvud", 4001},
    HelpTopic{"fonster-indata", 4002},
    HelpTopic{"fonster-nyheter", 4003},
    HelpTopic{"fonster-viktigt", 4004},
    HelpTopic{"fonster-spara", 4005},
    HelpTopic{"fonster-filnamn", 4006},
    HelpTopic{"fonster-linjelaster", 4007},
    HelpTopic{"fonster-fria-linjelaster", 4008},
    HelpTopic{"fonster-utdata", 4009},
    HelpTopic{"fonster-typsnitt", 4010},
    HelpTopic{"fonster-diagram", 4011},
    HelpTopic{"fonster-ta-bort", 4012},
    HelpTopic{"fonster-bekrafta", 4013},
    HelpTopic{"fonster-hjalp", 4014},
    // Messages
    HelpTopic{"medd-spara-forst", 5001},
    HelpTopic{"medd-resultatfil", 5002},
    HelpTopic{"medd-spara-andringar", 5003},
    HelpTopic{"medd-ersatt", 5004},
    HelpTopic{"medd-filnamn", 5005},
    HelpTopic{"medd-hjalp", 5006},
    HelpTopic{"medd-diskfel", 5007},
    HelpTopic{"medd-korfel", 5008},
    HelpTopic{"medd-skrivare", 5009},
};

/// 0 for a topic that is not in the table.
unsigned helpContext(std::string_view topic);
/// The topic of a context number, empty when there is none.
std::string_view helpTopicOfContext(unsigned context);

/// What the field tables name for a control of the input form; the spin button has the topic of the span count.
std::string_view helpTopicOf(Control control);
std::string_view helpTopicOf(LineLoadControl control);
/// The topic of a menu item by its ID; "menyer" for one that has none.
std::string_view helpTopicOfMenu(int id);
/// The topic of a window of the program by its class, empty for any other class.
std::string_view helpTopicOfWindow(std::string_view className);
/// The topic of a message box by its title.
std::string_view helpTopicOfMessage(std::string_view title);

} // namespace varno
