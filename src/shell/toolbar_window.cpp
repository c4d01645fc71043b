#include "shell/toolbar_window.h"

#include <vector>

#include "controls/control_spec.h"
#include "shell/menu_table.h"
#include "win32/dpi.h"
#include "win32/strings.h"
#include "win32/toolbar_pictures.h"
#include "win32/window.h"

namespace varno {

namespace {

constexpr int widestTip = 440;

} // namespace

void Toolbar::create(HWND parent) {
    handle_ = win32::createControl(parent, idToolbar, TOOLBARCLASSNAMEW, "Verktyg",
                                   WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS |
                                       CCS_NODIVIDER | CCS_NOPARENTALIGN | CCS_NORESIZE);
    SendMessageW(handle_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    // The texts are not shown: they are the buttons' tips and their names for screen readers.
    SendMessageW(handle_, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
    std::vector<std::wstring> tips;
    for (const ToolbarKey& key : toolbarKeys)
        tips.push_back(win32::wide(key.tip));
    for (std::size_t i = 0; i < toolbarKeys.size(); ++i) {
        TBBUTTON button{};
        button.iBitmap = static_cast<int>(i);
        button.idCommand = toolbarKeys[i].id;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE;
        button.iString = reinterpret_cast<INT_PTR>(tips[i].c_str());
        SendMessageW(handle_, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    }
}

void Toolbar::tell(NMTBGETINFOTIPW& tip) const {
    // Only with a width does a line end show as one.
    const auto window = reinterpret_cast<HWND>(SendMessageW(handle_, TB_GETTOOLTIPS, 0, 0));
    SendMessageW(window, TTM_SETMAXTIPWIDTH, 0, widestTip);
    for (const ToolbarKey& key : toolbarKeys) {
        if (key.id != tip.iItem) continue;
        const std::string more = *key.more == '\0' ? "" : std::string("\n") + key.more;
        lstrcpynW(tip.pszText, win32::wide(key.tip + more).c_str(), tip.cchTextMax);
    }
}

void Toolbar::setDpi(int dpi) {
    const int size = win32::pixels(raster(20), dpi);
    std::vector<std::string_view> keys;
    for (const ToolbarKey& key : toolbarKeys)
        keys.emplace_back(key.key);
    const auto use = [&](Images& images, UINT message, bool faded) {
        // Drawn all at once: one by one they took a tenth of the program's start.
        const win32::UniqueBitmap pictures = win32::toolbarPictures(keys, size, faded);
        Images fresh(ImageList_Create(size, size, ILC_COLOR32, static_cast<int>(keys.size()), 0));
        ImageList_Add(fresh.get(), pictures.get(), nullptr);
        SendMessageW(handle_, message, 0, reinterpret_cast<LPARAM>(fresh.get()));
        images = std::move(fresh);
    };
    use(images_, TB_SETIMAGELIST, false);
    use(fadedImages_, TB_SETDISABLEDIMAGELIST, true);
    SendMessageW(handle_, TB_SETBUTTONSIZE, 0, MAKELPARAM(size + size * 3 / 5, size + size / 2));
    SendMessageW(handle_, TB_AUTOSIZE, 0, 0);
}

void Toolbar::setEnabled(int id, bool enabled) {
    SendMessageW(handle_, TB_ENABLEBUTTON, static_cast<WPARAM>(id), MAKELPARAM(enabled ? TRUE : FALSE, 0));
}

int Toolbar::at(POINT place) const {
    ScreenToClient(handle_, &place);
    // Beside all buttons a negative number.
    const auto hit = SendMessageW(handle_, TB_HITTEST, 0, reinterpret_cast<LPARAM>(&place));
    const auto count = static_cast<LRESULT>(toolbarKeys.size());
    return hit >= 0 && hit < count ? toolbarKeys[static_cast<std::size_t>(hit)].id : 0;
}

POINT Toolbar::below(int id) const {
    RECT box{};
    SendMessageW(handle_, TB_GETRECT, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&box));
    POINT place{box.left, box.bottom};
    ClientToScreen(handle_, &place);
    return place;
}

} // namespace varno
