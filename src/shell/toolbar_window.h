#pragma once

#include <windows.h>

#include <commctrl.h>

#include <memory>

namespace varno {

/// The main window's toolbar: one button per key of the table, with pictures drawn for its resolution.
class Toolbar {
  public:
    void create(HWND parent);
    /// Draws the pictures for a resolution.
    void setDpi(int dpi);
    void setEnabled(int id, bool enabled);
    HWND handle() const { return handle_; }
    /// What the toolbar asks for the tip of a button.
    void tell(NMTBGETINFOTIPW& tip) const;
    /// The ID of the button at a place of the screen, 0 for none.
    int at(POINT place) const;

  private:
    struct Destroyer {
        using pointer = HIMAGELIST;
        void operator()(HIMAGELIST images) const { ImageList_Destroy(images); }
    };
    using Images = std::unique_ptr<HIMAGELIST, Destroyer>;

    HWND handle_ = nullptr;
    Images images_;
    Images fadedImages_;
};

} // namespace varno
