#include "win32/printer_fonts.h"

#include <windows.h>

#include <winspool.h>

#include <algorithm>

#include "win32/late.h"
#include "win32/strings.h"
#include "win32/unique.h"

namespace varno::win32 {

namespace {

// The default printer's device context, null without a printer.
UniqueDc defaultPrinter() {
    const std::wstring name = defaultPrinterName();
    return UniqueDc(name.empty() ? nullptr : CreateICW(L"WINSPOOL", name.c_str(), nullptr, nullptr));
}

int CALLBACK collect(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names) {
    // Faces that begin with "@" are those of vertical writing.
    if (font->lfFaceName[0] != L'@') {
        auto& list = *reinterpret_cast<std::vector<std::string>*>(names);
        std::string face = narrow(font->lfFaceName);
        if (std::ranges::find(list, face) == list.end()) list.push_back(std::move(face));
    }
    return 1;
}

} // namespace

std::wstring defaultPrinterName() {
    const Late<decltype(&GetDefaultPrinterW)> defaultOne(L"winspool.drv", "GetDefaultPrinterW");
    DWORD length = 0;
    defaultOne(nullptr, &length);
    if (length == 0) return {};
    std::wstring name(length, L'\0');
    if (!defaultOne(name.data(), &length)) return {};
    name.resize(length - 1);
    return name;
}

std::string printerFontName() {
    constexpr const char* fallback = "Courier New";
    const UniqueDc printer = defaultPrinter();
    if (!printer) return fallback;
    wchar_t face[LF_FACESIZE] = L"";
    GetTextFaceW(printer.get(), LF_FACESIZE, face);
    // A device's stock font is a bitmap of the screen, not a face that a page is set in.
    const std::string name = narrow(face);
    return name.empty() || name == "System" ? fallback : name;
}

std::vector<std::string> printerFonts() {
    std::vector<std::string> names;
    LOGFONTW any{};
    any.lfCharSet = DEFAULT_CHARSET;
    const UniqueDc printer = defaultPrinter();
    const WindowDc screen(nullptr);
    EnumFontFamiliesExW(printer ? printer.get() : screen.get(), &any, collect,
                        reinterpret_cast<LPARAM>(&names), 0);
    return names;
}

} // namespace varno::win32
