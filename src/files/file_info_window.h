#pragma once

#include "controls/control_ids.h"
#include "files/file_chooser_window.h"
#include "files/file_dialog.h"
#include "win32/strings.h"

namespace varno {

/// The file-name dialog (`FileInfo`). Its rules are those of FileDialog.
class FileInfoWindow : public FileChooserWindow, public FileDialogView {
  public:
    using FileChooserWindow::FileChooserWindow;

    void create(HWND owner);
    void listen(FileDialog& dialog);

    void setCaption(const std::string& caption) override { win32::setText(handle(), caption); }
    std::string name() const override { return win32::textOf(item(idFileName)); }
    void setName(const std::string& name) override { setBoxText(idFileName, name); }
    void selectName() override;
    void setNote(const std::string& note) override;
    void setNoteLines(int lines) override { noteLines_ = lines; }
    void refreshLists() override { showLists(); }
    void run() override;
    void close() override { closeForm(); }

  protected:
    void onCommand(int id, int notification) override;
    void onCloseBox() override { dialog_->cancelled(); }
    void layOut() override;

  private:
    FileDialog* dialog_ = nullptr;
    int noteLines_ = 0;
};

} // namespace varno
