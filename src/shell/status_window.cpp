#include "shell/status_window.h"

#include <oleacc.h>

#include "controls/control_ids.h"
#include "win32/accessible_names.h"
#include "win32/control_kinds.h"
#include "win32/strings.h"
#include "win32/window.h"

namespace varno {

namespace {

constexpr int parts[]{idStatusState, idStatusFolder, idStatusLength, idStatusResult, idStatusReason};

DWORD styleOf(int part) {
    if (part == idStatusReason) return SS_ENDELLIPSIS;
    return part == idStatusFolder ? WS_VISIBLE | SS_PATHELLIPSIS : WS_VISIBLE;
}

} // namespace

void StatusLabels::create(HWND owner) {
    owner_ = owner;
    for (const int part : parts) {
        const HWND made = win32::createControl(owner, part, L"STATIC", "",
                                               styleOf(part) | SS_LEFT | SS_NOPREFIX | SS_CENTERIMAGE);
        win32::nameForScreenReaders(made, "", ROLE_SYSTEM_STATICTEXT);
    }
}

void StatusLabels::setFont(HFONT font) {
    for (const int part : parts)
        SendMessageW(label(part), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void StatusLabels::place(const MainLayout& layout) {
    const auto put = [this](int part, const Area& area) {
        win32::setPlace(label(part), area.x, area.y, area.width, area.height);
    };
    put(idStatusState, layout.statusState);
    put(idStatusFolder, layout.statusFolder);
    put(idStatusLength, layout.statusLength);
    put(idStatusResult, layout.statusResult);
    put(idStatusReason, layout.statusReason);
}

void StatusLabels::show(const StatusWords& words) {
    if (words == shown_) return;
    const bool swap = words.reason.empty() != shown_.reason.empty();
    shown_ = words;
    const auto say = [this](int part, const std::string& text) {
        if (win32::textOf(label(part)) != text) win32::setText(label(part), text);
    };
    say(idStatusState, words.state);
    say(idStatusFolder, words.folder);
    say(idStatusLength, words.length);
    say(idStatusResult, words.result);
    say(idStatusReason, words.reason);
    if (!swap) return;
    for (const int part : parts) {
        const bool isReason = part == idStatusReason;
        ShowWindow(label(part), isReason == words.reason.empty() ? SW_HIDE : SW_SHOWNA);
    }
}

bool StatusLabels::onState(POINT place) const {
    RECT area{};
    GetWindowRect(label(idStatusState), &area);
    return PtInRect(&area, place) && GetAncestor(WindowFromPoint(place), GA_ROOT) == owner_;
}

} // namespace varno
