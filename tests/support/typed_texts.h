#pragma once

#include <array>

namespace varno::testing {

/// What somebody may type into a number box, sense or nonsense; the random walks draw from it.
inline constexpr std::array typedTexts{
    "",      " ",        "0",        "5",     "6,5",        "6.5",    "1,234,5", "abc",      "12abc",
    " 7.6",  "-3",       "-0.04",    "0.004", "22.5",       "23,5",   "1e3",     "1d2",      "1e39",
    "-4e38", "1e999",    "1e-50",    "32767", "32767.5",    "32768",  "-32769",  "99999999", "123456.789",
    "5.3",   "5,30",     "5'30",     "1.005", "1.00499999", "2.675",  "--1",     "+4",       "4000",
    "9.5",   "9,5",      "1.4",      "10",    "0.1",        "0,1701", ".5",      ",5",       "\t8\t",
    "4 5",   "1 234,50", "\xC3\xA5", "1E",    "1e+",        "3.",     "7e0",     "1.234,5",  "- 2",
};

/// What comes by the clipboard, or from an arm on the keyboard.
inline constexpr std::array longTexts{
    "12345678901234567890123456789012345678901234567890",
    "0,00000000000000000000000000000000000000000000000001",
    "                                                  7",
    "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa",
    "-1e308-1e308-1e308-1e308-1e308-1e308-1e308-1e308",
    "4,5\r\n6,5\r\n7,5",
    "4,5\t6,5\t7,5",
    "\u00A01\u00A0234,50 kN/m²",
};

/// Titles: such as a case file keeps, and such as it cannot.
inline constexpr std::array typedTitles{
    "",
    "Hus 4",
    "Bärlägg å ö Å Ä Ö",
    "5 \"tum\" – plan 2",
    "Hus, 4 plan",
    "  Hus",
    "\"Hus\" 4",
    "Łódź ”A”",
    "Ett hus med en lång rubrik, som ingen läser till slut, med 12 plan, 3 trapphus och en källare",
};

} // namespace varno::testing
