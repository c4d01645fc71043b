#pragma once

#include <windows.h>

#include <cstdio>
#include <string>
#include <string_view>

#include "base/text.h"

namespace varno::win32 {

/// UTF-8 to the UTF-16 of the W functions and back.
inline std::wstring wide(std::string_view utf8) {
    const std::u16string text = utf16FromUtf8(utf8);
    return {text.begin(), text.end()};
}

inline std::string narrow(std::wstring_view text) {
    const std::u16string utf16(text.begin(), text.end());
    return utf8FromUtf16(utf16);
}

/// In the letters of the ANSI functions, '?' for those that they lack; `lost` tells of one.
inline std::string ansi(std::wstring_view text, DWORD flags = 0, BOOL* lost = nullptr) {
    const int length = static_cast<int>(text.size());
    std::string out(3 * text.size(), '\0');
    out.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, flags, text.data(), length, out.data(),
                                                            static_cast<int>(out.size()), nullptr, lost)));
    return out;
}

/// "2026-11-21 15:40:07"
inline std::string dateAndTime(const SYSTEMTIME& time) {
    char text[32] = "";
    snprintf(text, sizeof text, "%04u-%02u-%02u %02u:%02u:%02u", time.wYear, time.wMonth, time.wDay,
             time.wHour, time.wMinute, time.wSecond);
    return text;
}

/// The text of a window or control.
inline std::string textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return narrow(text);
}

inline std::string classOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return narrow(name);
}

inline void setText(HWND window, std::string_view text) {
    SetWindowTextW(window, wide(text).c_str());
}

} // namespace varno::win32
