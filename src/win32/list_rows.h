#pragma once

#include <windows.h>

#include <string>

#include "win32/strings.h"

namespace varno::win32 {

/// The text of a row of a list box, empty for a row it does not have.
inline std::string rowText(HWND listBox, LRESULT row) {
    const LRESULT length = SendMessageW(listBox, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0);
    if (row < 0 || length == LB_ERR) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(listBox, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return narrow(text);
}

/// The same of the selected row of a list in which one can be selected.
inline std::string selectedRowText(HWND listBox) {
    return rowText(listBox, SendMessageW(listBox, LB_GETCURSEL, 0, 0));
}

} // namespace varno::win32
