#include "files/file_info_window.h"

#include <array>

#include "controls/control_ids.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr int width = raster(560);
constexpr int height = raster(392);
constexpr int heightWithoutNote = raster(340);
constexpr std::array controls{
    ControlSpec{idFileNameLabel, ControlKind::label, "FILNAMN:", raster(16), raster(16), raster(240),
                raster(16)},
    ControlSpec{idFileName, ControlKind::edit, "", raster(16), raster(34), raster(230), raster(22)},
    ControlSpec{0, ControlKind::label, "Filer:", raster(16), raster(66), raster(230), raster(16)},
    ControlSpec{idFileList, ControlKind::listBox, "", raster(16), raster(84), raster(230), raster(238)},
    ControlSpec{0, ControlKind::label, "Mapp:", raster(258), raster(16), raster(180), raster(16)},
    ControlSpec{idPathLabel, ControlKind::readOnlyEdit, "", raster(258), raster(36), raster(188), raster(18)},
    ControlSpec{idDirectoryList, ControlKind::folderList, "", raster(258), raster(66), raster(188),
                raster(204)},
    ControlSpec{0, ControlKind::label, "Enhet:", raster(258), raster(280), raster(180), raster(16)},
    ControlSpec{idDriveList, ControlKind::dropDown, "", raster(258), raster(298), raster(188), raster(24)},
    ControlSpec{idOkButton, ControlKind::defaultButton, "OK", raster(458), raster(33), raster(86),
                raster(26)},
    ControlSpec{idCancelButton, ControlKind::button, "Avbryt", raster(458), raster(66), raster(86),
                raster(26)},
    ControlSpec{idNote, ControlKind::label, "", raster(16), raster(336), raster(528), raster(40)},
};

} // namespace

FileInfoWindow::FileInfoWindow(win32::WindowHost& host, HWND owner) : FormWindow(host) {
    create(L"VarnoFileInfo", "", WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, owner, nullptr, {});
    addControls(controls);
    lists_.attach({item(idDriveList), item(idDirectoryList), item(idFileList), item(idPathLabel)});
    SendMessageW(item(idFileName), EM_SETLIMITTEXT, 259, 0);
}

void FileInfoWindow::ask(FileDialog& dialog) {
    dialog_ = &dialog;
    win32::setText(handle(), dialog.caption);
    if (dialog.dialogForSaving == 1) {
        setName(" ");
    } else {
        setName("");
    }
    sizeAndCentre(width, dialog.dialogForSaving == 1 ? height : heightWithoutNote,
                  GetWindow(handle(), GW_OWNER));
    dialog.dialogAnswer = 1;
    dialog.activated(*this);
    runModal();
}

std::string FileInfoWindow::name() const {
    return win32::textOf(item(idFileName));
}
void FileInfoWindow::setName(const std::string& name) {
    win32::setText(item(idFileName), name);
}

void FileInfoWindow::selectName() {
    SetFocus(item(idFileName));
    SendMessageW(item(idFileName), EM_SETSEL, 0, -1);
}

void FileInfoWindow::setNote(const std::string& note) {
    win32::setText(item(idNote), note);
}

void FileInfoWindow::refreshLists() {
    lists_.show(dialog_->lists());
}

void FileInfoWindow::onCommand(int id, int notification) {
    if (dialog_ == nullptr) return;
    switch (id) {
    case idOkButton: {
        // Enter in the directory list opens the folder, as a double click does.
        const auto folder = lists_.chosenFolder();
        if (GetFocus() == item(idDirectoryList) && folder) {
            dialog_->folderChosen(*this, *folder);
        } else {
            dialog_->accepted(*this);
        }
        return;
    }
    case idCancelButton:
        dialog_->cancelled(*this);
        return;
    case idFileList:
        if (notification == LBN_SELCHANGE || notification == LBN_DBLCLK) {
            if (const auto file = lists_.chosenFile()) dialog_->fileClicked(*this, *file);
        }
        if (notification == LBN_DBLCLK && lists_.chosenFile()) dialog_->accepted(*this);
        return;
    case idDirectoryList:
        if (notification == LBN_DBLCLK) {
            if (const auto folder = lists_.chosenFolder()) dialog_->folderChosen(*this, *folder);
        }
        return;
    case idDriveList:
        if (notification == CBN_SELCHANGE) dialog_->driveChosen(*this, lists_.chosenDrive());
        return;
    default:
        return;
    }
}

void FileInfoWindow::onCloseBox() {
    if (dialog_ != nullptr) dialog_->cancelled(*this);
}

void FileInfoWindow::layOut() {
    FormWindow::layOut();
    lists_.setDpi(dpi());
}

LRESULT FileInfoWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CTLCOLORLISTBOX) {
        // The lists are drawn in the normal window colours, whatever they were before.
        SetTextColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOWTEXT));
        SetBkColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOW));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    }
    if (message == WM_DRAWITEM && wParam == idDirectoryList) {
        lists_.drawFolder(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam), dpi());
        return TRUE;
    }
    return FormWindow::onMessage(message, wParam, lParam);
}

} // namespace varno
