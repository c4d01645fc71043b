#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/file_chooser.h"
#include "win32/form_window.h"

namespace varno {

/// The part that the windows with a drive, a folder and a file list have in common: the lists' controls, what
/// they show, and going about in them.
class FileChooserWindow : public win32::FormWindow {
  public:
    using FormWindow::FormWindow;

  protected:
    void listen(FileChooser& chooser) { chooser_ = &chooser; }
    /// Creates the lists with their labels; the file list begins `top` pixels of the raster below the window's edge.
    void addLists(ControlKind fileList, int top);
    void showLists();

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void layOut() override;
    /// Enter opens the selected folder, as a double click does. False when the folder list has not the focus.
    bool enterFolder();

  private:
    void showDrives();
    void showFolders();
    void openChosenFolder();
    void drawFolder(const DRAWITEMSTRUCT& item) const;

    FileChooser* chooser_ = nullptr;
    std::vector<FolderRow> folders_;
};

} // namespace varno
