#include "driver/control.h"

#include "driver/wait.h"
#include "win32/strings.h"

namespace varno::gui {

using win32::narrow;
using win32::wide;

LRESULT Control::send(UINT message, WPARAM wParam, LPARAM lParam) const {
    DWORD_PTR result = 0;
    if (SendMessageTimeoutW(window_, message, wParam, lParam, SMTO_NORMAL, patience, &result) == 0) {
        throw GuiError("a window does not answer message " + std::to_string(message));
    }
    return static_cast<LRESULT>(result);
}

void Control::post(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (PostMessageW(window_, message, wParam, lParam) == FALSE) {
        throw GuiError("message " + std::to_string(message) + " cannot be posted");
    }
}

Control Control::item(int id) const {
    const HWND found = GetDlgItem(window_, id);
    if (found == nullptr) throw GuiError(className() + " has no control " + std::to_string(id));
    return Control(found);
}

std::vector<Control> Control::children() const {
    std::vector<Control> all;
    for (HWND child = GetWindow(window_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        all.emplace_back(child);
    }
    return all;
}

std::string Control::className() const {
    wchar_t name[64] = L"";
    GetClassNameW(window_, name, 64);
    return narrow(name);
}

RECT Control::place() const {
    RECT box{};
    GetWindowRect(window_, &box);
    MapWindowPoints(nullptr, GetParent(window_), reinterpret_cast<POINT*>(&box), 2);
    return box;
}

std::string Control::text() const {
    // GetWindowText does not ask controls of other processes.
    const auto length = static_cast<std::size_t>(send(WM_GETTEXTLENGTH));
    std::wstring text(length + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return narrow(text);
}

void Control::setText(const std::string& text) const {
    send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide(text).c_str()));
}

std::pair<int, int> Control::selection() const {
    const LRESULT both = send(EM_GETSEL);
    return {LOWORD(both), HIWORD(both)};
}

void Control::selectAll() const {
    send(EM_SETSEL, 0, -1);
}

void Control::click() const {
    post(BM_CLICK);
}

bool Control::checked() const {
    return send(BM_GETCHECK) == BST_CHECKED;
}

std::vector<std::string> Control::rows() const {
    const bool box = isDropDown();
    std::vector<std::string> all;
    const LRESULT count = send(box ? CB_GETCOUNT : LB_GETCOUNT);
    for (WPARAM row = 0; row < static_cast<WPARAM>(count); ++row) {
        const auto length = static_cast<std::size_t>(send(box ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, row));
        std::wstring text(length + 1, L'\0');
        send(box ? CB_GETLBTEXT : LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
        text.resize(length);
        all.push_back(narrow(text));
    }
    return all;
}

int Control::selectedRow() const {
    return static_cast<int>(send(isDropDown() ? CB_GETCURSEL : LB_GETCURSEL));
}

std::string Control::selectedText() const {
    const int row = selectedRow();
    return row < 0 ? "" : rows()[static_cast<std::size_t>(row)];
}

void Control::notifyParent(int notification) const {
    Control(GetParent(window_))
        .post(WM_COMMAND, MAKEWPARAM(id(), notification), reinterpret_cast<LPARAM>(window_));
}

void Control::choose(int row) const {
    const bool box = isDropDown();
    if (row < 0 || row >= send(box ? CB_GETCOUNT : LB_GETCOUNT)) {
        throw GuiError("the list has no row " + std::to_string(row));
    }
    send(box ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(row));
    // Setting a row by message tells the parent nothing; the user's choice does.
    notifyParent(box ? int{CBN_SELCHANGE} : int{LBN_SELCHANGE});
}

int Control::rowOf(const std::string& row) const {
    const auto all = rows();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i] == row) return static_cast<int>(i);
    }
    throw GuiError("the list has no row \"" + row + "\"");
}

void Control::choose(const std::string& row) const {
    choose(rowOf(row));
}

void Control::doubleClick(const std::string& row) const {
    choose(rowOf(row));
    notifyParent(LBN_DBLCLK);
}

void Control::clickAt(int x, int y) const {
    const LPARAM at = MAKELPARAM(x, y);
    post(WM_LBUTTONDOWN, MK_LBUTTON, at);
    post(WM_LBUTTONUP, 0, at);
}

void Control::clickInto() const {
    clickAt(5, 5);
}

void Control::type(const std::string& text) const {
    for (const wchar_t letter : wide(text))
        post(WM_CHAR, letter, 1);
}

void Control::key(WORD virtualKey) const {
    post(WM_KEYDOWN, virtualKey, 1);
    post(WM_KEYUP, virtualKey, static_cast<LPARAM>(0xC0000001u));
}

} // namespace varno::gui
