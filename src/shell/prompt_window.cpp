#include "shell/prompt_window.h"

#include <array>

#include "controls/control_ids.h"

namespace varno {

namespace {

constexpr const char* productLabel = "Kalvora Tessaplan ver 7.10";

constexpr SIZE noticeSize{raster(470), raster(226)};
constexpr std::array noticeControls{
    inRaster(idPicture, ControlKind::picture, "", 16, 16, 64, 64),
    inRaster(idProductLabel, ControlKind::label, productLabel, 100, 18, 354, 26),
    inRaster(idHeading, ControlKind::label, "FÖRÄNDRINGAR i denna version:", 100, 62, 354, 18),
    inRaster(idTextOne, ControlKind::label, "1. Diverse smärre justeringar och förtydligande", 100, 90, 354,
             36),
    inRaster(idHideNotice, ControlKind::check, "Visa inte detta nästa gång", 100, 140, 354, 20),
    inRaster(idOkButton, ControlKind::defaultButton, "OK", 190, 182, 90, 28),
};

constexpr SIZE disclaimerSize{raster(560), raster(278)};
constexpr std::array disclaimerControls{
    inRaster(idPicture, ControlKind::picture, "", 16, 16, 64, 64),
    inRaster(idProductLabel, ControlKind::label, productLabel, 100, 18, 444, 26),
    inRaster(
        idTextOne, ControlKind::paragraph,
        "OBS! Beräkningen anger armering endast i bjälklagsfält och innerstöd med avseende på bärförmåga för "
        "angivna laster. Annan erforderlig armering för sprickfördelning, inspänning, kantarmering eller för "
        "totalstabilitet redovisas ej.",
        100, 54, 444, 64),
    inRaster(
        idTextTwo, ControlKind::paragraph,
        "I detta program finns vissa begränsningar inbyggda som gör att storheter utanför vissa gränser inte "
        "accepteras. Det har dock inte varit möjligt att begränsa de kombinationer av indata som är "
        "olämpliga men ändå kan ge ett svar av datorn. Användare av programmet måste därför själv ansvara "
        "för att använda programmet med ett ingenjörsmässigt omdöme.",
        100, 124, 444, 96),
    inRaster(idOkButton, ControlKind::defaultButton, "OK", 235, 234, 90, 28),
};

} // namespace

bool askVersionNotice(win32::WindowHost& host, HWND owner) {
    win32::DialogWindow notice(host, owner, L"VarnoForm10", "Nyheter", noticeControls, noticeSize);
    notice.setFontRole(idProductLabel, win32::FontRole::heading);
    notice.setFontRole(idHeading, win32::FontRole::bold);
    notice.name(idPicture, ControlKind::picture, productLabel);
    return notice.ask() == idOkButton && IsDlgButtonChecked(notice.handle(), idHideNotice) == BST_CHECKED;
}

DisclaimerWindow::DisclaimerWindow(win32::WindowHost& host, HWND owner)
    : DialogWindow(host, owner, L"VarnoForm9", "Viktigt", disclaimerControls, disclaimerSize) {
    setFontRole(idProductLabel, win32::FontRole::heading);
    name(idPicture, ControlKind::picture, productLabel);
}

SaveAnswer askToSave(win32::WindowHost& host, HWND owner, const std::string& caption, const std::string& text,
                     bool cancelOffered) {
    constexpr int top = 72;
    const int left = cancelOffered ? 55 : 105;
    const std::array controls{
        inRaster(idQuestion, ControlKind::paragraph, text.c_str(), 20, 22, 360, 40),
        inRaster(idYesButton, ControlKind::defaultButton, "Ja", left, top, 90, 28),
        inRaster(idNoButton, ControlKind::button, "Nej", left + 100, top, 90, 28),
        inRaster(idCancelButton, ControlKind::button, "Avbryt", left + 200, top, 90, 28),
    };
    constexpr SIZE size{raster(400), raster(116)};
    win32::DialogWindow prompt(host, owner, L"VarnoSavePrompt", caption, controls, size, 0);
    if (!cancelOffered) ShowWindow(prompt.item(idCancelButton), SW_HIDE);
    switch (prompt.ask(idYesButton)) {
    case idYesButton:
        return SaveAnswer::yes;
    case idNoButton:
        return SaveAnswer::no;
    default:
        return SaveAnswer::cancel;
    }
}

} // namespace varno
