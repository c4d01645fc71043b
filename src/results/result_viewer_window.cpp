#include "results/result_viewer_window.h"

#include <algorithm>
#include <array>

#include "controls/control_ids.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr int width = raster(760);
constexpr int height = raster(600);
constexpr int leastWidth = raster(320);
constexpr int leastHeight = raster(200);
constexpr int margin = raster(8);
constexpr int fontPoints = 10;

constexpr std::array controls{
    ControlSpec{idFileTextBox, ControlKind::memo, "", 0, 0, raster(100), raster(100)},
    ControlSpec{idReturn, ControlKind::defaultButton, "Återgå", 0, 0, raster(96), raster(28)},
};

HMENU viewerMenu() {
    const HMENU font = CreatePopupMenu();
    AppendMenuW(font, MF_STRING, idEditFont, L"Redigera");
    const HMENU bar = CreateMenu();
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(font), L"Typsnitt");
    return bar;
}

} // namespace

ResultViewerWindow::ResultViewerWindow(win32::WindowHost& host, HWND owner) : FormWindow(host) {
    create(L"VarnoForm6", "Utdata", win32::growingWindow | WS_CLIPCHILDREN, 0, owner, viewerMenu(), {});
    addControls(controls);
    name(idFileTextBox, ControlKind::memo, "Resultat");
    makeFont();
}

void ResultViewerWindow::makeFont() {
    win32::UniqueFont font = win32::fontOf(win32::wide(face_).c_str(), fontPoints, dpi());
    SendMessageW(item(idFileTextBox), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    textFont_ = std::move(font);
}

void ResultViewerWindow::setText(const std::string& text) {
    // An edit control ends its text at a zero byte; a damaged file is shown whole.
    std::wstring shown = win32::wide(text);
    std::replace(shown.begin(), shown.end(), L'\0', L' ');
    SetWindowTextW(item(idFileTextBox), shown.c_str());
}

void ResultViewerWindow::setFont(const std::string& face) {
    face_ = face;
    makeFont();
}

void ResultViewerWindow::show() {
    if (!placed_) {
        sizeAndCentre(width, height, GetWindow(handle(), GW_OWNER));
        placed_ = true;
    }
    ShowWindow(handle(), SW_SHOW);
    SetForegroundWindow(handle());
    SetFocus(item(idFileTextBox));
    SendMessageW(item(idFileTextBox), EM_SETSEL, 0, 0);
    SendMessageW(item(idFileTextBox), EM_SCROLLCARET, 0, 0);
}

void ResultViewerWindow::layOut() {
    RECT client{};
    GetClientRect(handle(), &client);
    const int gap = px(margin);
    const int buttonWidth = px(raster(96));
    const int buttonHeight = px(raster(28));
    const int buttonTop = static_cast<int>(client.bottom) - gap - buttonHeight;
    SetWindowPos(item(idFileTextBox), nullptr, gap, gap,
                 std::max(0, static_cast<int>(client.right) - 2 * gap), std::max(0, buttonTop - 2 * gap),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(item(idReturn), nullptr, static_cast<int>(client.right) - gap - buttonWidth, buttonTop,
                 buttonWidth, buttonHeight, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ResultViewerWindow::onCommand(int id, int notification) {
    switch (id) {
    case idEditFont:
        fonts_->edit();
        return;
    case idReturn:
    case idOkButton:
        closeForm();
        return;
    default:
        FormWindow::onCommand(id, notification);
    }
}

LRESULT ResultViewerWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        layOut();
        return 0;
    case WM_GETMINMAXINFO:
        keepAtLeast(*reinterpret_cast<MINMAXINFO*>(lParam), {px(leastWidth), px(leastHeight)});
        return 0;
    case WM_CTLCOLORSTATIC:
        // A read-only text box is grey of itself; the result is a page to read.
        SetTextColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOWTEXT));
        SetBkColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOW));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    default:
        return FormWindow::onMessage(message, wParam, lParam);
    }
}

} // namespace varno
