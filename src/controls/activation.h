#pragma once

#include <optional>

namespace varno {

/// A window with fields that the user types in.
class FieldWindow {
  public:
    virtual ~FieldWindow() = default;
    /// A field that was kept as the one being typed in is left after all.
    virtual void leaveKept(int field) = 0;
};

/// Tells leaving a field from leaving the program, and coming back to a window from coming to it anew.
///
/// A field loses the focus also when the user looks something up in another program. It is not left then: its
/// text stays as it was typed, half a number maybe, until the user goes on in it or leaves it here. Message
/// boxes and the dialogs of Windows are not told of, so they come between without a trace.
class Activation {
  public:
    /// A window of the program loses the activation: to another program, or to a window of its own.
    void deactivated(bool toAnotherProgram) { away_ = toAnotherProgram; }

    /// A window of the program is the active one. True when it was the last one that was: the focus goes where
    /// it stood. False when it comes after another window of the program.
    bool activated(const void* window) {
        away_ = false;
        const bool comesBack = window == last_;
        last_ = window;
        if (!comesBack) leaveKept();
        return comesBack;
    }

    /// A field loses the focus: true when it is left.
    bool leaves(FieldWindow& window, int field) {
        if (!away_) return true;
        kept_ = {&window, field};
        return false;
    }

    /// A field gets the focus: true when it is entered, false when it was never left.
    bool enters(const FieldWindow& window, int field) {
        if (kept_ && kept_->window == &window && kept_->field == field) {
            kept_.reset();
            return false;
        }
        leaveKept();
        return true;
    }

    /// The window ends; what is typed in it goes with it.
    void forget(const FieldWindow& window) {
        if (kept_ && kept_->window == &window) kept_.reset();
    }

  private:
    struct Kept {
        FieldWindow* window;
        int field;
    };

    void leaveKept() {
        if (!kept_) return;
        const Kept left = *kept_;
        kept_.reset();
        left.window->leaveKept(left.field);
    }

    const void* last_ = nullptr; ///< the window of the program that was active last
    bool away_ = false;
    std::optional<Kept> kept_; ///< in `last_`
};

} // namespace varno
