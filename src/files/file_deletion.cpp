#include "files/file_deletion.h"

#include <algorithm>
#include <optional>

#include "base/run_time_error.h"
#include "base/text.h"

namespace varno {

void FileDeletion::open(const std::string& pattern, const std::string& dialogDirectory) {
    setPattern(pattern);
    view_.setConfirming(true);
    if (!dialogDirectory.empty()) {
        std::string directory = dialogDirectory;
        if (directory.ends_with('\\')) directory.pop_back();
        // "C:" alone would be wherever that drive stands, not its root.
        if (directory.ends_with(':')) directory += '\\';
        changeDirectory(directory);
    }
    view_.refreshLists();
    view_.run();
}

std::vector<std::string> FileDeletion::selectedNames() const {
    std::vector<std::string> names;
    for (int position = 0; position < view_.entryCount(); ++position) {
        if (view_.isSelected(position)) names.push_back(view_.entry(position));
    }
    return names;
}

void FileDeletion::deletePressed() {
    if (selectedNames().empty()) boxes_.tell("Markera först de filer som Du vill ta bort !");
    std::optional<RunTimeError> error;
    try {
        deleteSelected();
    } catch (const RunTimeError& thrown) {
        error = thrown;
    }
    const auto kept = selectedNames();
    view_.refreshLists();
    view_.setConfirming(true);
    for (int position = 0; position < view_.entryCount(); ++position)
        view_.select(position, std::find(kept.begin(), kept.end(), view_.entry(position)) != kept.end());
    if (error) boxes_.show(error->message(), msgError, "Varno");
}

// A file that is dealt with is not selected any longer, so what is still selected after an error was not deleted.
void FileDeletion::deleteSelected() {
    for (int position = 0; position < view_.entryCount(); ++position) {
        if (!view_.isSelected(position)) continue;
        const std::string name = view_.entry(position);
        if (!view_.confirming() || view_.confirmed(upperCase(name), std::to_string(position)))
            aboutFile(pathOf(name), FileAction::deleting,
                      [&] { calls_.remove(pathOf(name)); });
        view_.select(position, false);
    }
}

void FileDeletion::helpPressed() {
    view_.showHelp("Clicka med musen på de Filer Du vill ta bort", "Clicka sedan på 'Ta bort'");
}

} // namespace varno
