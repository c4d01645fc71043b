#include "results/result_viewer_window.h"

#include <algorithm>
#include <array>

#include "controls/control_ids.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr int width = raster(760);
constexpr int height = raster(600);
constexpr int leastWidth = raster(480);
constexpr int leastHeight = raster(200);
constexpr int margin = raster(8);
constexpr int findLineHeight = raster(24);

constexpr std::array findLine{idFindLabel, idFindWord, idFindPrevious, idFindNext, idFindNote};

constexpr std::array controls{
    ControlSpec{idFileTextBox, ControlKind::memo, "", 0, 0, raster(100), raster(100)},
    inRaster(idFindLabel, ControlKind::label, "Sök:", 0, 0, 34, 18),
    inRaster(idFindWord, ControlKind::edit, "", 0, 0, 160, 22),
    inRaster(idFindPrevious, ControlKind::button, "Föregående", 0, 0, 84, 24),
    inRaster(idFindNext, ControlKind::button, "Nästa", 0, 0, 64, 24),
    inRaster(idFindNote, ControlKind::label, "", 0, 0, 160, 18),
    inRaster(idResultAge, ControlKind::label, "", 0, 0, 160, 18),
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
    for (const int part : findLine)
        ShowWindow(item(part), SW_HIDE);
    makeFont();
}

void ResultViewerWindow::listen(FontChoice& fonts, ResultReader& reader) {
    fonts_ = &fonts;
    reader_ = &reader;
}

