#include "lineloads/line_load_window.h"

#include <commctrl.h>

#include <array>
#include <map>
#include <optional>
#include <vector>

#include "controls/control_ids.h"
#include "win32/strings.h"

namespace varno {

namespace {

// All measures are pixels of the 96 dpi raster.
constexpr int width = 430;
constexpr int rowsTop = 92;
constexpr int rowPitch = 27;
constexpr int frameBottom = rowsTop + maxLineLoads * rowPitch + 10;
constexpr int panelTop = frameBottom + 10;
constexpr int panelHeight = 34 + 4 * rowPitch + 8;
constexpr std::array columnX{30, 130, 300};
constexpr std::array boxWidth{54, 84, 84};
constexpr std::array headWidth{90, 160, 100};

constexpr std::array rowBoxes{LineLoadBox::llfnr, LineLoadBox::avst, LineLoadBox::lllast};

int idOf(LineLoadControl control) {
    return idLineLoadField + 10 * static_cast<int>(control.box) + control.index;
}

std::optional<LineLoadControl> controlOf(int id) {
    const int offset = id - idLineLoadField;
    if (offset < 0 || offset >= 10 * (static_cast<int>(LineLoadBox::multiplier) + 1)) return std::nullopt;
    return LineLoadControl{static_cast<LineLoadBox>(offset / 10), offset % 10};
}

class Layout {
  public:
    void add(int id, ControlKind kind, const char* text, int x, int y, int w, int h) {
        controls.push_back({id, kind, text, raster(x), raster(y), raster(w), raster(h)});
    }
    void label(const char* text, int x, int y, int w, int h = 15) {
        add(0, ControlKind::label, text, x, y, w, h);
    }
    void number(LineLoadControl control, int x, int y, int w) {
        add(idOf(control), ControlKind::numberEdit, "", x, y, w, 21);
    }
    std::vector<ControlSpec> controls;
};

void addRows(Layout& form) {
    form.add(0, ControlKind::group, lineLoadFrame, 10, 8, width - 20, frameBottom - 8);
    form.label(lineLoadCount, 24, 32, 110);
    form.number({LineLoadBox::nllast}, 138, 29, 34);
    form.add(idLineLoadSpin, ControlKind::spin, "", 172, 29, 18, 21);
    for (std::size_t column = 0; column < columnX.size(); ++column) {
        form.label(lineLoadColumns[column].heading, columnX[column], 58, headWidth[column]);
        form.label(lineLoadColumns[column].unit, columnX[column], 74, headWidth[column]);
    }
    for (int row = 1; row <= maxLineLoads; ++row) {
        for (std::size_t column = 0; column < columnX.size(); ++column) {
            form.number({rowBoxes[column], row}, columnX[column], rowsTop + (row - 1) * rowPitch + 3,
                        boxWidth[column]);
        }
    }
}

void addMultipliers(Layout& form) {
    form.add(0, ControlKind::group, multiplierFrame, 10, panelTop, width - 20, panelHeight);
    form.label(multiplierLoadCase, 30, panelTop + 20, 120);
    form.label(multiplierValue, 170, panelTop + 20, 120);
    for (std::size_t i = 0; i < multiplierLabels.size(); ++i) {
        const int y = panelTop + 40 + static_cast<int>(i) * rowPitch;
        form.label(multiplierLabels[i], 30, y + 3, 120);
        form.number({LineLoadBox::multiplier, static_cast<int>(i) + 1}, 170, y, 70);
    }
    form.add(0, ControlKind::paragraph, multiplierNote, 14, panelTop + panelHeight + 8, width - 28, 32);
}

int heightOf(const LineLoadSet& set) {
    return set.hasMultipliers ? panelTop + panelHeight + 48 : frameBottom + 12;
}

HMENU editorMenu() {
    const HMENU back = CreatePopupMenu();
    AppendMenuW(back, MF_STRING, idLayout, L"Layout");
    const HMENU bar = CreateMenu();
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(back), L"Återgå till...");
    return bar;
}

} // namespace

