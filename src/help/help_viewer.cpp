#include "help/help_viewer.h"

#include "help/help_topics.h"

namespace varno {

namespace {

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('\\'));
}

} // namespace

std::string HelpViewer::find(const std::string& file, const std::string& workFolder) {
    for (const std::string& folder : {folderOf(registeredHelpFile), workFolder, system_.programFolder()}) {
        if (!folder.empty() && system_.exists(folder + file)) return folder + file;
    }
    return {};
}

void HelpViewer::show(std::string_view topic, const std::string& workFolder) {
    const std::string file = find("\\Varno.HLP", workFolder);
    if (!file.empty() && system_.winHelp(file, helpContext(topic))) {
        shown_ = file;
        return;
    }
    // A page of its own for each topic leads to the place in the one long page: Windows drops what stands behind "#"
    // when it is asked to open a file.
    const std::string page = find("\\help\\amnen\\" + std::string(topic) + ".html", workFolder);
    if (page.empty()) {
        boxes_.tell(helpMissing);
    } else if (!system_.openDocument(page)) {
        boxes_.tell(helpNotOpened + page);
    }
}

void HelpViewer::close() {
    if (!shown_.empty()) system_.quitWinHelp(shown_);
    shown_.clear();
}

} // namespace varno
