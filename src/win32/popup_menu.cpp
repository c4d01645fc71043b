#include "win32/popup_menu.h"

#include <windowsx.h>

#include "win32/strings.h"
#include "win32/unique.h"

namespace varno::win32 {

int chooseFromMenu(HWND owner, POINT place, const std::vector<PopupItem>& items) {
    const UniqueMenu menu(CreatePopupMenu());
    UINT_PTR number = 0;
    for (const PopupItem& item : items) {
        UINT flags = item.caption == "-" ? MF_SEPARATOR : MF_STRING;
        if (item.checked) flags |= MF_CHECKED;
        if (!item.enabled) flags |= MF_GRAYED;
        AppendMenuW(menu.get(), flags, ++number, wide(item.caption).c_str());
    }
    return TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y, 0, owner, nullptr) -
           1;
}

POINT placeOfMenu(HWND window, LPARAM place) {
    if (place != -1) return {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    RECT box{};
    GetWindowRect(window, &box);
    return {box.left, box.bottom};
}

} // namespace varno::win32
