#pragma once

#include <string>
#include <vector>

#include "base/message_boxes.h"
#include "drawing/canvas.h"

namespace varno {

/// The printer with its current document, which lives as long as the program: whoever prints goes on where
/// the last one left off, until `endDocument`. The document starts with the first thing printed. A printer
/// that fails raises a RunTimeError.
class Printer {
  public:
    virtual ~Printer() = default;

    /// There is a printer to print on.
    virtual bool available() const = 0;
    /// The font faces that it offers, in its order.
    virtual std::vector<std::string> fonts() const = 0;

    /// The font face of the text that follows; it stays until the next one.
    virtual void setFontName(const std::string& face) = 0;
    /// Prints a text (UTF-8) and a line end. CR LF within it begins a new line too. Every new page starts at
    /// the top left corner that the margins leave.
    virtual void printLine(const std::string& text) = 0;
    /// The number of the page being printed, from 1 in every document.
    virtual int page() = 0;
    virtual void newPage() = 0;
    /// Hands the document to the spooler; without one it does nothing. A page that nothing was printed on is
    /// not put out at the end.
    virtual void endDocument() = 0;
    /// The current page to draw on, twips from the top left of the printable area. Starts the document when
    /// there is none.
    virtual Canvas& canvas() = 0;
};

/// Without a printer it says so.
inline bool printerThere(const Printer& printer, MessageBoxes& boxes) {
    if (printer.available()) return true;
    boxes.tell(
        "Det finns ingen skrivare att skriva ut på. Installera en skrivare i Windows och försök igen.");
    return false;
}

} // namespace varno
