#pragma once

#include <array>

namespace varno {

/// One of the six Swedish letters that the design input file, the configuration files and the result file
/// carry in the DOS code pages 437 and 850.
struct OemLetter {
    char windows; ///< its byte in Windows-1252
    char dos;     ///< its byte in the DOS code pages
};

/// Å, Ä, Ö, å, ä, ö.
inline constexpr std::array<OemLetter, 6> oemLetters{{
    {'\xC5', '\x8F'},
    {'\xC4', '\x8E'},
    {'\xD6', '\x99'},
    {'\xE5', '\x86'},
    {'\xE4', '\x84'},
    {'\xF6', '\x94'},
}};

} // namespace varno
