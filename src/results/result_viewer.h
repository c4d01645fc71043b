#pragma once

#include <functional>
#include <string>

#include "base/message_boxes.h"
#include "base/open_file.h"
#include "controls/main_view.h"
#include "model/design_case.h"

namespace varno {

/// A file of the engine that is shown, and the case that it belongs to.
struct ShownResult {
    std::string caseName;
    std::string file;
    std::string written;       ///< "2026-11-21 15:40:07"; empty when it cannot be told
    bool inputIsNewer = false; ///< the case's file beside it was written after it
};
ShownResult shownResult(FileCalls& calls, const std::string& caseName, const std::string& file);

/// The window "Utdata" with its text box.
class ResultViewer {
  public:
    virtual ~ResultViewer() = default;
    /// Which result comes.
    virtual void setShown(const ShownResult& shown) = 0;
    virtual void setText(const std::string& text) = 0;
    /// The font face of the text box.
    virtual void setFont(const std::string& face) = 0;
    virtual void show() = 0;
};

/// Opens `caseName`.res, puts its repaired text into the viewer in this font and shows it. \throws
/// RunTimeError.
void showResultFile(FileOpener& files, ResultViewer& viewer, const std::string& caseName,
                    const std::string& fontName);

/// Runs `command`; a run-time error in it is told as a missing result file. The message says ".IND" although
/// the file looked for ends in ".res".
void showingMissingResult(MessageBoxes& boxes, const std::string& caseName,
                          const std::function<void()>& command);

/// "Resultat på skärm": shows the result file of the current case.
void showResults(FileOpener& files, MessageBoxes& boxes, MainView& window, ResultViewer& viewer,
                 const DocumentState& document, const std::string& resultFontName);

} // namespace varno
