#pragma once

#include <string>
#include <string_view>

namespace varno {

/// Bytes as they stand in a file or go to the engine: Windows-1252, some of them DOS letters. A type name,
/// not a type of its own: it tells the reader of a signature which side of the edge a text is on. Everything
/// else is UTF-8.
using Bytes = std::string;

/// Windows-1252 to UTF-8. Every byte has a character: the five that Windows-1252 leaves undefined become
/// U+0081, U+008D, U+008F, U+0090 and U+009D, so that every byte survives a round trip.
std::string decodeWindows1252(std::string_view bytes);

/// UTF-8 to Windows-1252; a character it lacks (and a damaged UTF-8 sequence) becomes "?".
Bytes encodeWindows1252(std::string_view utf8);

/// UTF-8 to UTF-16 and back, for the W functions. Damaged sequences become U+FFFD.
std::u16string utf16FromUtf8(std::string_view utf8);
std::string utf8FromUtf16(std::u16string_view utf16);

/// Upper case of the letters of Windows-1252, independent of any locale. The few without a capital in that
/// code page (ß, µ, ƒ) stay.
std::string upperCase(std::string_view utf8);

/// How many characters a UTF-8 text has, which in a fixed pitch is how wide it is.
std::size_t characterCount(std::string_view utf8);

/// The text without blanks at either end.
std::string trimBlanks(std::string_view text);

/// Both texts are the same but for the case of their letters.
bool equalIgnoringCase(std::string_view a, std::string_view b);

} // namespace varno

namespace VARNO1 {

/// The first "Å", "Ä", "Ö", "å", "ä" and "ö" of a Windows-1252 text become their DOS codes 143, 142, 153,
/// 134, 132 and 148. Only the first occurrence of each letter: existing files and the engine depend on it.
varno::Bytes toOemLetters(std::string_view text);

/// The inverse: the first occurrence of each of the six DOS codes becomes its letter.
varno::Bytes fromOemLetters(std::string_view text);

} // namespace VARNO1
