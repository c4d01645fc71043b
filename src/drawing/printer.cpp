#include "drawing/printer.h"

namespace varno {

bool printerThere(const Printer& printer, MessageBoxes& boxes) {
    if (printer.available()) return true;
    boxes.tell(
        "Det finns ingen skrivare att skriva ut på. Installera en skrivare i Windows och försök igen.");
    return false;
}

} // namespace varno
