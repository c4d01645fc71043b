#include "files/file_dialog.h"

#include "base/text.h"

namespace varno {

void FileDialog::activated(FileDialogView& view) {
    view.refreshLists();
    if (dialogForSaving == 1) {
        view.setName("test");
        view.setNote(
            "OBS! Filnamnet får innehålla max åtta tecken och inga mellanslag, komma, punkt eller å, ä, ö");
    } else {
        view.setNote("");
    }
    view.selectName();
}

void FileDialog::driveChosen(FileDialogView& view, const std::string& drive) {
    // The lists are shown again also when the drive is not there, so that the drive list stands where the
    // others do.
    try {
        lists_.changeDrive(drive);
    } catch (...) {
        view.refreshLists();
        throw;
    }
    view.refreshLists();
}

void FileDialog::folderChosen(FileDialogView& view, const std::string& path) {
    lists_.changeDirectory(path);
    view.refreshLists();
}

bool FileDialog::moveLists(const std::string& text) {
    const auto colon = text.find(':');
    const auto slash = text.rfind('\\');
    const bool pattern = text.find_first_of("*?") != std::string::npos;
    if (colon == std::string::npos && slash == std::string::npos && !pattern) return false;

    if (colon != std::string::npos) lists_.changeDrive(text.substr(0, colon) + ":");
    if (slash != std::string::npos) {
        // "mapp\*.ind" names a folder and a pattern; the backslash of a root belongs to the folder.
        const bool root = slash == 0 || text[slash - 1] == ':';
        const std::string folder = pattern ? text.substr(0, root ? slash + 1 : slash) : text;
        lists_.changeDirectory(folder);
    }
    if (pattern) {
        const auto start = slash != std::string::npos   ? slash + 1
                           : colon != std::string::npos ? colon + 1
                                                        : 0;
        lists_.setPattern(text.substr(start));
    }
    return true;
}

void FileDialog::accepted(FileDialogView& view) {
    const std::string text = view.name();
    if (trimBlanks(text).empty()) {
        boxes_.tell("Skriv ett filnamn först !");
        view.selectName();
        return;
    }
    bool moved = false;
    try {
        moved = moveLists(text);
    } catch (...) {
        view.refreshLists();
        view.selectName();
        throw;
    }
    if (moved) {
        view.refreshLists();
        view.selectName();
        return;
    }
    typedName = text;
    dialogAnswer = 0;
    view.close();
}

void FileDialog::cancelled(FileDialogView& view) {
    dialogAnswer = 1;
    view.close();
}

} // namespace varno
