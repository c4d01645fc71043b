#pragma once

#include <string>
#include <vector>

#include "base/open_file.h"
#include "base/text.h"
#include "files/file_dialog.h"
#include "input/form_filling.h"
#include "model/design_case.h"
#include "model/design_input_file.h"
#include "shell/rescue.h"

namespace varno {

/// The answer to a save-changes prompt, by the index of its button.
enum class SaveAnswer { yes = 0, no = 1, cancel = 2 };

/// What the document commands ask of the program around them.
class DocumentView {
  public:
    virtual ~DocumentView() = default;
    /// The save-changes prompt, modally: "Ja", "Nej", and "Avbryt" when it is offered.
    virtual SaveAnswer askToSave(const std::string& caption, const std::string& text, bool cancelOffered) = 0;
    virtual void endProgram() = 0;
    /// The record is another case and the form shows it: what shows it beside the form follows, the sketch
    /// last. \throws RunTimeError for a case that cannot be drawn.
    virtual void caseOpened() = 0;
    /// The case was read from a file of the user's, or saved to one.
    virtual void fileUsed(const std::string& path) = 0;
    /// Shows a run-time error that the command goes on after.
    virtual void report(const RunTimeError& error) = 0;
};

/// New, Open, Save, Save as and Exit of the one design case.
///
/// A file that cannot be read changes nothing. One that can is open before anything of it is drawn, so that a
/// case whose sketch ends in an error can be put right.
///
/// Save writes where the file-name dialog stands, under the name of the caption. That need not be the file that
/// the case came from, so Save asks before it replaces one that is neither that file nor the one that the case
/// was last saved to.
class Document : public RescueSource {
  public:
    Document(DesignCase& designCase, DocumentState& state, CaseFormFiller& filler, FormView& form,
             MainView& window, FileOpener& files, FileDialog& dialog, MessageBoxes& boxes,
             DocumentView& view);

    void newCase(const std::string& workFolder);
    void open();
    /// The same without the file-name dialog, which stands in the folder of the file afterwards. \param path full
    void openAt(const std::string& path);
    /// Of the files that are named on the command line or dropped on the window there must be one.
    void openGiven(const std::vector<std::string>& paths);
    void save();
    void saveAs();
    void exit();

    /// Opens the default case of the work folder, as start-up and New do.
    void readDefaultCase(const std::string& workFolder) { read(workFolder + "\\varno.def", false); }

    // RescueSource. The editors of line loads change the record without marking the case, as they are meant to;
    // what they changed is kept all the same.
    bool changed() const override { return state_.dataChanged || case_ != settledCase_; }
    std::string title() const override { return form_.text({Field::rubrik}); }
    RescuedCase toKeep() override;
    void restore(const RescuedCase& rescued) override;

    /// The upper-cased case name and ".IND": the main window's caption, and the name that Save writes to.
    std::string caption() const { return upperCase(state_.currentFileName) + ".IND"; }
    /// The question of the save-changes prompts.
    std::string saveQuestion() const;

  private:
    bool settled(const std::string& caption);
    void read(const std::string& path, bool asSaved);
    void readChosen(const std::string& path);
    void commit(const CaseFile& opened, bool asSaved);
    void tellFaults(const std::string& path);
    void write(const std::string& path);
    void tellLost();
    bool mayReplace(const std::string& path, const std::string& title);

    DesignCase& case_;
    DocumentState& state_;
    CaseFormFiller& filler_;
    FormView& form_;
    MainView& window_;
    FileOpener& files_;
    FileDialog& dialog_;
    MessageBoxes& boxes_;
    DocumentView& view_;
    std::string readFrom_;   ///< the file that the case was read from; empty for the default case
    std::string savedTo_;    ///< the file that it was last saved to; empty until it is
    DesignCase settledCase_; ///< as it was read or last saved
    std::string lost_;       ///< what the last save could not keep, for the user
};

/// `savedFileName` and `currentFileName` of a name typed in Save as: upper case, no blanks at the ends,
/// everything from the first "." on exchanged for ".IND".
struct CaseFileName {
    std::string savedFileName;
    std::string currentFileName;
};
CaseFileName caseFileName(const std::string& typedName);

} // namespace varno
