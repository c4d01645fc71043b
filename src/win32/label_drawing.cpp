#include "win32/label_drawing.h"

#include <algorithm>

#include "win32/strings.h"
#include "win32/unique.h"

namespace varno::win32 {

namespace {

constexpr LONG paragraphSpare = 40; // the part of its width that a paragraph leaves free

}

void drawParagraph(const DRAWITEMSTRUCT& item) {
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(COLOR_BTNTEXT));
    const Selected letters(item.hDC, reinterpret_cast<HFONT>(SendMessageW(item.hwndItem, WM_GETFONT, 0, 0)));
    RECT lines = item.rcItem;
    lines.right -= (lines.right - lines.left) / paragraphSpare;
    DrawTextW(item.hDC, wide(textOf(item.hwndItem)).c_str(), -1, &lines,
              DT_WORDBREAK | DT_NOPREFIX | DT_NOCLIP);
}

void drawSymbol(const DRAWITEMSTRUCT& item, HFONT lettersFont, HFONT subscriptFont) {
    const std::wstring text = wide(textOf(item.hwndItem));
    const auto split = std::min(text.find(L'_'), text.size());
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(COLOR_BTNTEXT));

    const Selected letters(item.hDC, lettersFont);
    TEXTMETRICW metrics{};
    GetTextMetricsW(item.hDC, &metrics);
    const int top = item.rcItem.top + (item.rcItem.bottom - item.rcItem.top - metrics.tmHeight) / 2;
    TextOutW(item.hDC, item.rcItem.left, top, text.c_str(), static_cast<int>(split));
    if (split == text.size()) return;
    SIZE size{};
    GetTextExtentPoint32W(item.hDC, text.c_str(), static_cast<int>(split), &size);
    const Selected small(item.hDC, subscriptFont);
    TextOutW(item.hDC, item.rcItem.left + size.cx, top + metrics.tmAscent * 5 / 12, text.c_str() + split + 1,
             static_cast<int>(text.size() - split - 1));
}

} // namespace varno::win32
