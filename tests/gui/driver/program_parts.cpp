// What of the program only the program itself can be asked for: its menus, its toolbar's structures, its
// fonts and its current directory.
#include <windows.h>

#include <commctrl.h>
#include <shlobj.h>

#include <algorithm>

#include "driver/keyboard.h"
#include "driver/program.h"
#include "driver/remote.h"
#include "driver/wait.h"
#include "win32/strings.h"

namespace varno::gui {

namespace {

constexpr std::size_t captionLength = 300;
constexpr const wchar_t* userModule = L"user32.dll";
constexpr UINT askForMenu = 0x01E1; // MN_GETHMENU
constexpr DWORD shortWait = 3'000;  // ms, for a key that may have been lost
constexpr DWORD longWait = 20'000;  // for one that must not come twice

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
        const bool checked = submenu == 0 && (state & MF_CHECKED) != 0;
        lines.push_back({depth, win32::narrow(letters.data() + place * captionLength), id, enabled, checked});
        if (submenu != 0) readMenu(submenu, depth + 1, lines);
    }
}

std::vector<MenuLine> Program::menuOf(const Control& window) const {
    std::vector<MenuLine> lines;
    readMenu(user("GetMenu", {number(window.handle())}), 0, lines);
    return lines;
}

std::vector<MenuLine> Program::popupMenu() const {
    std::vector<MenuLine> lines;
    readMenu(static_cast<DWORD>(window(popupMenuClass).send(askForMenu)), 0, lines);
    for (MenuLine& line : lines)
        line.id = 0;
    return lines;
}

// By its place, -1 for none.
int Program::highlightedRow(DWORD menu) const {
    const DWORD count = user("GetMenuItemCount", {menu});
    std::vector<RemoteCall> calls;
    // A menu that is gone has no rows.
    for (DWORD place = 0; static_cast<int>(place) < static_cast<int>(count); ++place)
        calls.push_back({userModule, "GetMenuState", {menu, place, MF_BYPOSITION}});
    const std::vector<DWORD> states = callIn(process(), calls);
    const auto row = std::ranges::find_if(
        states, [](DWORD state) { return state != static_cast<DWORD>(-1) && (state & MF_HILITE) != 0; });
    return row == states.end() ? -1 : static_cast<int>(row - states.begin());
}

bool Program::inMenu() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(thread_, &info) != FALSE && (info.flags & GUI_INMENUMODE) != 0;
}

// The row is looked at before each key: where the pointer lies, a late report of its place takes the choice away, and Enter
// then does nothing.
void Program::chooseInPopupMenu(int place) const {
    const Control open = window(popupMenuClass);
    const auto menu = static_cast<DWORD>(open.send(askForMenu));
    const auto gone = [&] { return !open.visible(); };
    const bool chosen = until([&] {
        const int row = highlightedRow(menu);
        const bool there = row == place;
        if (!gone()) keyboard::press(there ? VK_RETURN : VK_DOWN);
        return waitUntil([&] { return gone() || highlightedRow(menu) != row; }, process(),
                         there ? longWait : shortWait) &&
               gone();
    });
    if (!chosen) throw GuiError("the row of the menu is not chosen");
}

void Program::chooseInMenuBar(int menu, int place) const {
    const DWORD bar = user("GetMenu", {number(main().handle())});
    const auto pressUntil = [&](WORD key, const std::function<bool()>& done) {
        const bool came = until([&] {
            if (!done()) keyboard::press(key);
            return waitUntil(done, process(), shortWait);
        });
        if (!came) throw GuiError("the menu bar does not take key " + std::to_string(key));
    };
    pressUntil(VK_F10, [&] { return inMenu(); });
    for (int i = 1; i <= menu; ++i)
        pressUntil(VK_RIGHT, [&] { return highlightedRow(bar) == i; });
    pressUntil(VK_DOWN, [&] { return shows(popupMenuClass); });
    chooseInPopupMenu(place);
}

void Program::leaveMenus() const {
    const auto left = [&] { return !inMenu(); };
    const bool done = until([&] {
        if (!left()) keyboard::press(VK_ESCAPE);
        return waitUntil(left, process(), shortWait);
    });
    if (!done) throw GuiError("Esc does not leave the menu");
}

void Program::keysInPopupMenu(std::initializer_list<WORD> keys) const {
    const Control menu = window(popupMenuClass);
    for (const WORD key : keys)
        keyboard::press(key);
    waitGone(menu);
}

void Program::drop(const std::vector<std::string>& paths, const Control& onto) const {
    HWND taker = onto.handle();
    while (taker != nullptr && (GetWindowLongW(taker, GWL_EXSTYLE) & WS_EX_ACCEPTFILES) == 0)
        taker = GetParent(taker);
    if (taker == nullptr) throw GuiError("nothing can be dropped there");
    DROPFILES head{};
    head.pFiles = sizeof head;
    head.fWide = TRUE;
    Bytes bytes(reinterpret_cast<const char*>(&head), sizeof head);
    const auto add = [&](const std::wstring& letters) {
        bytes.append(reinterpret_cast<const char*>(letters.c_str()), (letters.size() + 1) * sizeof(wchar_t));
    };
    for (const std::string& path : paths)
        add(win32::wide(path));
    add(L"");
    // The memory belongs to the program, which frees it.
    const auto kernel = [this](const char* function, const std::vector<DWORD>& arguments) {
        return callIn(process(), L"kernel32.dll", function, arguments);
    };
    const DWORD memory = kernel("GlobalAlloc", {GMEM_MOVEABLE, static_cast<DWORD>(bytes.size())});
    const DWORD place = kernel("GlobalLock", {memory});
    if (place == 0 ||
        !WriteProcessMemory(process(), reinterpret_cast<void*>(place), bytes.data(), bytes.size(), nullptr))
        throw GuiError("the files cannot be given");
    kernel("GlobalUnlock", {memory});
    user("PostMessageW", {number(taker), WM_DROPFILES, memory, 0});
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

POINT Program::middleOfToolbarButton(int id) const {
    const RECT box = toolbarButtonPlace(id);
    return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
}

void Program::clickToolbar(int id) const {
    const POINT place = middleOfToolbarButton(id);
    main().item(idToolbar).clickAt(place.x, place.y);
}

void Program::rightClickToolbar(int id) const {
    const POINT place = middleOfToolbarButton(id);
    const Control bar = main().item(idToolbar);
    bar.post(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(place.x, place.y));
    bar.post(WM_RBUTTONUP, 0, MAKELPARAM(place.x, place.y));
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
