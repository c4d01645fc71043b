#pragma once

#include <windows.h>

namespace varno::win32 {

/// What a window makes of the keys of its text boxes.
class BoxKeys {
  public:
    virtual ~BoxKeys() = default;
    /// The text of a box is another than when it got the focus.
    virtual bool isTyped(int box) const = 0;
    /// It becomes what it was then, as if it had not been touched.
    virtual void takeBack(int box) = 0;
};

/// A box whose keys go to `keys` first, which outlives it. Esc takes back what was typed; the next one is that of
/// the window.
///
/// The first click into a number box selects it whole, as Tab does, so that what is typed next replaces the number;
/// a click into the box that has the focus places the caret.
void watchBox(HWND box, BoxKeys& keys);

} // namespace varno::win32
