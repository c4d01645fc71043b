#include "results/font_choice.h"

namespace varno {

void FontChoice::edit() {
    stored_ = resultFontName_;
    view_.showStored(stored_);
    view_.showCurrent("");
    view_.showInstalled(printer_.fonts());
    view_.run();
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
