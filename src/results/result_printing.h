#pragma once

#include <string>

#include "base/message_boxes.h"
#include "base/open_file.h"
#include "controls/main_view.h"
#include "drawing/printer.h"
#include "files/file_dialog.h"
#include "model/design_case.h"

namespace varno {

/// Result files on paper, page by page under a line with the page's number. Whatever goes wrong is told as a
/// missing result file of the current case. Printing starts when the whole file is read, so a file of too
/// many pages prints nothing.
///
/// A document that the moment diagram was plotted into is gone on with, and ended here.
class ResultPrinting {
  public:
    ResultPrinting(FileOpener& files, MessageBoxes& boxes, MainView& window, Printer& printer,
                   FileDialog& dialog)
        : files_(files), boxes_(boxes), window_(window), printer_(printer), dialog_(dialog) {}

    /// "Resultat på skrivare": the result of the current case, in the result font.
    void printCurrent(const DocumentState& document, const std::string& resultFontName) {
        printResult(document.currentFileName, resultFontName);
    }
    /// The same of any case.
    void printResult(const std::string& caseName, const std::string& resultFontName);
    /// "Skriv ut...": a result file that the user chooses. It is printed in whatever font the printer has.
    void printChosen(const DocumentState& document);

  private:
    void print(const std::string& path, const std::string* fontName);

    FileOpener& files_;
    MessageBoxes& boxes_;
    MainView& window_;
    Printer& printer_;
    FileDialog& dialog_;
};

} // namespace varno
