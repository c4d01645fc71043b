#include "files/file_list_controls.h"

#include "controls/control_spec.h"
#include "win32/dpi.h"
#include "win32/strings.h"
#include "win32/toolbar_pictures.h"

namespace varno::win32 {

namespace {

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
    SendMessageW(list, message, 0, reinterpret_cast<LPARAM>(wide(text).c_str()));
}

} // namespace

std::string rowText(HWND listBox, LRESULT row) {
    const LRESULT length = SendMessageW(listBox, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0);
    if (row < 0 || length == LB_ERR) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(listBox, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return narrow(text);
}

void FileListControls::show(FileLists& lists) {
    const auto drives = lists.drives();
    const std::string drive = lists.drive();
    refill(controls_.drives, CB_RESETCONTENT, [&] {
        for (std::size_t i = 0; i < drives.size(); ++i) {
            addString(controls_.drives, CB_ADDSTRING, drives[i]);
            if (equalIgnoringCase(drives[i], drive)) SendMessageW(controls_.drives, CB_SETCURSEL, i, 0);
        }
    });
    folders_ = lists.folderRows();
    refill(controls_.folders, LB_RESETCONTENT, [&] {
        int current = 0;
        for (std::size_t i = 0; i < folders_.size(); ++i) {
            const FolderRow& row = folders_[i];
            addString(controls_.folders, LB_ADDSTRING, row.name);
            if (row.open) current = static_cast<int>(i);
        }
        SendMessageW(controls_.folders, LB_SETCURSEL, static_cast<WPARAM>(current), 0);
        SendMessageW(controls_.folders, LB_SETTOPINDEX, static_cast<WPARAM>(current > 2 ? current - 2 : 0),
                     0);
    });
    refill(controls_.files, LB_RESETCONTENT, [&] {
        for (const std::string& name : lists.files())
            addString(controls_.files, LB_ADDSTRING, name);
    });
    setText(controls_.path, lists.directory());
}

void FileListControls::setDpi(int dpi) {
    SendMessageW(controls_.folders, LB_SETITEMHEIGHT, 0, pixels(raster(17), dpi));
}

void FileListControls::drawFolder(const DRAWITEMSTRUCT& item, int dpi) const {
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (item.itemID >= folders_.size()) return;
    const FolderRow& row = folders_[item.itemID];

    const int picture = pixels(raster(16), dpi);
    RECT box = item.rcItem;
    box.left += pixels(raster(2 + 10 * row.depth), dpi);
    const int top = box.top + (box.bottom - box.top - picture) / 2;
    const UniqueIcon icon = toolbarPicture(row.open ? "open" : "folder", picture);
    DrawIconEx(item.hDC, box.left, top, icon.get(), picture, picture, 0, nullptr, DI_NORMAL);
    box.left += picture + pixels(raster(4), dpi);

    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    DrawTextW(item.hDC, wide(row.name).c_str(), -1, &box,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(item.hDC, &item.rcItem);
}

std::string FileListControls::chosenDrive() const {
    return textOf(controls_.drives);
}

std::optional<std::string> FileListControls::chosenFolder() const {
    const LRESULT row = SendMessageW(controls_.folders, LB_GETCURSEL, 0, 0);
    if (row < 0 || row >= static_cast<LRESULT>(folders_.size())) return std::nullopt;
    return folders_[static_cast<std::size_t>(row)].path;
}

std::optional<std::string> FileListControls::chosenFile() const {
    const LRESULT row = SendMessageW(controls_.files, LB_GETCURSEL, 0, 0);
    if (row < 0) return std::nullopt;
    return rowText(controls_.files, row);
}

} // namespace varno::win32
