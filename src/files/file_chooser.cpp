#include "files/file_chooser.h"

namespace varno {

void FileChooser::move(const std::function<void()>& step) {
    try {
        step();
    } catch (...) {
        view_.refreshLists();
        throw;
    }
    view_.refreshLists();
}

void FileChooser::driveChosen(const std::string& drive) {
    move([&] { lists_.changeDrive(drive); });
}

void FileChooser::folderChosen(const std::string& path) {
    move([&] { lists_.changeDirectory(path); });
}

} // namespace varno
