#pragma once

#include <string>
#include <vector>

#include "driver/paper_picture.h"

namespace varno::gui {

/// A word on paper with its box, points from the top left corner of the page.
struct PrintedWord {
    std::string text;
    double left;
    double top;
    double right;
    double bottom;
};

struct PrintedPage {
    double width; ///< points
    double height;
    std::vector<std::string> lines; ///< as laid out, without blanks at the end and without empty lines
    std::vector<PrintedWord> words;
    PaperPicture picture; ///< ten twips a pixel
};

struct Print {
    std::string pdf;        ///< path
    std::string postScript; ///< the job as the program sent it
    std::string fonts;      ///< a table of the fonts of its text
    std::vector<PrintedPage> pages;
};

/// What comes out of the test printer from now on. Its folder is told by the environment variable
/// VARNO_TEST_PRINTS; the prints stand there in the order in which they were sent.
class Prints {
  public:
    /// \throws GuiError without a test printer.
    Prints();
    /// Waits for the next one. \throws GuiError when none comes out.
    Print next();

  private:
    std::string folder_;
    int last_ = 0;
};

/// The twips from the edge of the paper that the test printer cannot print on, on every side.
inline constexpr double printerMargin = 12 * 20;

} // namespace varno::gui
