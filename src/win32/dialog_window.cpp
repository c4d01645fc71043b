#include "win32/dialog_window.h"

#include "controls/control_ids.h"

namespace varno::win32 {

DialogWindow::DialogWindow(WindowHost& host, HWND owner, const wchar_t* className, const std::string& caption,
                           std::span<const ControlSpec> controls, SIZE size, DWORD closeBox)
    : FormWindow(host) {
    createDialog(className, caption, owner, nullptr, closeBox);
    addControls(controls);
    sizeAndCentre(size.cx, size.cy, owner);
}

int DialogWindow::ask(int focus) {
    if (focus != 0) SetFocus(item(focus));
    runModal();
    return answer_;
}

void DialogWindow::onCommand(int id, int) {
    if (id == idCancelButton) return onCloseBox();
    // Enter comes as "OK" where no button that is the default one has the focus.
    if (id == idOkButton && item(id) == nullptr) id = GetDlgCtrlID(GetFocus());
    if (id < idOkButton || id > idNoButton) return;
    answer_ = id;
    closeForm();
}

void DialogWindow::onCloseBox() {
    if (!offers(idCancelButton) && !offers(idOkButton)) {
        MessageBeep(MB_OK);
        return;
    }
    answer_ = idCancelButton;
    closeForm();
}

} // namespace varno::win32
