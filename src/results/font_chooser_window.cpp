#include "results/font_chooser_window.h"

#include <array>

#include "controls/control_ids.h"
#include "win32/list_rows.h"

namespace varno {

namespace {

constexpr int width = raster(560);
constexpr int height = raster(340);
constexpr std::array controls{
    ControlSpec{0, ControlKind::label, "Installerade skrivarfonter", raster(16), raster(14), raster(250),
                raster(16)},
    ControlSpec{idInstalledFonts, ControlKind::listBox, "", raster(16), raster(34), raster(250), raster(250)},
    ControlSpec{0, ControlKind::label, "Lagrat fontval", raster(286), raster(14), raster(250), raster(16)},
    ControlSpec{idStoredFont, ControlKind::listBox, "", raster(286), raster(34), raster(258), raster(48)},
    ControlSpec{0, ControlKind::label, "Visas just nu", raster(286), raster(100), raster(250), raster(16)},
    ControlSpec{idCurrentFont, ControlKind::listBox, "", raster(286), raster(120), raster(258), raster(48)},
    ControlSpec{idOkButton, ControlKind::defaultButton, "OK / Stäng", raster(286), raster(298), raster(122),
                raster(28)},
    ControlSpec{idCancelButton, ControlKind::button, "Avbryt / Stäng", raster(422), raster(298), raster(122),
                raster(28)},
};

} // namespace

FontChooserWindow::FontChooserWindow(win32::WindowHost& host, HWND owner) : FormWindow(host) {
    create(L"VarnoTypsn", "TYPSNITT", WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, owner, nullptr,
           {});
    addControls(controls);
}

void FontChooserWindow::run() {
    sizeAndCentre(width, height, GetWindow(handle(), GW_OWNER));
    SetFocus(item(idInstalledFonts));
    runModal();
}

void FontChooserWindow::showInstalled(const std::vector<std::string>& faces) {
    const HWND list = item(idInstalledFonts);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    for (const std::string& face : faces) {
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(win32::wide(face).c_str()));
    }
}

void FontChooserWindow::showOnly(int list, const std::string& face, win32::UniqueFont& font) {
    SendMessageW(item(list), LB_RESETCONTENT, 0, 0);
    if (face.empty()) return;
    SendMessageW(item(list), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(win32::wide(face).c_str()));
    dressList(list, font);
}

// Draws a list of one face in that face.
void FontChooserWindow::dressList(int list, win32::UniqueFont& font) {
    const std::string face = win32::rowText(item(list), 0);
    if (face.empty()) return;
    win32::UniqueFont own = win32::fontOf(win32::wide(face).c_str(), 12, dpi());
    SendMessageW(item(list), WM_SETFONT, reinterpret_cast<WPARAM>(own.get()), TRUE);
    TEXTMETRICW metrics{};
    {
        const win32::WindowDc dc(item(list));
        const win32::Selected selected(dc.get(), own.get());
        GetTextMetricsW(dc.get(), &metrics);
    }
    SendMessageW(item(list), LB_SETITEMHEIGHT, 0, metrics.tmHeight);
    font = std::move(own);
}

void FontChooserWindow::fontsChanged() {
    dressList(idStoredFont, storedFont_);
    dressList(idCurrentFont, currentFont_);
}

void FontChooserWindow::showStored(const std::string& face) {
    showOnly(idStoredFont, face, storedFont_);
}
void FontChooserWindow::showCurrent(const std::string& face) {
    showOnly(idCurrentFont, face, currentFont_);
}

void FontChooserWindow::onCommand(int id, int notification) {
    switch (id) {
    case idOkButton:
        choice_->accepted();
        return;
    case idCancelButton:
        choice_->cancelled();
        return;
    case idInstalledFonts:
        if (notification == LBN_SELCHANGE) {
            const std::string face = win32::selectedRowText(item(idInstalledFonts));
            if (!face.empty()) choice_->clicked(face);
        }
        return;
    default:
        return;
    }
}

void FontChooserWindow::onCloseBox() {
    choice_->cancelled();
}

} // namespace varno
