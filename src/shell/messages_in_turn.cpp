#include "shell/messages_in_turn.h"

namespace varno {

MessageAnswer MessagesInTurn::show(const std::string& text, int style, const std::string& title) {
    ++open_;
    const MessageAnswer answer = boxes_.show(text, style, title);
    --open_;
    if (open_ == 0 && !reported_.empty()) post_.postRunTimeError();
    return answer;
}

void MessagesInTurn::showError(const RunTimeError& error) {
    show(error.message(), msgError, "Varno");
}

void MessagesInTurn::report(const RunTimeError& error) {
    reported_.push_back(error);
    post_.postRunTimeError();
}

void MessagesInTurn::showNext() {
    if (open_ > 0 || reported_.empty()) return;
    const RunTimeError error = reported_.front();
    reported_.pop_front();
    showError(error);
}

} // namespace varno
