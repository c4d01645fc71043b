#pragma once

#include <compare>
#include <string>

namespace varno {

/// The text boxes of a line load editor, by the program's own names (without the "f" of the free editor).
enum class LineLoadBox {
    nllast,    ///< how many line loads
    llfnr,     ///< span number of a row 1..5
    avst,      ///< distance of a row 1..5
    lllast,    ///< load of a row 1..5
    multiplier ///< 1..4: mfbro, mfbru, mflan, mfbra
};

struct LineLoadControl {
    LineLoadBox box;
    int index = 0;
    auto operator<=>(const LineLoadControl&) const = default;
};

/// What an engineer would look at twice, and at which box.
struct LineLoadDoubt {
    LineLoadControl box;
    std::string text;
    bool operator==(const LineLoadDoubt&) const = default;
};

/// What the rules ask of a line load editor's window. It shows what it is told and knows no rule. Texts are
/// UTF-8.
class LineLoadView {
  public:
    virtual ~LineLoadView() = default;

    virtual std::string text(LineLoadControl control) const = 0;
    virtual void setText(LineLoadControl control, const std::string& text) = 0;
    /// The three boxes of a row 1..5.
    virtual void setRowVisible(int row, bool visible) = 0;
    virtual void focus(LineLoadControl control) = 0;
    /// The focus comes to a box from the keyboard, its text selected.
    virtual void enter(LineLoadControl control) = 0;
    /// The focus goes back to a box, its text selected, once the event is over.
    virtual void returnTo(LineLoadControl control) = 0;
    /// Shows the window, in front when it is shown already. Texts and rows are set before.
    virtual void show() = 0;
    /// Unloads the window.
    virtual void close() = 0;
};

} // namespace varno
