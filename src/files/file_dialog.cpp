#include "files/file_dialog.h"

#include <string_view>

#include "base/text.h"
#include "files/case_summary.h"

namespace varno {

namespace {

constexpr const char* savingNote =
    "OBS! Filnamnet får innehålla max åtta tecken och inga mellanslag, komma, punkt eller å, ä, ö";

} // namespace

bool FileDialog::ask(const FileDialogUse& use, const std::string& name) {
    setPattern(use.pattern);
    dialogAnswer_ = 1;
    view_.setCaption(use.caption);
    describing_ = use.caption == std::string_view(choosingCase.caption);
    view_.setNoteLines(use.noteLines);
    view_.setNote(use.dialogForSaving == 1 ? savingNote : "");
    view_.refreshLists();
    view_.setName(name);
    view_.selectName();
    view_.run();
    return dialogAnswer_ == 0;
}

void FileDialog::moveLists(const std::string& text) {
    const auto colon = text.find(':');
    const auto slash = text.rfind('\\');
    const bool pattern = text.find_first_of("*?") != std::string::npos;

    if (colon != std::string::npos) changeDrive(text.substr(0, colon) + ":");
    if (slash != std::string::npos) {
        // "mapp\*.ind" names a folder and a pattern; the backslash of a root belongs to the folder.
        const bool root = slash == 0 || text[slash - 1] == ':';
        const std::string folder = pattern ? text.substr(0, root ? slash + 1 : slash) : text;
        changeDirectory(folder);
    }
    if (pattern) {
        const auto start = slash != std::string::npos   ? slash + 1
                           : colon != std::string::npos ? colon + 1
                                                        : 0;
        setPattern(text.substr(start));
    }
}

void FileDialog::accepted() {
    const std::string text = view_.name();
    if (trimBlanks(text).empty()) {
        boxes_.tell("Skriv ett filnamn först !");
        view_.selectName();
        return;
    }
    if (text.find_first_of(":\\*?") == std::string::npos) {
        typedName = text;
        dialogAnswer_ = 0;
        view_.close();
        return;
    }
    try {
        move([&] { moveLists(text); });
    } catch (...) {
        view_.selectName();
        throw;
    }
    view_.selectName();
}

void FileDialog::nameChanged() {
    if (!describing_) return;
    const std::string name = view_.name();
    const bool isName = !trimBlanks(name).empty() && name.find_first_of(":\\*?") == std::string::npos;
    view_.setNote(isName ? caseSummary(calls_, pathOf(name), locale_) : std::string());
}

void FileDialog::cancelled() {
    dialogAnswer_ = 1;
    view_.close();
}

} // namespace varno
