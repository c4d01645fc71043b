// The program's commands on results, files and line loads; the rest is in application.cpp.
#include "files/deletion_window.h"
#include "results/result_viewer.h"
#include "shell/application.h"
#include "shell/application_parts.h"

namespace varno {

void Application::calculate() {
    CalculationRun(files_, boxes_, processes_, main_, results_->viewer)
        .run(state_, settings_.workFolder, settings_.resultFontName);
}

void Application::showResult() {
    showResults(files_, boxes_, main_, results_->viewer, state_, settings_.resultFontName);
}

void Application::showImportant() {
    if (!important_) important_ = std::make_unique<DisclaimerWindow>(host(), main_.handle());
    important_->bringForward();
}

void Application::setUpPrinter() {
    if (printerThere(printer_, boxes_)) printer_.setUp(main_.handle());
}

void Application::deleteFiles(const char* pattern) {
    DeletionWindow window(host(), main_.handle());
    FileDeletion deletion(folders_, systemFileCalls(), boxes_, window);
    window.listen(deletion);
    deletion.open(pattern, fileDialog_.directory());
}

void Application::showMoments() {
    if (!moments_)
        moments_ =
            std::make_unique<Moments>(host(), main_.handle(), diagram_, files_, boxes_, main_, printer_);
    moments_->commands.moment();
}

// Line loads

void Application::openLineLoads(std::unique_ptr<LineLoads>& editor, const LineLoadSet& set) {
    const BusyPointer busy(main_);
    if (!editor) {
        editor = std::make_unique<LineLoads>(host(), main_.handle(), set, case_, state_, main_, sketch_,
                                             form_, locale_);
    }
    editor->rules.opened();
}

void Application::caseOpened() {
    if (lineLoads_) lineLoads_->rules.caseRead();
    if (freeLoads_) freeLoads_->rules.caseRead();
    sketch_.fullRefresh();
}

} // namespace varno
