#pragma once

#include "files/file_chooser_window.h"
#include "files/file_dialog.h"

namespace varno {

/// The file-name dialog (`FileInfo`). Its rules are those of FileDialog.
class FileInfoWindow : public FileChooserWindow, public FileDialogView {
  public:
    using FileChooserWindow::FileChooserWindow;

    void create(HWND owner);
    void listen(FileDialog& dialog);

    void setCaption(const std::string& caption) override;
    std::string name() const override;
    void setName(const std::string& name) override;
    void selectName() override;
    void setNote(const std::string& note) override;
    void refreshLists() override { showLists(); }
    void run() override;
    void close() override { closeForm(); }

  protected:
    void onCommand(int id, int notification) override;
    void onCloseBox() override;

  private:
    FileDialog* dialog_ = nullptr;
};

} // namespace varno
