#include "files/deletion_window.h"

#include <array>

#include "win32/dialog_window.h"

namespace varno {

namespace {

constexpr int width = raster(560);
constexpr int height = raster(372);
constexpr int listTop = 16;
constexpr std::array controls{
    inRaster(idDelete, ControlKind::button, "Ta bort", 458, 36, 86, 26),
    inRaster(idCancelButton, ControlKind::button, "Avsluta", 458, 69, 86, 26),
    inRaster(idDeletionHelp, ControlKind::button, "Hjälp", 458, 102, 86, 26),
    inRaster(idConfirm, ControlKind::check, "Bekräfta", 16, 336, 230, 20),
};

} // namespace

DeletionWindow::DeletionWindow(win32::WindowHost& host, HWND owner) : FileChooserWindow(host) {
    createDialog(L"VarnoDelFile", deletionCaption, owner);
    addLists(ControlKind::multiListBox, listTop);
    addControls(controls);
}

void DeletionWindow::listen(FileDeletion& deletion) {
    deletion_ = &deletion;
    FileChooserWindow::listen(deletion);
}

void DeletionWindow::run() {
    sizeAndCentre(width, height, GetWindow(handle(), GW_OWNER));
    SetFocus(item(idFileList));
    runModal();
}

int DeletionWindow::entryCount() const {
    return static_cast<int>(SendMessageW(item(idFileList), LB_GETCOUNT, 0, 0));
}

bool DeletionWindow::isSelected(int position) const {
    return SendMessageW(item(idFileList), LB_GETSEL, static_cast<WPARAM>(position), 0) > 0;
}

void DeletionWindow::select(int position, bool selected) {
    SendMessageW(item(idFileList), LB_SETSEL, selected ? TRUE : FALSE, position);
}

void DeletionWindow::setConfirming(bool confirming) {
    CheckDlgButton(handle(), idConfirm, confirming ? BST_CHECKED : BST_UNCHECKED);
}

bool DeletionWindow::confirmed(const std::string& name, const std::string& position) {
    const std::array parts{
        inRaster(idQuestion, ControlKind::label, confirmationQuestion, 20, 18, 300, 18),
        inRaster(idFileName, ControlKind::label, name.c_str(), 20, 42, 300, 18),
        inRaster(idPosition, ControlKind::label, position.c_str(), 0, 0, 40, 18),
        inRaster(idYesButton, ControlKind::button, "Ja", 72, 76, 90, 28),
        inRaster(idCancelButton, ControlKind::defaultButton, "Ångra", 178, 76, 90, 28),
    };
    constexpr SIZE size{raster(340), raster(120)};
    win32::DialogWindow window(host(), handle(), L"VarnoVeri", confirmationCaption, parts, size);
    ShowWindow(window.item(idPosition), SW_HIDE);
    window.setFontRole(idFileName, win32::FontRole::bold);
    return window.ask(idCancelButton) == idYesButton;
}

void DeletionWindow::showHelp(const std::string& first, const std::string& second) {
    const std::array parts{
        inRaster(idTextOne, ControlKind::label, first.c_str(), 20, 18, 330, 18),
        inRaster(idTextTwo, ControlKind::label, second.c_str(), 20, 42, 330, 18),
        inRaster(idOkButton, ControlKind::defaultButton, "OK", 140, 76, 90, 28),
    };
    constexpr SIZE size{raster(370), raster(120)};
    win32::DialogWindow(host(), handle(), L"VarnoHelp", "Hjälp", parts, size).runModal();
}

void DeletionWindow::onCommand(int id, int notification) {
    switch (id) {
    case idDelete:
        deletion_->deletePressed();
        return;
    case idCancelButton:
        deletion_->closePressed();
        return;
    case idDeletionHelp:
        deletion_->helpPressed();
        return;
    case idOkButton:
        enterFolder();
        return;
    default:
        FileChooserWindow::onCommand(id, notification);
    }
}

} // namespace varno
