#pragma once

#include "base/message_boxes.h"
#include "win32/window.h"

namespace varno::win32 {

/// Windows' own message box, over the active window of the program.
class WindowsMessageBoxes : public MessageBoxes {
  public:
    MessageAnswer show(const std::string& text, int style, const std::string& title) override;
};

} // namespace varno::win32
