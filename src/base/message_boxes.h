#pragma once

#include <string>

namespace varno {

/// Style numbers of a message box.
enum MessageStyle : int {
    msgOk = 0,
    msgYesNo = 4,
    msgError = 16, ///< "OK" beside the sign of an error
    msgQuestionYesNoCancel = 35,
    msgYesNoDefaultNo = 260, ///< for what cannot be undone: Enter answers "Nej"
};

/// The button that closed a message box.
enum class MessageAnswer : int { ok = 1, cancel = 2, abort = 3, retry = 4, ignore = 5, yes = 6, no = 7 };

/// Shows a message and waits for its answer. The rules name what is said; how a box looks is the platform's
/// affair.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    virtual MessageAnswer show(const std::string& text, int style, const std::string& title) = 0;

    /// A message with an "OK" button and no title.
    void tell(const std::string& text) { show(text, msgOk, ""); }
};

/// The boxes of Windows, over the active window of the program.
MessageBoxes& systemMessageBoxes();

} // namespace varno
