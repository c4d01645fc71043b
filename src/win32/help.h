#pragma once

#include <windows.h>

#include "base/help_system.h"

namespace varno::win32 {

/// Windows' help viewer and the programs that open files, on behalf of one window.
class WindowsHelp : public HelpSystem {
  public:
    /// The window that the viewer serves, once it exists.
    void setOwner(HWND owner) { owner_ = owner; }

    bool exists(const std::string& path) override;
    std::string programFolder() override;
    bool winHelp(const std::string& file, unsigned context) override;
    void quitWinHelp(const std::string& file) override;
    bool openDocument(const std::string& path) override;

  private:
    HWND owner_ = nullptr;
};

} // namespace varno::win32
