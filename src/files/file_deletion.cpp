#include "files/file_deletion.h"

#include "base/text.h"

namespace varno {

void FileDeletion::opened(DeletionView& view, const std::string& pattern,
                          const std::string& dialogDirectory) {
    lists_.setPattern(pattern);
    view.setConfirming(true);
    if (!dialogDirectory.empty()) {
        std::string directory = dialogDirectory;
        if (directory.ends_with('\\')) directory.pop_back();
        // "C:" alone would be wherever that drive stands, not its root.
        if (directory.ends_with(':')) directory += '\\';
        lists_.changeDirectory(directory);
    }
    view.refreshLists();
}

void FileDeletion::deletePressed(DeletionView& view) {
    const auto makeReady = [&] {
        view.refreshLists();
        view.setConfirming(true);
    };
    try {
        deleteSelected(view);
    } catch (...) {
        makeReady();
        throw;
    }
    makeReady();
}

void FileDeletion::deleteSelected(DeletionView& view) {
    for (int position = 0; position < view.entryCount(); ++position) {
        if (!view.isSelected(position)) continue;
        const std::string name = view.entry(position);
        if (!view.confirming() || view.confirmed(upperCase(name), std::to_string(position))) {
            calls_.remove(lists_.pathOf(name));
        } else {
            view.clearSelection(position);
        }
    }
}

void FileDeletion::helpPressed(DeletionView& view) {
    view.showHelp("Clicka med musen på de Filer Du vill ta bort", "Clicka sedan på 'Ta bort'");
}

void FileDeletion::driveChosen(DeletionView& view, const std::string& drive) {
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

void FileDeletion::folderChosen(DeletionView& view, const std::string& path) {
    lists_.changeDirectory(path);
    view.refreshLists();
}

} // namespace varno
