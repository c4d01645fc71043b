#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace varno::win32 {

struct PopupItem {
    std::string caption; ///< "-" for a separator
    bool checked = false;
    bool enabled = true;
};

/// Shows a context menu at a place of the screen. \return the row that was chosen, -1 for none.
int chooseFromMenu(HWND owner, POINT place, const std::vector<PopupItem>& items);

/// Where the menu that WM_CONTEXTMENU asks for belongs: at the pointer, or below the window for the keyboard.
POINT placeOfMenu(HWND window, LPARAM place);

} // namespace varno::win32
