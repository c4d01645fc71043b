#include "results/result_viewer.h"

#include "base/run_time_error.h"
#include "results/result_text.h"

namespace varno {

ShownResult shownResult(FileCalls& calls, const std::string& caseName, const std::string& file) {
    ShownResult shown{caseName, file, {}, false};
    try {
        shown.written = calls.lastWrittenText(file);
        const std::string input = caseName + ".IND";
        shown.inputIsNewer = calls.exists(input) && calls.lastWritten(input) > calls.lastWritten(file);
    } catch (const RunTimeError&) {
        // It is shown all the same.
    }
    return shown;
}

void showResultFile(FileOpener& files, ResultViewer& viewer, const std::string& caseName,
                    const std::string& fontName) {
    File file = files.openFile(caseName + ".res", FileMode::input);
    const std::string text = decodeWindows1252(VARNO1::readResultText(file));
    viewer.setShown(shownResult(files.calls(), caseName, file.path()));
    viewer.setFont(fontName);
    viewer.setText(text);
    file.close();
    viewer.show();
}

void showingMissingResult(MessageBoxes& boxes, const std::string& caseName,
                          const std::function<void()>& command) {
    try {
        command();
    } catch (const RunTimeError&) {
        boxes.tell("Resultatfil till " + caseName + ".IND" + " saknas !");
    }
}

void showResults(FileOpener& files, MessageBoxes& boxes, MainView& window, ResultViewer& viewer,
                 const DocumentState& document, const std::string& resultFontName) {
    showingMissingResult(boxes, document.currentFileName, [&] {
        const BusyPointer busy(window);
        showResultFile(files, viewer, document.currentFileName, resultFontName);
    });
}

} // namespace varno
