#include "win32/dpi.h"

#include <cstdlib>
#include <cwchar>

namespace varno::win32 {

namespace {

int overriddenDpi() {
    wchar_t text[16] = L"";
    if (GetEnvironmentVariableW(L"VARNO_DPI", text, 16) == 0) return 0;
    const long dpi = std::wcstol(text, nullptr, 10);
    return dpi >= 48 && dpi <= 960 ? static_cast<int>(dpi) : 0;
}

} // namespace

int dpiOf(HWND window) {
    static const int overridden = overriddenDpi();
    if (overridden != 0) return overridden;
    const UINT dpi = window != nullptr ? GetDpiForWindow(window) : GetDpiForSystem();
    return dpi != 0 ? static_cast<int>(dpi) : USER_DEFAULT_SCREEN_DPI;
}

int dpiOf(HMONITOR monitor) {
    if (const int overridden = overriddenDpi(); overridden != 0) return overridden;
    // Of Windows 8.1 and later; the import of a library for it is not worth it.
    using Asked = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
    static const auto ask = reinterpret_cast<Asked>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"shcore.dll"), "GetDpiForMonitor")));
    UINT across = 0;
    UINT down = 0;
    constexpr int effective = 0;
    if (ask == nullptr || ask(monitor, effective, &across, &down) != S_OK) return dpiOf(HWND{nullptr});
    return static_cast<int>(across);
}

UniqueFont systemFont(int dpi, FontRole role) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    LOGFONTW font{};
    if (SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                                   static_cast<UINT>(dpi))) {
        font = metrics.lfMessageFont;
    } else {
        font.lfHeight = -MulDiv(9, dpi, 72);
        std::wcscpy(font.lfFaceName, L"Segoe UI");
    }
    switch (role) {
    case FontRole::text:
        break;
    case FontRole::symbol:
        // Formula letters, some of them Greek, which not every interface font has.
        font.lfHeight = MulDiv(font.lfHeight, 3, 2);
        std::wcscpy(font.lfFaceName, L"Times New Roman");
        break;
    case FontRole::subscript:
        font.lfHeight = MulDiv(font.lfHeight, 5, 6);
        break;
    case FontRole::heading:
        font.lfHeight = MulDiv(font.lfHeight, 3, 2);
        font.lfWeight = FW_BOLD;
        break;
    case FontRole::bold:
        font.lfWeight = FW_BOLD;
        break;
    }
    return UniqueFont(CreateFontIndirectW(&font));
}

UniqueFont fontOf(const wchar_t* face, int points, int dpi) {
    return fontOfHeight(face, -MulDiv(points, dpi, 72));
}

UniqueFont fontOfHeight(const wchar_t* face, int height) {
    LOGFONTW font{};
    font.lfHeight = height;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfWeight = FW_NORMAL;
    // Where the face is not installed, another of fixed pitch takes its place: results are laid out for one.
    font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    std::wcsncpy(font.lfFaceName, face, LF_FACESIZE - 1);
    return UniqueFont(CreateFontIndirectW(&font));
}

} // namespace varno::win32
