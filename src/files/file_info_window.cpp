#include "files/file_info_window.h"

#include <array>

#include "win32/list_rows.h"

namespace varno {

namespace {

constexpr int width = raster(560);
constexpr int heightWithoutNote = raster(340);
constexpr int noteTop = raster(336);
constexpr int noteWidth = raster(528);
constexpr int noteLine = raster(16);
constexpr int margin = raster(16);
constexpr int listTop = 64;

constexpr int noteHeight(int lines) {
    return lines * noteLine + raster(8);
}

constexpr std::array nameControls{
    inRaster(idFileNameLabel, ControlKind::label, "FILNAMN:", 16, 16, 240, 16),
    inRaster(idFileName, ControlKind::edit, "", 16, 34, 230, 22),
};
constexpr std::array buttons{
    inRaster(idOkButton, ControlKind::defaultButton, "OK", 458, 33, 86, 26),
    inRaster(idCancelButton, ControlKind::button, "Avbryt", 458, 66, 86, 26),
    ControlSpec{idNote, ControlKind::paragraph, "", margin, noteTop, noteWidth, noteHeight(2)},
};

} // namespace

void FileInfoWindow::create(HWND owner) {
    createDialog(L"VarnoFileInfo", "", owner);
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
    const int height = noteLines_ == 0 ? heightWithoutNote : noteTop + noteHeight(noteLines_) + margin;
    sizeAndCentre(width, height, GetWindow(handle(), GW_OWNER));
    runModal();
}

void FileInfoWindow::layOut() {
    FileChooserWindow::layOut();
    win32::setPlace(item(idNote), px(margin), px(noteTop), px(noteWidth), px(noteHeight(noteLines_)));
}

void FileInfoWindow::setNote(const std::string& note) {
    win32::setText(item(idNote), note);
    // Windows does not promise to paint what the program draws anew for another text.
    InvalidateRect(item(idNote), nullptr, FALSE);
}

void FileInfoWindow::selectName() {
    SetFocus(item(idFileName));
    SendMessageW(item(idFileName), EM_SETSEL, 0, -1);
}

void FileInfoWindow::onCommand(int id, int notification) {
    switch (id) {
    case idOkButton:
        if (!enterFolder()) dialog_->accepted();
        return;
    case idCancelButton:
        dialog_->cancelled();
        return;
    case idFileName:
        if (notification == EN_CHANGE) dialog_->nameChanged();
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

} // namespace varno