LineLoadWindow::LineLoadWindow(win32::WindowHost& host, HWND owner, const LineLoadSet& set)
    : FormWindow(host), set_(set) {
    // Without WS_CLIPCHILDREN: a frame shows the window's background.
    create(set.hasMultipliers ? L"VarnoFreeLineLoads" : L"VarnoLineLoads", set.caption,
           WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, owner, editorMenu(), {});
    Layout form;
    addRows(form);
    if (set.hasMultipliers) addMultipliers(form);
    addControls(form.controls);
    for (const ControlSpec& control : form.controls) {
        if (const auto box = controlOf(control.id)) name(control.id, control.kind, accessibleName(*box));
    }
    name(idLineLoadSpin, ControlKind::spin, accessibleName({LineLoadBox::nllast}));
}

void LineLoadWindow::showDoubts(const std::vector<LineLoadDoubt>& doubts) {
    std::map<int, std::string> boxes;
    for (const LineLoadDoubt& doubt : doubts)
        boxes.emplace(idOf(doubt.box), doubt.text);
    mark(boxes);
}

std::string LineLoadWindow::text(LineLoadControl control) const {
    return win32::textOf(item(idOf(control)));
}

void LineLoadWindow::setText(LineLoadControl control, const std::string& text) {
    setBoxText(idOf(control), text);
}

void LineLoadWindow::setRowVisible(int row, bool visible) {
    for (const LineLoadBox box : rowBoxes) {
        const HWND window = item(idOf({box, row}));
        // A box that goes does not keep the keyboard to itself.
        if (!visible && GetFocus() == window) focus({LineLoadBox::nllast});
        ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE);
    }
}

void LineLoadWindow::focus(LineLoadControl control) {
    SetFocus(item(idOf(control)));
}

void LineLoadWindow::enter(LineLoadControl control) {
    focus(control);
    SendMessageW(item(idOf(control)), EM_SETSEL, 0, -1);
}

void LineLoadWindow::returnTo(LineLoadControl control) {
    postReturnTo(idOf(control));
}

void LineLoadWindow::show() {
    // Over the input form, so that the sketch above it stays in sight.
    stand(raster(width), raster(heightOf(set_)), GetDlgItem(GetWindow(handle(), GW_OWNER), idMdiClient));
    ShowWindow(handle(), SW_SHOW);
    SetForegroundWindow(handle());
}

void LineLoadWindow::onCommand(int id, int notification) {
    if (rules_ == nullptr) return;
    if (id == idLayout) {
        rules_->layout();
        return;
    }
    if (id == idOkButton) {
        // Enter moves on like Tab.
        PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 0);
        return;
    }
    if (const auto box = controlOf(id)) {
        onBox(*box, notification);
    } else {
        FormWindow::onCommand(id, notification);
    }
}

void LineLoadWindow::onBox(LineLoadControl box, int notification) {
    if (notification == EN_CHANGE) rules_->changed(box);
    if (notification == EN_SETFOCUS) rules_->entered(box);
    if (notification == EN_KILLFOCUS) rules_->left(box);
}

bool LineLoadWindow::isTyped(int id) const {
    const auto box = controlOf(id);
    return rules_ != nullptr && box && rules_->isTyped(*box);
}

void LineLoadWindow::takeBack(int id) {
    if (const auto box = controlOf(id)) rules_->takeBack(*box);
}

bool LineLoadWindow::arrow(int id, int rows) {
    const auto box = controlOf(id);
    if (rules_ == nullptr || !box) return false;
    host().guarded([&] { rules_->arrow(*box, rows); });
    return true;
}

void LineLoadWindow::onCloseBox() {
    if (rules_ != nullptr) rules_->layout();
}

LRESULT LineLoadWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (rules_ == nullptr) return FormWindow::onMessage(message, wParam, lParam);
    if (message == WM_LBUTTONDOWN) {
        rules_->backgroundClicked();
        return 0;
    }
    if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code == UDN_DELTAPOS) {
        if (reinterpret_cast<const NMUPDOWN*>(lParam)->iDelta > 0) {
            rules_->spinUp();
        } else {
            rules_->spinDown();
        }
        return TRUE;
    }
    return FormWindow::onMessage(message, wParam, lParam);
}

} // namespace varno
