#pragma once

#include "files/file_dialog.h"
#include "files/file_list_controls.h"
#include "win32/form_window.h"

namespace varno {

/// The file-name dialog (`FileInfo`). Its rules are those of FileDialog.
class FileInfoWindow : public win32::FormWindow, public FileDialogView {
  public:
    FileInfoWindow(win32::WindowHost& host, HWND owner);

    void ask(FileDialog& dialog);

    std::string name() const override;
    void setName(const std::string& name) override;
    void selectName() override;
    void setNote(const std::string& note) override;
    void refreshLists() override;
    void close() override { closeForm(); }

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void onCloseBox() override;
    void layOut() override;

  private:
    FileDialog* dialog_ = nullptr;
    win32::FileListControls lists_;
};

} // namespace varno
