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
constexpr const wchar_t* userModule = L"user32.dll";

DWORD number(const void* handle) {
    return reinterpret_cast<DWORD>(handle);
}

} // namespace

DWORD Program::user(const char* function, const std::vector<DWORD>& arguments) const {
    return callIn(process(), userModule, function, arguments);
}

void Program::readMenu(DWORD menu, int depth, std::vector<MenuLine>& lines) const {
    const DWORD count = user("GetMenuItemCount", {menu});
    constexpr std::size_t captionSize = captionLength * sizeof(wchar_t);
    RemoteMemory captions(process(), count * captionSize);
    std::vector<RemoteCall> calls;
    for (DWORD place = 0; place < count; ++place) {
        const DWORD caption = captions.address() + place * captionSize;
        calls.push_back({userModule, "GetMenuState", {menu, place, MF_BYPOSITION}});
        calls.push_back({userModule, "GetSubMenu", {menu, place}});
        calls.push_back({userModule, "GetMenuItemID", {menu, place}});
        calls.push_back({userModule, "GetMenuStringW", {menu, place, caption, captionLength, MF_BYPOSITION}});
    }
    const std::vector<DWORD> answers = callIn(process(), calls);
    std::vector<wchar_t> letters(count * captionLength);
    captions.read(letters.data(), letters.size() * sizeof(wchar_t));
    for (std::size_t place = 0; place < count; ++place) {
        const DWORD state = answers[4 * place];
        const DWORD submenu = answers[4 * place + 1];
        // A submenu's state carries its number of lines in the high byte, where the separator's bit lies.
        if (submenu == 0 && (state & MF_SEPARATOR) != 0) {
            lines.push_back({depth, "-", 0, true});
            continue;
        }
        const bool enabled = (state & (MF_GRAYED | MF_DISABLED)) == 0;
        const int id = submenu != 0 ? 0 : static_cast<int>(answers[4 * place + 2]);
        lines.push_back({depth, win32::narrow(letters.data() + place * captionLength), id, enabled});
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
        bar.send(TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand),
                 static_cast<LPARAM>(tip.address()));
        buttons.push_back({button.idCommand, tip.text(), (button.fsState & TBSTATE_ENABLED) != 0});
    }
    return buttons;
}

RECT Program::toolbarButtonPlace(int id) const {
    const Control bar = main().item(idToolbar);
    RemoteMemory memory(process(), sizeof(RECT));
    const LRESULT place = bar.send(TB_COMMANDTOINDEX, static_cast<WPARAM>(id));
    if (bar.send(TB_GETITEMRECT, static_cast<WPARAM>(place), static_cast<LPARAM>(memory.address())) == 0) {
        throw GuiError("the toolbar has no button " + std::to_string(id));
    }
    return memory.as<RECT>();
}

void Program::clickToolbar(int id) const {
    const RECT box = toolbarButtonPlace(id);
    main().item(idToolbar).clickAt((box.left + box.right) / 2, (box.top + box.bottom) / 2);
}

RECT Program::menuBarPlace(int menu) const {
    const DWORD window = number(main().handle());
    RemoteMemory memory(process(), sizeof(RECT));
    user("GetMenuItemRect", {window, user("GetMenu", {window}), static_cast<DWORD>(menu), memory.address()});
    return memory.as<RECT>();
}

std::vector<LOGFONTW> Program::fontsOf(const std::vector<Control>& controls) const {
    // Asked from inside: a font's handle is not let out of its process by every Windows.
    std::vector<RemoteCall> calls;
    for (const Control& control : controls) {
        calls.push_back({userModule, "SendMessageW", {number(control.handle()), WM_GETFONT, 0, 0}});
    }
    const std::vector<DWORD> fonts = callIn(process(), calls);
    RemoteMemory memory(process(), (fonts.size() + 1) * sizeof(LOGFONTW));
    calls.clear();
    for (std::size_t i = 0; i < fonts.size(); ++i) {
        const DWORD place = memory.address() + i * sizeof(LOGFONTW);
        calls.push_back({L"gdi32.dll", "GetObjectW", {fonts[i], sizeof(LOGFONTW), place}});
    }
    const std::vector<DWORD> sizes = callIn(process(), calls);
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        if (sizes[i] == 0) throw GuiError("\"" + controls[i].text() + "\" has no font of its own");
    }
    std::vector<LOGFONTW> result(fonts.size());
    memory.read(result.data(), result.size() * sizeof(LOGFONTW));
    return result;
}

std::string Program::currentDirectory() const {
    RemoteMemory memory(process(), MAX_PATH * sizeof(wchar_t));
    callIn(process(), L"kernel32.dll", "GetCurrentDirectoryW", {MAX_PATH, memory.address()});
    return memory.text();
}

} // namespace varno::gui
