#pragma once

#include <string>
#include <vector>

namespace varno::win32 {

/// Empty where there is no printer.
std::wstring defaultPrinterName();

/// The font face that a fresh document of the default printer starts with; "Courier New" where there is no
/// printer or it names none: the result file is laid out for a fixed pitch.
std::string printerFontName();

/// The faces that the default printer offers, in its order; those of the screen where there is no printer.
std::vector<std::string> printerFonts();

} // namespace varno::win32
