// The program's commands on results, files and line loads; the rest is in application.cpp.
#include "diagram/diagram_commands.h"
#include "files/deletion_window.h"
#include "results/font_choice.h"
#include "results/result_viewer.h"
#include "shell/application.h"
#include "shell/application_parts.h"
#include "win32/printer_fonts.h"

namespace varno {

void Application::calculate() {
    CalculationRun(files_, boxes_, processes_, main_, *viewer_)
        .run(state_, settings_.workFolder, settings_.resultFontName);
}

void Application::showResult() {
    showResults(files_, boxes_, main_, *viewer_, state_, settings_.resultFontName);
}

void Application::chooseFont() {
    FontChooserWindow chooser(*this, viewer_->handle());
    FontChoice choice(settings_.resultFontName, files_, *viewer_, chooser);
    chooser.ask(choice, win32::printerFonts(), [this] { return fileDialog_.lists().directory(); });
}

void Application::showImportant() {
    if (!important_) important_ = std::make_unique<DisclaimerWindow>(host(), main_.handle());
    important_->showModeless();
}

// Printing

bool Application::printerThere() {
    if (printer_.available()) return true;
    boxes_.tell(
        "Det finns ingen skrivare att skriva ut på. Installera en skrivare i Windows och försök igen.");
    return false;
}

void Application::printCurrent() {
    if (printerThere()) printing_.printCurrent(state_, settings_.resultFontName);
}

void Application::printChosen() {
    if (!printerThere()) return;
    printing_.printChosen(state_, fileDialog_, [this](FileDialog& dialog) { showFileDialog(dialog); });
}

void Application::setUpPrinter() {
    if (printerThere()) printer_.setUp(main_.handle());
}

// Deletion

void Application::deleteFiles(const char* pattern) {
    DeletionWindow window(*this, main_.handle());
    window.ask(deletion_, pattern, fileDialog_.lists().directory());
}

// Moment diagram

void Application::showMoments() {
    if (!diagramWindow_) {
        diagramWindow_ = std::make_unique<DiagramWindow>(
            host(), main_.handle(), [this] { plotMoments(); }, [this] { diagramWindow_->close(); });
    }
    DiagramCommands(diagram_, files_, main_, printer_, *diagramWindow_).moment();
}

void Application::plotMoments() {
    if (printerThere()) DiagramCommands(diagram_, files_, main_, printer_, *diagramWindow_).plot();
}

// Line loads

void Application::openLineLoads(std::unique_ptr<LineLoads>& editor, const LineLoadSet& set) {
    const BusyPointer busy(main_);
    if (!editor) {
        editor = std::make_unique<LineLoads>(host(), main_.handle(), set, case_, state_, main_, sketch_, form_,
                                             locale_);
    }
    editor->rules.opened();
}

void Application::showForm() {
    main_.show(form_.naturalSize());
    input_.activated();
}

void Application::caseOpened() {
    if (lineLoads_) lineLoads_->rules.caseRead();
    if (freeLoads_) freeLoads_->rules.caseRead();
    sketch_.fullRefresh();
}

} // namespace varno
