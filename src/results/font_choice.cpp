#include "results/font_choice.h"

namespace varno {

void FontChoice::opened(const std::vector<std::string>& printerFonts) {
    stored_ = resultFontName_;
    view_.showStored(stored_);
    view_.showInstalled(printerFonts);
}

void FontChoice::clicked(const std::string& face) {
    resultFontName_ = face;
    view_.showCurrent(face);
    viewer_.setFont(face);
}

void FontChoice::accepted(const std::string& directory) {
    File file = files_.openFile(directory + "\\" + fontFileName, FileMode::output);
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
