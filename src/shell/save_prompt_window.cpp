#include "shell/save_prompt_window.h"

#include <array>

#include "controls/control_ids.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr int promptWidth = raster(400);
constexpr int promptHeight = raster(116);
constexpr int buttonWidth = raster(90);
constexpr int buttonTop = raster(72);
constexpr int buttonPitch = raster(100);

// At design time the question names the default case.
constexpr std::array promptControls{
    ControlSpec{idQuestion, ControlKind::label, "Vill Du spara ändringarna i NAMNLÖS.IND ?", raster(20),
                raster(22), raster(360), raster(40)},
    ControlSpec{idYesButton, ControlKind::defaultButton, "Ja", 0, buttonTop, buttonWidth, raster(28)},
    ControlSpec{idNoButton, ControlKind::button, "Nej", 0, buttonTop, buttonWidth, raster(28)},
    ControlSpec{idCancelButton, ControlKind::button, "Avbryt", 0, buttonTop, buttonWidth, raster(28)},
};

} // namespace

SavePromptWindow::SavePromptWindow(win32::WindowHost& host, HWND owner) : FormWindow(host) {
    create(L"VarnoSavePrompt", "", WS_POPUP | WS_CAPTION, WS_EX_DLGMODALFRAME, owner, nullptr, {});
    addControls(promptControls);
}

SaveAnswer SavePromptWindow::ask(const std::string& caption, const std::string& text, bool cancelOffered) {
    cancelOffered_ = cancelOffered;
    answer_ = SaveAnswer::cancel;
    win32::setText(handle(), caption);
    win32::setText(item(idQuestion), text);
    ShowWindow(item(idCancelButton), cancelOffered ? SW_SHOW : SW_HIDE);

    const int count = cancelOffered ? 3 : 2;
    int x = (promptWidth - (count - 1) * buttonPitch - buttonWidth) / 2;
    for (const int id : {idYesButton, idNoButton, idCancelButton}) {
        place(id, x, buttonTop, buttonWidth, raster(28));
        x += buttonPitch;
    }
    sizeAndCentre(promptWidth, promptHeight, GetWindow(handle(), GW_OWNER));
    SetFocus(item(idYesButton));
    runModal();
    return answer_;
}

void SavePromptWindow::onCommand(int id, int) {
    switch (id) {
    case idYesButton:
    case idOkButton:
        answer_ = SaveAnswer::yes;
        break;
    case idNoButton:
        answer_ = SaveAnswer::no;
        break;
    case idCancelButton:
        onCloseBox();
        return;
    default:
        return;
    }
    closeForm();
}

void SavePromptWindow::onCloseBox() {
    if (!cancelOffered_) {
        MessageBeep(MB_OK);
        return;
    }
    answer_ = SaveAnswer::cancel;
    closeForm();
}

} // namespace varno
