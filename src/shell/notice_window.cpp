#include "shell/notice_window.h"

#include <array>

#include "controls/control_ids.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr const char* productLabel = "Kalvora Tessaplan ver 7.10";

constexpr int noticeWidth = raster(470);
constexpr int noticeHeight = raster(226);
constexpr std::array noticeControls{
    ControlSpec{idPicture, ControlKind::picture, "", raster(16), raster(16), raster(64), raster(64)},
    ControlSpec{idProductLabel, ControlKind::label, productLabel, raster(100), raster(18), raster(354),
                raster(26)},
    ControlSpec{idHeading, ControlKind::label, "FÖRÄNDRINGAR i denna version:", raster(100), raster(62),
                raster(354), raster(18)},
    ControlSpec{idTextOne, ControlKind::label, "1. Diverse smärre justeringar och förtydligande", raster(100),
                raster(90), raster(354), raster(36)},
    ControlSpec{idHideNotice, ControlKind::check, "Visa inte detta nästa gång", raster(100), raster(140),
                raster(354), raster(20)},
    ControlSpec{idOkButton, ControlKind::defaultButton, "OK", raster(190), raster(182), raster(90),
                raster(28)},
};

constexpr int disclaimerWidth = raster(560);
constexpr int disclaimerHeight = raster(278);
constexpr std::array disclaimerControls{
    ControlSpec{idPicture, ControlKind::picture, "", raster(16), raster(16), raster(64), raster(64)},
    ControlSpec{idProductLabel, ControlKind::label, productLabel, raster(100), raster(18), raster(444),
                raster(26)},
    ControlSpec{
        idTextOne, ControlKind::label,
        "OBS! Beräkningen anger armering endast i bjälklagsfält och innerstöd med avseende på bärförmåga för "
        "angivna laster. Annan erforderlig armering för sprickfördelning, inspänning, kantarmering eller för "
        "totalstabilitet redovisas ej.",
        raster(100), raster(54), raster(444), raster(64)},
    ControlSpec{
        idTextTwo, ControlKind::label,
        "I detta program finns vissa begränsningar inbyggda som gör att storheter utanför vissa gränser inte "
        "accepteras. Det har dock inte varit möjligt att begränsa de kombinationer av indata som är "
        "olämpliga "
        "men ändå kan ge ett svar av datorn. Användare av programmet måste därför själv ansvara för att "
        "använda programmet med ett ingenjörsmässigt omdöme.",
        raster(100), raster(124), raster(444), raster(96)},
    ControlSpec{idOkButton, ControlKind::defaultButton, "OK", raster(235), raster(234), raster(90),
                raster(28)},
};

constexpr DWORD dialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;

} // namespace

VersionNoticeWindow::VersionNoticeWindow(win32::WindowHost& host, HWND owner) : FormWindow(host) {
    create(L"VarnoForm10", "Nyheter", dialogStyle, WS_EX_DLGMODALFRAME, owner, nullptr, {});
    addControls(noticeControls);
    setFontRole(idProductLabel, win32::FontRole::heading);
    setFontRole(idHeading, win32::FontRole::bold);
    sizeAndCentre(noticeWidth, noticeHeight, owner);
}

bool VersionNoticeWindow::ask() {
    runModal();
    return ticked_;
}

void VersionNoticeWindow::onCommand(int id, int notification) {
    if (id == idOkButton) {
        ticked_ = IsDlgButtonChecked(handle(), idHideNotice) == BST_CHECKED;
        closeForm();
        return;
    }
    FormWindow::onCommand(id, notification);
}

DisclaimerWindow::DisclaimerWindow(win32::WindowHost& host, HWND owner) : FormWindow(host) {
    create(L"VarnoForm9", "Viktigt", dialogStyle, WS_EX_DLGMODALFRAME, owner, nullptr, {});
    addControls(disclaimerControls);
    setFontRole(idProductLabel, win32::FontRole::heading);
    sizeAndCentre(disclaimerWidth, disclaimerHeight, owner);
}

void DisclaimerWindow::showModeless() {
    ShowWindow(handle(), SW_SHOW);
    SetForegroundWindow(handle());
}

void DisclaimerWindow::onCommand(int id, int notification) {
    if (id == idOkButton) {
        closeForm();
        return;
    }
    FormWindow::onCommand(id, notification);
}

} // namespace varno
