#include "help/help_viewer.h"

#include "help/help_topics.h"

namespace varno {

namespace {

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('\\'));
}

} // namespace

std::vector<std::string> HelpViewer::folders(const std::string& workFolder) {
    std::vector<std::string> places{folderOf(registeredHelpFile)};
    if (!workFolder.empty()) places.push_back(workFolder);
    places.push_back(system_.programFolder());
    return places;
}

bool HelpViewer::showFile(std::string_view topic, const std::vector<std::string>& folders) {
    for (const std::string& folder : folders) {
        const std::string file = folder + "\\Varno.HLP";
        if (!system_.exists(file)) continue;
        if (!system_.winHelp(file, helpContext(topic))) return false;
        shown_ = file;
        return true;
    }
    return false;
}

// A page of its own for each topic leads to the place in the one long page: Windows drops what stands behind "#" when
// it is asked to open a file.
std::string HelpViewer::twinPage(std::string_view topic, const std::vector<std::string>& folders) {
    for (const std::string& folder : folders) {
        std::string page = folder + "\\help\\amnen\\" + std::string(topic) + ".html";
        if (system_.exists(page)) return page;
    }
    return {};
}

void HelpViewer::show(std::string_view topic, const std::string& workFolder) {
    const auto places = folders(workFolder);
    if (showFile(topic, places)) return;
    const std::string page = twinPage(topic, places);
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
