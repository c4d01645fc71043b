#include "results/font_choice.h"

#include <algorithm>

namespace varno {

void FontChoice::edit() {
    stored_ = resultFontName_;
    view_.showStored(stored_);
    view_.showCurrent(stored_);
    view_.showInstalled(offered());
    view_.run();
}

std::vector<std::string> FontChoice::offered() const {
    std::vector<std::string> faces = printer_.fonts();
    // The faces of the screen, which need not have the one that was chosen among a printer's.
    if (!printer_.available() && std::ranges::find(faces, stored_) == faces.end())
        faces.insert(faces.begin(), stored_);
    return faces;
}

void FontChoice::clicked(const std::string& face) {
    resultFontName_ = face;
    view_.showCurrent(face);
    viewer_.setFont(face);
}

void FontChoice::accepted() {
    File file = files_.openFile(dialog_.path(fontFileName), FileMode::output);
    file.printLine(encodeWindows1252(resultFontName_));
    file.close();
    view_.close();
}

void FontChoice::cancelled() {
    resultFontName_ = stored_;
    viewer_.setFont(resultFontName_);
    view_.close();
}

} // namespace varno
