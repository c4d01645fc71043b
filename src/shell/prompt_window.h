#pragma once

#include "shell/document.h"
#include "win32/dialog_window.h"

// The windows that tell or ask something and are gone.

namespace varno {

/// The version notice (`Form10`), modally: true when "Visa inte detta nästa gång" was ticked at "OK".
bool askVersionNotice(win32::WindowHost& host, HWND owner);

/// The disclaimer (`Form9`): modal at start-up, modeless from the menu "Viktigt".
struct DisclaimerWindow : win32::DialogWindow {
    DisclaimerWindow(win32::WindowHost& host, HWND owner);
};

/// The save-changes prompts, modally: "Ja", "Nej", and at the end of the program "Avbryt". Without that one Esc does
/// nothing, since neither answer is meant by it.
SaveAnswer askToSave(win32::WindowHost& host, HWND owner, const std::string& caption, const std::string& text,
                     bool cancelOffered);

} // namespace varno
