#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "base/numbers.h"
#include "base/run_time_error.h"
#include "controls/field.h"

namespace varno {

/// The number that the shown digits of a value mean, whatever signs the display uses.
double asShown(double value, std::string_view pattern);
/// The number whose digits are those of a value of the record: the single 5.3 becomes the double 5.3.
double digitsOf(float value);
constexpr double digitsOf(std::int16_t value) {
    return value;
}
constexpr double digitsOf(double value) {
    return value;
}

/// The boxes of a window that hold numbers: the one way from a typed text to a number, and from a number to
/// the text shown.
///
/// A text is the user's when the box has changed since the program wrote it, also when it reads the same.
/// Only such a text is read: what is shown has fewer digits than the number may have, and signs that the
/// number reader does not know. `View` shows the texts of `Box`es, and takes the focus back to one.
template <typename View, typename Box>
class NumberBoxes {
  public:
    NumberBoxes(View& view, NumberLocale locale) : view_(view), locale_(std::move(locale)) {}

    /// Shows a number; nothing shows as an empty box.
    void put(Box box, std::optional<double> number, std::string_view pattern) {
        display(box, {number, pattern}, locale_);
    }
    template <typename Number>
    requires std::is_arithmetic_v<Number>
    void put(Box box, Number number, std::string_view pattern) {
        put(box, std::optional(digitsOf(number)), pattern);
    }
    /// The text of a box is another than before, whoever wrote it.
    void changed(Box box) { states_[box].typed = true; }
    /// Shows a text that is no number.
    void write(Box box, const std::string& text) { show(box, {}, text); }
    /// A box that takes the focus shows its number without grouping signs: one of them would end the number
    /// once the text is edited.
    void entered(Box box) {
        State& state = states_[box];
        if (!state.typed && state.pattern.find(',') != std::string_view::npos) {
            display(box, state, {locale_.decimal, ""});
        } else {
            state.entered = {view_.text(box), state.typed};
        }
    }
    /// The text is another than when the box took the focus.
    bool isTyped(Box box) const {
        const auto state = states_.find(box);
        return state != states_.end() && state->second.entered.text != view_.text(box);
    }
    /// The box is as it was then: a text that had not been typed is not read when it is left.
    void takeBack(Box box) {
        const Entered before = states_[box].entered;
        view_.setText(box, before.text);
        states_[box].typed = before.typed;
    }
    /// The number that a box would be left with just now, when it was typed. An emptied box is about to get one.
    std::optional<double> typing(Box box) const {
        const auto state = states_.find(box);
        if (state == states_.end() || !state->second.typed) return std::nullopt;
        const std::string text = view_.text(box);
        return text.empty() ? std::nullopt : std::optional(VARNO1::parseNumber(text));
    }
    /// What the user typed goes to `store`. A box that was left alone is rewritten in `pattern`.
    template <typename Store>
    void leave(Box box, std::string_view pattern, Store store) {
        State& state = states_[box];
        if (state.typed) {
            // Refused, it looks at once as it does when it is left, and is not written again under the selection.
            state.pattern = pattern;
            attempt(box, [&] { store(VARNO1::parseNumber(view_.text(box))); });
        } else if (state.number) {
            put(box, state.number, pattern);
        }
    }
    /// The same; a box that was left alone looks as before.
    template <typename Store>
    void leave(Box box, Store store) {
        leave(box, states_[box].pattern, store);
    }
    /// Runs what reads a box. Where its text cannot be used, the box shows its number again: screen and
    /// record never disagree.
    template <typename Action>
    void attempt(Box box, Action action) {
        try {
            action();
        } catch (const RunTimeError&) {
            if (states_[box].typed) {
                display(box, states_[box], locale_);
                view_.returnTo(box);
            }
            throw;
        }
    }

  private:
    struct Entered {
        std::string text;
        bool typed = false;
    };
    struct State {
        std::optional<double> number;
        std::string_view pattern;
        bool typed = false;
        Entered entered = {}; ///< as the box took the focus, or was written since
    };

    void display(Box box, const State& state, const NumberLocale& locale) {
        show(box, state, state.number ? formatNumber(*state.number, state.pattern, locale) : "");
    }
    void show(Box box, const State& state, const std::string& text) {
        const State shown{state.number, state.pattern, false, {text}};
        view_.setText(box, text);
        states_[box] = shown;
    }

    View& view_;
    NumberLocale locale_;
    std::map<Box, State> states_;
};

} // namespace varno
