// What of the program only the program itself can be asked for: its menus, its toolbar's structures, its
// fonts and its current directory.
#include <windows.h>

#include <commctrl.h>

#include "driver/program.h"
#include "driver/remote.h"
#include "driver/wait.h"
#include "win32/strings.h"

namespace varno::gui {

namespace {

constexpr std::size_t captionLength = 128;

DWORD number(const void* handle) {
    return reinterpret_cast<DWORD>(handle);
}

} // namespace

DWORD Program::user(const char* function, std::initializer_list<DWORD> arguments) const {
    return callIn(process(), L"user32.dll", function, arguments);
}

void Program::readMenu(DWORD menu, int depth, std::vector<MenuLine>& lines) const {
    RemoteMemory caption(process(), captionLength * sizeof(wchar_t));
    const DWORD count = user("GetMenuItemCount", {menu});
    for (DWORD place = 0; place < count; ++place) {
        const DWORD state = user("GetMenuState", {menu, place, MF_BYPOSITION});
        const bool enabled = (state & (MF_GRAYED | MF_DISABLED)) == 0;
        // A submenu's state carries its number of lines in the high byte, where the separator's bit lies.
        const DWORD submenu = user("GetSubMenu", {menu, place});
        if (submenu == 0 && (state & MF_SEPARATOR) != 0) {
            lines.push_back({depth, "-", 0, true});
            continue;
        }
        user("GetMenuStringW", {menu, place, caption.address(), captionLength, MF_BYPOSITION});
        const int id = submenu != 0 ? 0 : static_cast<int>(user("GetMenuItemID", {menu, place}));
        lines.push_back({depth, caption.text(), id, enabled});
        if (submenu != 0) readMenu(submenu, depth + 1, lines);
    }
}

std::vector<MenuLine> Program::menuOf(const Control& window) const {
    std::vector<MenuLine> lines;
    readMenu(user("GetMenu", {number(window.handle())}), 0, lines);
    return lines;
}

bool Program::diagramEnabled() const {
    const DWORD bar = user("GetMenu", {number(main().handle())});
    return (user("GetMenuState", {bar, 5, MF_BYPOSITION}) & (MF_GRAYED | MF_DISABLED)) == 0;
}

std::vector<ToolbarButton> Program::toolbarButtons() const {
    const Control bar = main().item(idToolbar);
    RemoteMemory memory(process(), sizeof(TBBUTTON));
    RemoteMemory tip(process(), captionLength * sizeof(wchar_t));
    std::vector<ToolbarButton> buttons;
    const LRESULT count = bar.send(TB_BUTTONCOUNT);
    for (WPARAM place = 0; place < static_cast<WPARAM>(count); ++place) {
        bar.send(TB_GETBUTTON, place, static_cast<LPARAM>(memory.address()));
        const auto button = memory.as<TBBUTTON>();
        bar.send(TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand), static_cast<LPARAM>(tip.address()));
        buttons.push_back({button.idCommand, tip.text(), (button.fsState & TBSTATE_ENABLED) != 0});
    }
    return buttons;
}

void Program::clickToolbar(int id) const {
    const Control bar = main().item(idToolbar);
    RemoteMemory memory(process(), sizeof(RECT));
    const LRESULT place = bar.send(TB_COMMANDTOINDEX, static_cast<WPARAM>(id));
    if (bar.send(TB_GETITEMRECT, static_cast<WPARAM>(place), static_cast<LPARAM>(memory.address())) == 0) {
        throw GuiError("the toolbar has no button " + std::to_string(id));
    }
    const auto box = memory.as<RECT>();
    bar.clickAt((box.left + box.right) / 2, (box.top + box.bottom) / 2);
}

LOGFONTW Program::fontOf(const Control& control) const {
    RemoteMemory memory(process(), sizeof(LOGFONTW));
    // Asked from inside: a font's handle is not let out of its process by every Windows.
    const DWORD font = user("SendMessageW", {number(control.handle()), WM_GETFONT, 0, 0});
    if (callIn(process(), L"gdi32.dll", "GetObjectW", {font, sizeof(LOGFONTW), memory.address()}) == 0) {
        throw GuiError("\"" + control.text() + "\" has no font of its own");
    }
    return memory.as<LOGFONTW>();
}

std::string Program::currentDirectory() const {
    RemoteMemory memory(process(), MAX_PATH * sizeof(wchar_t));
    callIn(process(), L"kernel32.dll", "GetCurrentDirectoryW", {MAX_PATH, memory.address()});
    return memory.text();
}

} // namespace varno::gui