void ResultViewerWindow::makeFont() {
    win32::UniqueFont font = win32::fontOf(win32::wide(face_).c_str(), points_, dpi());
    SendMessageW(item(idFileTextBox), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    textFont_ = std::move(font);
}

void ResultViewerWindow::setText(const std::string& text) {
    // An edit control measures every line, and all of them anew for another font, which a first place brings too.
    standInPlace();
    // An edit control ends its text at a zero byte; a damaged file is shown whole.
    std::wstring shown = win32::wide(text);
    std::replace(shown.begin(), shown.end(), L'\0', L' ');
    SetWindowTextW(item(idFileTextBox), shown.c_str());
}

void ResultViewerWindow::setAge(const std::string& text) {
    if (win32::textOf(item(idResultAge)) != text) win32::setText(item(idResultAge), text);
}

void ResultViewerWindow::setFont(const std::string& face) {
    if (face == face_) return;
    face_ = face;
    makeFont();
}

void ResultViewerWindow::standInPlace() {
    stand(width, height, GetWindow(handle(), GW_OWNER));
}

void ResultViewerWindow::show() {
    standInPlace();
    ShowWindow(handle(), SW_SHOW);
    SetForegroundWindow(handle());
    SetFocus(item(idFileTextBox));
    SendMessageW(item(idFileTextBox), EM_SETSEL, 0, 0);
    SendMessageW(item(idFileTextBox), EM_SCROLLCARET, 0, 0);
}

void ResultViewerWindow::setPoints(int points) {
    points_ = points;
    makeFont();
}

std::pair<std::size_t, std::size_t> ResultViewerWindow::selection() const {
    DWORD begin = 0;
    DWORD end = 0;
    SendMessageW(item(idFileTextBox), EM_GETSEL, reinterpret_cast<WPARAM>(&begin),
                 reinterpret_cast<LPARAM>(&end));
    return {begin, end};
}

void ResultViewerWindow::select(std::size_t begin, std::size_t end) {
    SendMessageW(item(idFileTextBox), EM_SETSEL, begin, static_cast<LPARAM>(end));
    SendMessageW(item(idFileTextBox), EM_SCROLLCARET, 0, 0);
}

void ResultViewerWindow::showFindLine() {
    for (const int part : findLine)
        ShowWindow(item(part), SW_SHOWNA);
    layOut();
    SetFocus(item(idFindWord));
    SendMessageW(item(idFindWord), EM_SETSEL, 0, -1);
}

void ResultViewerWindow::hideFindLine() {
    SetFocus(item(idFileTextBox));
    for (const int part : findLine)
        ShowWindow(item(part), SW_HIDE);
    layOut();
}

bool ResultViewerWindow::inFindLine(HWND control) const {
    return std::ranges::find(findLine, GetDlgCtrlID(control)) != findLine.end();
}

bool ResultViewerWindow::translateOwn(const MSG& message) {
    if (message.message == WM_MOUSEWHEEL && (LOWORD(message.wParam) & MK_CONTROL) != 0) {
        GET_WHEEL_DELTA_WPARAM(message.wParam) > 0 ? reader_->larger() : reader_->smaller();
        return true;
    }
    if (message.message != WM_KEYDOWN || GetKeyState(VK_MENU) < 0) return false;
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    if (GetKeyState(VK_CONTROL) < 0) return controlKey(message.wParam, message.hwnd);
    const bool entered = message.wParam == VK_RETURN && message.hwnd == item(idFindWord);
    if (message.wParam == VK_F3 || entered) {
        shift ? reader_->findPrevious() : reader_->findNext();
        return true;
    }
    if (message.wParam != VK_ESCAPE || !inFindLine(message.hwnd)) return false;
    reader_->findClosed();
    return true;
}

bool ResultViewerWindow::controlKey(WPARAM key, HWND focus) {
    switch (key) {
    case 'F':
        reader_->findAsked();
        return true;
    case 'P':
        reader_->print();
        return true;
    case VK_OEM_PLUS:
    case VK_ADD:
        reader_->larger();
        return true;
    case VK_OEM_MINUS:
    case VK_SUBTRACT:
        reader_->smaller();
        return true;
    case '0':
    case VK_NUMPAD0:
        reader_->normalSize();
        return true;
    case 'A':
    case 'C':
        // In the word that is searched for they are the box's own; on a button they mean the text.
        if (focus == item(idFindWord)) return false;
        SendMessageW(item(idFileTextBox), key == 'A' ? UINT{EM_SETSEL} : UINT{WM_COPY}, 0,
                     key == 'A' ? -1 : 0);
        return true;
    default:
        return false;
    }
}

void ResultViewerWindow::layOut() {
    RECT client{};
    GetClientRect(handle(), &client);
    const int gap = px(margin);
    const int buttonWidth = px(raster(96));
    const int buttonHeight = px(raster(28));
    const int buttonTop = static_cast<int>(client.bottom) - gap - buttonHeight;
    const int right = static_cast<int>(client.right) - gap;
    const int findTop = buttonTop - gap - px(findLineHeight);
    const int textBottom = (findLineShown() ? findTop : buttonTop) - gap;
    win32::setPlace(item(idFileTextBox), gap, gap, std::max(0, right - gap), std::max(0, textBottom - gap));
    win32::setPlace(item(idReturn), right - buttonWidth, buttonTop, buttonWidth, buttonHeight);
    const int ageHeight = px(raster(18));
    win32::setPlace(item(idResultAge), gap, buttonTop + (buttonHeight - ageHeight) / 2,
                    std::max(0, right - buttonWidth - 2 * gap), ageHeight);
    layOutFindLine(findTop, right);
}

// One beside the other at their own widths; the note takes what is left.
void ResultViewerWindow::layOutFindLine(int top, int right) {
    int left = px(margin);
    for (const ControlSpec& spec : controls) {
        if (std::ranges::find(findLine, spec.id) == findLine.end()) continue;
        const int own = spec.id == idFindNote ? std::max(0, right - left) : px(spec.width);
        win32::setPlace(item(spec.id), left, top + (px(findLineHeight) - px(spec.height)) / 2, own,
                        px(spec.height));
        left += own + px(margin) / 2;
    }
}

void ResultViewerWindow::onCommand(int id, int notification) {
    switch (id) {
    case idEditFont:
        fonts_->edit();
        return;
    case idFindNext:
        if (notification == BN_CLICKED) reader_->findNext();
        return;
    case idFindPrevious:
        if (notification == BN_CLICKED) reader_->findPrevious();
        return;
    case idFindWord:
        if (notification == EN_CHANGE) reader_->wordChanged();
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
        if (reinterpret_cast<HWND>(lParam) != item(idFileTextBox)) break;
        // A read-only text box is grey of itself; the result is a page to read.
        SetTextColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOWTEXT));
        SetBkColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOW));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    default:
        break;
    }
    return FormWindow::onMessage(message, wParam, lParam);
}

} // namespace varno
