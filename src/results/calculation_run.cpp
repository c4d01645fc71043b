#include "results/calculation_run.h"

#include "base/run_time_error.h"

namespace varno {

namespace {

// A missing file is passed over: without a temporary file there is nothing to delete.
template <typename Step>
void skippingMissingFile(Step step) {
    try {
        step();
    } catch (const RunTimeError& error) {
        if (error.number() != errFileNotFound) throw;
    }
}

} // namespace

std::string engineCommandLine(const std::string& workFolder) {
    const std::string path = workFolder + "\\varnowb.exe";
    return path.find(' ') == std::string::npos ? path : "\"" + path + "\"";
}

void CalculationRun::copyInput(const std::string& caseName) {
    FileCalls& calls = files_.calls();
    const Bytes content = calls.readAll(caseName + ".ind");
    const auto copy = calls.create(temporaryInputFile);
    copy->write(content);
    copy->close();
}

void CalculationRun::run(const DocumentState& document, const std::string& workFolder,
                         const std::string& resultFontName) {
    if (!document.caseSaved || document.dataChanged) {
        boxes_.tell("Du måste spara Filen först !");
        return;
    }
    showingMissingResult(boxes_, document.currentFileName, [&] {
        const BusyPointer busy(window_);
        skippingMissingFile([&] { files_.calls().remove(temporaryInputFile); });
        skippingMissingFile([&] { copyInput(document.currentFileName); });
        processes_.ExecCmd(engineCommandLine(workFolder));
        window_.setDiagramEnabled(true);
        showResultFile(files_, viewer_, document.currentFileName, resultFontName);
    });
}

} // namespace varno
