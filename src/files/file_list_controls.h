#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/file_lists.h"
#include "win32/window.h"

namespace varno::win32 {

/// The drive list, directory list, file list and path label of a window, filled from FileLists.
class FileListControls {
  public:
    struct Controls {
        HWND drives;
        HWND folders;
        HWND files;
        HWND path;
    };
    void attach(const Controls& controls) { controls_ = controls; }

    void show(FileLists& lists);

    /// Draws a row of the directory list.
    void drawFolder(const DRAWITEMSTRUCT& item, int dpi) const;
    /// The row height of the directory list at a resolution.
    void setDpi(int dpi);

    std::string chosenDrive() const;
    /// The folder of the selected row of the directory list.
    std::optional<std::string> chosenFolder() const;
    std::optional<std::string> chosenFile() const;

  private:
    Controls controls_{};
    std::vector<FolderRow> folders_;
};

/// The text of a row of a list box, empty for a row it does not have.
std::string rowText(HWND listBox, LRESULT row);

} // namespace varno::win32
