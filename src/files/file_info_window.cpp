#include "files/file_info_window.h"

#include <array>

#include "controls/control_ids.h"
#include "win32/list_rows.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr int width = raster(560);
constexpr int height = raster(392);
constexpr int heightWithoutNote = raster(340);
constexpr int listTop = raster(64);
constexpr std::array nameControls{
    ControlSpec{idFileNameLabel, ControlKind::label, "FILNAMN:", raster(16), raster(16), raster(240),
                raster(16)},
    ControlSpec{idFileName, ControlKind::edit, "", raster(16), raster(34), raster(230), raster(22)},
};
constexpr std::array buttons{
    ControlSpec{idOkButton, ControlKind::defaultButton, "OK", raster(458), raster(33), raster(86),
                raster(26)},
    ControlSpec{idCancelButton, ControlKind::button, "Avbryt", raster(458), raster(66), raster(86),
                raster(26)},
    ControlSpec{idNote, ControlKind::label, "", raster(16), raster(336), raster(528), raster(40)},
};

} // namespace

void FileInfoWindow::create(HWND owner) {
    Window::create(L"VarnoFileInfo", "", WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, owner,
                   nullptr, {});
    addControls(nameControls);
    addLists(ControlKind::listBox, listTop);
    addControls(buttons);
    SendMessageW(item(idFileName), EM_SETLIMITTEXT, 259, 0);
}

void FileInfoWindow::listen(FileDialog& dialog) {
    dialog_ = &dialog;
    FileChooserWindow::listen(dialog);
}

void FileInfoWindow::run() {
    const bool noted = !win32::textOf(item(idNote)).empty();
    sizeAndCentre(width, noted ? height : heightWithoutNote, GetWindow(handle(), GW_OWNER));
    runModal();
}

void FileInfoWindow::setCaption(const std::string& caption) {
    win32::setText(handle(), caption);
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

void FileInfoWindow::onCommand(int id, int notification) {
    switch (id) {
    case idOkButton:
        if (!enterFolder()) dialog_->accepted();
        return;
    case idCancelButton:
        dialog_->cancelled();
        return;
    case idFileList: {
        if (notification != LBN_SELCHANGE && notification != LBN_DBLCLK) return;
        const std::string name = win32::selectedRowText(item(idFileList));
        if (name.empty()) return;
        dialog_->fileClicked(name);
        if (notification == LBN_DBLCLK) dialog_->accepted();
        return;
    }
    default:
        FileChooserWindow::onCommand(id, notification);
    }
}

void FileInfoWindow::onCloseBox() {
    dialog_->cancelled();
}

} // namespace varno
