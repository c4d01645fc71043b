#include "files/file_chooser_window.h"

#include <array>

#include "base/text.h"
#include "controls/control_ids.h"
#include "win32/strings.h"
#include "win32/toolbar_pictures.h"

namespace varno {

namespace {

constexpr int bottom = 322; // of all lists

constexpr std::array folderControls{
    inRaster(0, ControlKind::label, "Mapp:", 258, 16, 180, 16),
    inRaster(idPathLabel, ControlKind::readOnlyEdit, "", 258, 36, 188, 18),
    inRaster(idDirectoryList, ControlKind::folderList, "", 258, 66, 188, 204),
    inRaster(0, ControlKind::label, "Enhet:", 258, 280, 180, 16),
    inRaster(idDriveList, ControlKind::dropDown, "", 258, bottom - 24, 188, 24),
};

// Fills a list without showing every step of it.
template <typename Fill>
void refill(HWND list, UINT reset, Fill fill) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, reset, 0, 0);
    fill();
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void addString(HWND list, UINT message, const std::string& text) {
    SendMessageW(list, message, 0, reinterpret_cast<LPARAM>(win32::wide(text).c_str()));
}

} // namespace

void FileChooserWindow::addLists(ControlKind fileList, int top) {
    const std::array files{
        inRaster(0, ControlKind::label, "Filer:", 16, top, 230, 16),
        inRaster(idFileList, fileList, "", 16, top + 20, 230, bottom - top - 20),
    };
    addControls(files);
    addControls(folderControls);
}

void FileChooserWindow::showLists() {
    showDrives();
    showFolders();
    const HWND files = item(idFileList);
    refill(files, LB_RESETCONTENT, [&] {
        for (const std::string& name : chooser_->files())
            addString(files, LB_ADDSTRING, name);
    });
    win32::setText(item(idPathLabel), chooser_->directory());
}

void FileChooserWindow::showDrives() {
    const HWND list = item(idDriveList);
    const auto drives = chooser_->drives();
    const std::string drive = chooser_->drive();
    refill(list, CB_RESETCONTENT, [&] {
        for (std::size_t i = 0; i < drives.size(); ++i) {
            addString(list, CB_ADDSTRING, drives[i]);
            if (equalIgnoringCase(drives[i], drive)) SendMessageW(list, CB_SETCURSEL, i, 0);
        }
    });
}

void FileChooserWindow::showFolders() {
    const HWND list = item(idDirectoryList);
    folders_ = chooser_->folderRows();
    refill(list, LB_RESETCONTENT, [&] {
        int current = 0;
        for (std::size_t i = 0; i < folders_.size(); ++i) {
            addString(list, LB_ADDSTRING, folders_[i].name);
            if (folders_[i].open) current = static_cast<int>(i);
        }
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(current), 0);
        SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(current > 2 ? current - 2 : 0), 0);
    });
}

void FileChooserWindow::openChosenFolder() {
    const LRESULT row = SendMessageW(item(idDirectoryList), LB_GETCURSEL, 0, 0);
    if (row < 0 || row >= static_cast<LRESULT>(folders_.size())) return;
    // The rows are made anew by it.
    const std::string path = folders_[static_cast<std::size_t>(row)].path;
    chooser_->folderChosen(path);
}

bool FileChooserWindow::enterFolder() {
    if (GetFocus() != item(idDirectoryList)) return false;
    openChosenFolder();
    return true;
}

void FileChooserWindow::onCommand(int id, int notification) {
    if (id == idDirectoryList && notification == LBN_DBLCLK) openChosenFolder();
    if (id == idDriveList && notification == CBN_SELCHANGE)
        chooser_->driveChosen(win32::textOf(item(idDriveList)));
}

void FileChooserWindow::layOut() {
    FormWindow::layOut();
    SendMessageW(item(idDirectoryList), LB_SETITEMHEIGHT, 0, px(raster(17)));
}

void FileChooserWindow::drawFolder(const DRAWITEMSTRUCT& item) const {
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (item.itemID >= folders_.size()) return;
    const FolderRow& row = folders_[item.itemID];

    const int picture = px(raster(16));
    RECT box = item.rcItem;
    box.left += px(raster(2 + 10 * row.depth));
    const int top = box.top + (box.bottom - box.top - picture) / 2;
    const win32::UniqueIcon icon = win32::toolbarPicture(row.open ? "open" : "folder", picture);
    DrawIconEx(item.hDC, box.left, top, icon.get(), picture, picture, 0, nullptr, DI_NORMAL);
    box.left += picture + px(raster(4));

    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    DrawTextW(item.hDC, win32::wide(row.name).c_str(), -1, &box,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(item.hDC, &item.rcItem);
}

LRESULT FileChooserWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM && wParam == idDirectoryList) {
        drawFolder(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return FormWindow::onMessage(message, wParam, lParam);
}

} // namespace varno
