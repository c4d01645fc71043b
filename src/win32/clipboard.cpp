#include "win32/clipboard.h"

#include <cstring>

#include "win32/strings.h"

namespace varno::win32 {

namespace {

class ClipboardAccess {
  public:
    explicit ClipboardAccess(HWND owner) {
        // Others look at it whenever it changes, and hold it for a moment.
        for (int attempt = 0; attempt < 10 && !open_; ++attempt) {
            if (attempt > 0) Sleep(20);
            open_ = OpenClipboard(owner) != FALSE;
        }
    }
    ~ClipboardAccess() {
        if (open_) CloseClipboard();
    }
    ClipboardAccess(const ClipboardAccess&) = delete;
    ClipboardAccess& operator=(const ClipboardAccess&) = delete;
    explicit operator bool() const { return open_; }

  private:
    bool open_ = false;
};

} // namespace

std::string clipboardText(HWND owner) {
    const ClipboardAccess clipboard(owner);
    if (!clipboard) return {};
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data == nullptr) return {};
    const auto* const letters = static_cast<const wchar_t*>(GlobalLock(data));
    if (letters == nullptr) return {};
    std::string text = narrow(letters);
    GlobalUnlock(data);
    return text;
}

void setClipboardText(HWND owner, const std::string& text) {
    const ClipboardAccess clipboard(owner);
    if (!clipboard) return;
    const std::wstring letters = wide(text);
    const std::size_t size = (letters.size() + 1) * sizeof(wchar_t);
    const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, size);
    if (data == nullptr) return;
    std::memcpy(GlobalLock(data), letters.c_str(), size);
    GlobalUnlock(data);
    EmptyClipboard();
    // From here on it belongs to the system.
    if (SetClipboardData(CF_UNICODETEXT, data) == nullptr) GlobalFree(data);
}

void setClipboardPicture(HWND owner, HENHMETAFILE metafile, HBITMAP bitmap) {
    const ClipboardAccess clipboard(owner);
    if (clipboard) EmptyClipboard();
    if (!clipboard || SetClipboardData(CF_ENHMETAFILE, metafile) == nullptr) DeleteEnhMetaFile(metafile);
    if (!clipboard || SetClipboardData(CF_BITMAP, bitmap) == nullptr) DeleteObject(bitmap);
}

} // namespace varno::win32
