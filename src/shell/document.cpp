#include "shell/document.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "model/design_input_file.h"
#include "model/reference_tables.h"
#include "results/calculation_run.h"
#include "shell/case_messages.h"

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

std::string Document::saveQuestion() const {
    return "Vill Du spara ändringarna i " + state_.currentFileName + ".IND" + " ?";
}

void Document::read(const std::string& path, bool asSaved) {
    DesignCase presets = case_;
    presetDesignCase(presets);
    File file = files_.openFile(path, FileMode::input);
    const CaseFile opened = VARNO1::readDesignCase(file, presets);
    file.close();
    commit(opened, asSaved);
    readFrom_ = asSaved ? path : std::string();
    savedTo_.clear();
    if (asSaved) view_.fileUsed(path);
}

void Document::commit(const CaseFile& opened, bool asSaved) {
    case_ = opened.designCase;
    settledCase_ = case_;
    state_.currentFileName = opened.name;
    state_.caseSaved = asSaved;
    window_.setCaption(caption());
    window_.setDiagramEnabled(false);
    filler_.showCase(opened.title);
    form_.enter({Field::rubrik});
    state_.dataChanged = false;
    try {
        view_.caseOpened();
    } catch (const RunTimeError& error) {
        view_.report(error);
    }
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

    readChosen(dialog_.path(dialog_.typedName));
}

void Document::openAt(const std::string& path) {
    // Of a missing folder the shared opening of files would tell for ever.
    if (!files_.calls().exists(path))
        throw RunTimeError(errBadFileNameOrNumber,
                           {.file = path, .action = FileAction::reading, .cause = errFileNotFound});
    if (!settled("Öppna")) return;
    readChosen(path);
    dialog_.changeDirectory(folderOf(path));
}

void Document::openGiven(const std::vector<std::string>& paths) {
    if (paths.size() > 1) {
        boxes_.tell("Bara ett fall kan vara öppet. Öppna eller släpp en fil i taget !");
    } else if (!paths.empty()) {
        openAt(paths.front());
    }
}

void Document::readChosen(const std::string& path) {
    try {
        const BusyPointer busy(window_);
        read(path, true);
    } catch (const RunTimeError&) {
        tellFaults(path);
        throw;
    }
    tellFaults(path);
}

// The reader makes a case of nearly anything; what the file looks like is told beside it.
void Document::tellFaults(const std::string& path) {
    std::string text;
    try {
        text = fileFaultsText(path, checkFile(files_.calls().readAll(path)));
    } catch (const RunTimeError&) {
        // A file that cannot be read at all is the business of the error that the reader raised.
        return;
    }
    if (!text.empty()) boxes_.tell(text);
}

void Document::write(const std::string& path) {
    const BusyPointer busy(window_);
    const CaseFile caseFile{case_, state_.currentFileName, title()};
    File file = files_.openFile(path, FileMode::output);
    VARNO1::writeDesignCase(file, caseFile);
    file.close();
    state_.dataChanged = false;
    state_.caseSaved = true;
    settledCase_ = case_;
    savedTo_ = path;
    view_.fileUsed(path);
    lost_ = savedCheckText(checkSaved(caseFile, file.written()));
}

void Document::tellLost() {
    if (!lost_.empty()) boxes_.tell(lost_);
}

// A file of another case is replaced only when the user says so.
bool Document::mayReplace(const std::string& path, const std::string& title) {
    FileCalls& calls = files_.calls();
    if (calls.same(path, readFrom_) || calls.same(path, savedTo_) || !calls.exists(path)) return true;
    return boxes_.show(path + " finns redan. Vill Du ersätta filen ?", msgYesNoDefaultNo, title) ==
           MessageAnswer::yes;
}

void Document::save() {
    // The caption is the file name, not the name the case was opened by: HUS1.IND and hus1.ind are one file.
    if (!state_.caseSaved) {
        saveAs();
        return;
    }
    const std::string path = dialog_.path(caption());
    if (!mayReplace(path, "Spara")) return;
    write(path);
    tellLost();
}

void Document::saveAs() {
    const auto typedPath = [this] { return dialog_.path(caseFileName(dialog_.typedName).savedFileName); };
    if (!dialog_.ask(savingCase)) return;
    while (!mayReplace(typedPath(), savingCase.caption)) {
        if (!dialog_.askAgain(savingCase)) return;
    }
    const CaseFileName name = caseFileName(dialog_.typedName);
    const std::string path = typedPath();
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
    tellLost();
}

void Document::exit() {
    if (state_.dataChanged) {
        const SaveAnswer answer = view_.askToSave("Avsluta", saveQuestion(), true);
        if (answer == SaveAnswer::cancel) return;
        if (answer == SaveAnswer::yes) save();
        if (answer == SaveAnswer::yes && state_.dataChanged) return;
    } else {
        // Only the clean exit deletes the temporary file.
        try {
            files_.calls().remove(temporaryInputFile);
        } catch (const RunTimeError&) {
            // No calculation was run, or its copy cannot be deleted: neither keeps the program from ending.
        }
    }
    view_.endProgram();
}

// Rescue

RescuedCase Document::toKeep() {
    RescuedCase kept;
    kept.designCase = case_;
    kept.currentFileName = state_.currentFileName;
    kept.savedFileName = state_.savedFileName;
    kept.caseSaved = state_.caseSaved;
    kept.readFrom = readFrom_;
    kept.savedTo = savedTo_;
    kept.directory = dialog_.directory();
    return kept;
}

void Document::restore(const RescuedCase& rescued) {
    bool folderThere = true;
    try {
        dialog_.changeDirectory(rescued.directory);
    } catch (const RunTimeError&) {
        // Save must not write under the case's name into some other folder.
        folderThere = false;
    }
    commit({rescued.designCase, rescued.currentFileName, rescued.title}, rescued.caseSaved && folderThere);
    state_.savedFileName = rescued.savedFileName;
    readFrom_ = rescued.readFrom;
    savedTo_ = rescued.savedTo;
    state_.dataChanged = true;
}

} // namespace varno
