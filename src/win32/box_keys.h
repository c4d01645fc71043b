#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace varno::win32 {

/// What a window makes of the keys of its text boxes.
class BoxKeys {
  public:
    virtual ~BoxKeys() = default;
    /// The text of a box is another than when it got the focus.
    virtual bool isTyped(int box) const = 0;
    /// It becomes what it was then, as if it had not been touched.
    virtual void takeBack(int box) = 0;
    /// The arrow keys up (-1) and down (1). True when the box is to do nothing about them.
    virtual bool arrow(int, int) { return false; }
    /// A text is pasted. True when the box is to do nothing more about it.
    virtual bool pasted(int, const std::string&) { return false; }
    /// What to copy of a box of which not just a part is selected; nothing for its own text.
    virtual std::optional<std::string> copied(int) const { return std::nullopt; }
};

/// A box whose keys go to `keys` first, which outlives it. Esc takes back what was typed; the next one is that of
/// the window. Ctrl+Z is the box's own, and so is Ctrl+C with a part of its text selected.
///
/// The first click into a number box selects it whole, as Tab does, so that what is typed next replaces the number;
/// a click into the box that has the focus places the caret.
void watchBox(HWND box, BoxKeys& keys);

/// A text to read leaves Tab, Enter and Esc to its window, which an edit control of many lines keeps to itself.
void leaveKeysToWindow(HWND memo);

} // namespace varno::win32
