#include "driver/clipboard.h"

#include <windows.h>

#include <cstring>

#include "driver/wait.h"
#include "win32/strings.h"

namespace varno::gui::clipboard {

namespace {

class Opened {
  public:
    Opened() {
        // The program that was told of the last change may still hold it.
        if (!waitUntil([] { return OpenClipboard(nullptr) != FALSE; }))
            throw GuiError("the clipboard cannot be opened");
    }
    ~Opened() { CloseClipboard(); }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;
};

} // namespace

void set(const std::string& text) {
    const std::wstring letters = win32::wide(text);
    const std::size_t size = (letters.size() + 1) * sizeof(wchar_t);
    const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(data), letters.c_str(), size);
    GlobalUnlock(data);
    const Opened opened;
    EmptyClipboard();
    if (SetClipboardData(CF_UNICODETEXT, data) == nullptr) throw GuiError("the clipboard takes no text");
}

std::string text() {
    const Opened opened;
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data == nullptr) return {};
    const std::string text = win32::narrow(static_cast<const wchar_t*>(GlobalLock(data)));
    GlobalUnlock(data);
    return text;
}

} // namespace varno::gui::clipboard
