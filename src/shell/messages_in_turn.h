#pragma once

#include <deque>

#include "base/message_boxes.h"
#include "base/run_time_error.h"

namespace varno {

/// What shows the next reported error when the event that raised it is over.
class ErrorPost {
  public:
    virtual ~ErrorPost() = default;
    /// Has `showNext` called from the message loop, never at once.
    virtual void postRunTimeError() = 0;
};

/// One message at a time. A message box has a message loop of its own, in which a reported error would be shown on
/// top of it: the user would read the second sentence first. A reported error waits until the box is answered.
class MessagesInTurn : public MessageBoxes {
  public:
    MessagesInTurn(MessageBoxes& boxes, ErrorPost& post) : boxes_(boxes), post_(post) {}

    MessageAnswer show(const std::string& text, int style, const std::string& title) override;

    void showError(const RunTimeError& error);

    /// To be shown when the event that raised it is over.
    void report(const RunTimeError& error);
    void showNext();

  private:
    MessageBoxes& boxes_;
    ErrorPost& post_;
    std::deque<RunTimeError> reported_;
    int open_ = 0;
};

} // namespace varno
