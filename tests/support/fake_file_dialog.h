#pragma once

#include <functional>
#include <string>

#include "files/file_dialog.h"

namespace varno::testing {

/// The file-name dialog's window; `whileShown` is what the user does in it.
class FakeFileDialog : public FileDialogView {
  public:
    void setCaption(const std::string& shown) override { caption = shown; }
    std::string name() const override { return text; }
    void setName(const std::string& name) override { text = name; }
    void selectName() override { ++selected; }
    void setNote(const std::string& shown) override { note = shown; }
    void setNoteLines(int lines) override { noteLines = lines; }
    void refreshLists() override { ++refreshed; }
    void run() override {
        closed = false;
        ++timesShown;
        if (whileShown) whileShown();
    }
    void close() override { closed = true; }

    std::string caption;
    std::string text;
    std::string note;
    std::function<void()> whileShown;
    int noteLines = 0;
    int selected = 0;
    int refreshed = 0;
    int timesShown = 0;
    bool closed = false;
};

} // namespace varno::testing
