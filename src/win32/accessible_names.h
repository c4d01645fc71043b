#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace varno::win32 {

/// What a control or window is called for screen readers, and its role (ROLE_SYSTEM_...) where it is not what its class
/// says; an empty name and role 0 leave that of the system.
///
/// The system is told when the first of them asks: its part for them takes five libraries, which a start without a screen
/// reader does not wait for.
class SpokenName {
  public:
    SpokenName(const std::string& name, long role);
    /// What to answer WM_GETOBJECT with; nothing leaves it to the system.
    std::optional<LRESULT> answer(HWND asked, WPARAM wParam, LPARAM lParam);

  private:
    std::wstring name_;
    long role_;
    std::optional<bool> systemKnows_;
};

/// Names a control of Windows' for screen readers, which otherwise take the label in front of it: the right one only for
/// the first box of a row.
void nameForScreenReaders(HWND control, const std::string& name, long role = 0);

} // namespace varno::win32
