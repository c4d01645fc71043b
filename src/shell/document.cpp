#include "shell/document.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "model/design_input_file.h"
#include "model/reference_tables.h"
#include "results/calculation_run.h"

namespace varno {

CaseFileName caseFileName(const std::string& typedName) {
    const std::string name = trimBlanks(upperCase(typedName));
    const auto point = name.find('.');
    if (point == std::string::npos) return {name + ".IND", name};
    return {name.substr(0, point + 1) + "IND", name.substr(0, point)};
}

Document::Document(DesignCase& designCase, DocumentState& state, CaseFormFiller& filler, FormView& form,
                   MainView& window, FileOpener& files, FileDialog& dialog, MessageBoxes& boxes,
                   DocumentView& view)
    : case_(designCase), state_(state), filler_(filler), form_(form), window_(window), files_(files),
      dialog_(dialog), boxes_(boxes), view_(view) {}

std::string Document::caption() const {
    return upperCase(state_.currentFileName) + ".IND";
}

std::string Document::saveQuestion() const {
    return "Vill Du spara ändringarna i " + state_.currentFileName + ".IND" + " ?";
}

void Document::selectTitle() {
    form_.focus({Field::rubrik});
    form_.selectAll({Field::rubrik});
}

void Document::read(const std::string& path, bool asSaved) {
    DesignCase presets = case_;
    presetDesignCase(presets);
    File file = files_.openFile(path, FileMode::input);
    const CaseFile opened = VARNO1::readDesignCase(file, presets);
    file.close();

    case_ = opened.designCase;
    state_.currentFileName = opened.name;
    state_.caseSaved = asSaved;
    window_.setCaption(caption());
    window_.setDiagramEnabled(false);
    filler_.showCase(opened.title);
    selectTitle();
    state_.dataChanged = false;
    try {
        view_.caseOpened();
    } catch (const RunTimeError& error) {
        view_.report(error);
    }
}

void Document::readDefaultCase(const std::string& workFolder) {
    read(workFolder + "\\varno.def", false);
}

// False when the case was to be saved but was not, because the file-name dialog was cancelled: the command
// that asked then stops, as cancelling that dialog leaves the document as it is.
bool Document::settled(const std::string& caption) {
    if (!state_.dataChanged) return true;
    if (view_.askToSave(caption, saveQuestion(), false) != SaveAnswer::yes) return true;
    save();
    return !state_.dataChanged;
}

void Document::newCase(const std::string& workFolder) {
    if (!settled("Ny")) return;
    const BusyPointer busy(window_);
    readDefaultCase(workFolder);
}

void Document::open() {
    if (!settled("Öppna")) return;
    if (!dialog_.ask(choosingCase)) return;

    const BusyPointer busy(window_);
    read(dialog_.path(dialog_.typedName), true);
}

void Document::write(const std::string& path) {
    const BusyPointer busy(window_);
    File file = files_.openFile(path, FileMode::output);
    VARNO1::writeDesignCase(file, {case_, state_.currentFileName, form_.text({Field::rubrik})});
    file.close();
    state_.dataChanged = false;
    state_.caseSaved = true;
}

void Document::save() {
    // The caption is the file name, not the name the case was opened by: HUS1.IND and hus1.ind are one file.
    if (state_.caseSaved) {
        write(dialog_.path(caption()));
    } else {
        saveAs();
    }
}

// A file of another case is replaced only when the user says so.
bool Document::mayReplace(const std::string& savedFileName) {
    const bool own = state_.caseSaved && savedFileName == caption();
    if (own || !files_.calls().exists(dialog_.path(savedFileName))) return true;
    return boxes_.show(savedFileName + " finns redan. Vill Du ersätta filen ?", msgYesNoDefaultNo,
                       savingCase.caption) == MessageAnswer::yes;
}

void Document::saveAs() {
    if (!dialog_.ask(savingCase)) return;
    while (!mayReplace(caseFileName(dialog_.typedName).savedFileName)) {
        if (!dialog_.askAgain(savingCase)) return;
    }
    const CaseFileName name = caseFileName(dialog_.typedName);
    const std::string path = dialog_.path(name.savedFileName);
    // The name goes into the first line of the file, so it changes before the case is written; when writing
    // fails the document is what it was.
    const DocumentState oldState = state_;
    state_.savedFileName = name.savedFileName;
    state_.currentFileName = name.currentFileName;
    try {
        write(path);
    } catch (const RunTimeError&) {
        state_ = oldState;
        throw;
    }
    window_.setCaption(caption());
}

void Document::exit() {
    if (!state_.dataChanged) {
        try {
            files_.calls().remove(temporaryInputFile);
        } catch (const RunTimeError&) {
            // No calculation was run, or its copy cannot be deleted: neither keeps the program from ending.
        }
        view_.endProgram();
        return;
    }
    switch (view_.askToSave("Avsluta", saveQuestion(), true)) {
    case SaveAnswer::cancel:
        return;
    case SaveAnswer::yes:
        save();
        if (state_.dataChanged) return;
        break;
    case SaveAnswer::no:
        break;
    }
    // Only the clean exit deletes the temporary file.
    view_.endProgram();
}

} // namespace varno
