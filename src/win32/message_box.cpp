#include "win32/message_box.h"

#include "win32/strings.h"

namespace varno::win32 {

MessageAnswer WindowsMessageBoxes::show(const std::string& text, int style, const std::string& title) {
    return static_cast<MessageAnswer>(
        MessageBoxW(GetActiveWindow(), wide(text).c_str(), wide(title).c_str(), static_cast<UINT>(style)));
}

} // namespace varno::win32
