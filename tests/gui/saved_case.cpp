#include "saved_case.h"

#include "base/open_file.h"
#include "driver/wait.h"

namespace varno::gui {

namespace {

class NoBoxes : public MessageBoxes {
  public:
    MessageAnswer show(const std::string& text, int, const std::string&) override { throw GuiError(text); }
};

} // namespace

CaseFile readSavedCase(const std::string& path) {
    NoBoxes boxes;
    FileOpener opener(systemFileCalls(), boxes);
    File file = opener.openFile(path, FileMode::input);
    return VARNO1::readDesignCase(file, {});
}

} // namespace varno::gui
