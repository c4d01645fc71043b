#include "results/result_viewer.h"

#include "base/run_time_error.h"
#include "results/result_text.h"

namespace varno {

void showResultFile(FileOpener& files, ResultViewer& viewer, const std::string& caseName,
                    const std::string& fontName) {
    File file = files.openFile(caseName + ".res", FileMode::input);
    const std::string text = decodeWindows1252(VARNO1::readResultText(file));
    viewer.setCase(caseName);
    viewer.setText(text);
    file.close();
    viewer.setFont(fontName);
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
