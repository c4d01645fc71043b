#include "win32/drop_downs.h"

namespace varno::win32 {

namespace {

int selectedRow(HWND list) {
    return static_cast<int>(SendMessageW(list, CB_GETCURSEL, 0, 0));
}

} // namespace

void DropDowns::show(HWND list, int row) {
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    choices_[list].shown(selectedRow(list));
}

void DropDowns::clear(HWND list) {
    SendMessageW(list, CB_RESETCONTENT, 0, 0);
    choices_[list].shown(-1);
}

std::optional<int> DropDowns::heard(HWND list, int notification) {
    const auto found = choices_.find(list);
    if (found == choices_.end()) return notification;
    ListChoice& choice = found->second;
    auto outcome = ListChoice::Outcome::nothing;
    switch (notification) {
    case CBN_DROPDOWN:
        choice.opened();
        break;
    case CBN_SELENDCANCEL:
        choice.cancelled();
        break;
    case CBN_CLOSEUP:
        outcome = choice.closed(selectedRow(list));
        break;
    case CBN_SELCHANGE:
        outcome = choice.told(selectedRow(list));
        break;
    default:
        return notification;
    }
    if (outcome == ListChoice::Outcome::takenBack) show(list, choice.row());
    if (outcome == ListChoice::Outcome::chosen) return CBN_SELCHANGE;
    return std::nullopt;
}

} // namespace varno::win32
