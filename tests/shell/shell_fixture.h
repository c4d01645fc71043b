#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/document.h"
#include "support/fake_file_dialog.h"
#include "support/fake_folders.h"
#include "support/fake_form.h"
#include "support/memory_files.h"

namespace varno::testing {

/// The document with everything around it faked: a disk in memory with a default case, and prompts and
/// dialogs that answer as the test tells them.
struct ShellFixture : DocumentView {
    ShellFixture();

    SaveAnswer askToSave(const std::string& caption, const std::string& text, bool cancelOffered) override {
        prompts.push_back(caption + "|" + text + (cancelOffered ? "|Avbryt" : ""));
        return saveAnswer;
    }
    void endProgram() override { ended = true; }
    void caseOpened() override {
        ++refreshes;
        opened = window.caption + "|" + title() + "|" + form.text({Field::spv, 1});
        if (drawingError != 0) throw RunTimeError(drawingError);
    }
    void fileUsed(const std::string& path) override { used.push_back(path); }
    void report(const RunTimeError& error) override { reported.push_back(error.number()); }

    /// An edit by the user: of the record, and marked as every edit is.
    void edit(float spanLength) {
        designCase.spv(1) = spanLength;
        state.dataChanged = true;
    }
    std::string title() const { return form.text({Field::rubrik}); }
    /// A whole design input file of this name, title and first span length.
    static Bytes caseFile(const std::string& name, const std::string& title, float spanLength);

    DesignCase designCase;
    DocumentState state;
    FakeForm form;
    FakeMainWindow window;
    MemoryFiles files;
    FakeMessageBoxes boxes;
    FakeFolders folders;
    int refreshes = 0;
    FileOpener opener{files, boxes};
    NumberLocale locale;
    FakeFileDialog dialogView;
    FileDialog dialog{folders, files, boxes, dialogView, locale};
    CaseFormFiller filler{designCase, form, window, NumberLocale{}};
    Document document{designCase, state, filler, form, window, opener, dialog, boxes, *this};

    SaveAnswer saveAnswer = SaveAnswer::no;
    std::string typed; ///< the name typed in the file-name dialog; empty cancels it
    std::vector<std::string> prompts;
    std::vector<std::string> dialogs; ///< "caption|pattern|name that it began with"
    bool ended = false;
    int drawingError = 0;          ///< what drawing a case ends in
    std::string opened;            ///< what is shown when a case is drawn: caption, title, first span
    std::vector<std::string> used; ///< files that were read or written as the user's
    std::vector<int> reported;
};

inline constexpr const char* workFolder = "C:\\varnow\\run";

} // namespace varno::testing
