#pragma once

#include <windows.h>

#include <map>
#include <optional>

#include "controls/list_choice.h"

namespace varno::win32 {

/// The drop-down lists of a window whose rows the program selects through here. What the user does to them is
/// told only when it is a choice.
class DropDowns {
  public:
    /// Selects a row, -1 for none.
    void show(HWND list, int row);
    void clear(HWND list);
    /// The notification that the window is to hear in place of this one: CBN_SELCHANGE for another row chosen,
    /// none for what is no choice.
    std::optional<int> heard(HWND list, int notification);

  private:
    std::map<HWND, ListChoice> choices_;
};

} // namespace varno::win32
