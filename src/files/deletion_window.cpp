#include "files/deletion_window.h"

#include <array>

#include "controls/control_ids.h"
#include "win32/list_rows.h"

namespace varno {

namespace {

constexpr int width = raster(560);
constexpr int height = raster(372);
constexpr int listTop = raster(16);
constexpr std::array controls{
    ControlSpec{idDelete, ControlKind::button, "Ta bort", raster(458), raster(36), raster(86), raster(26)},
    ControlSpec{idCancelButton, ControlKind::button, "Avsluta", raster(458), raster(69), raster(86),
                raster(26)},
    ControlSpec{idDeletionHelp, ControlKind::button, "Hjälp", raster(458), raster(102), raster(86),
                raster(26)},
    ControlSpec{idConfirm, ControlKind::check, "Bekräfta", raster(16), raster(336), raster(230), raster(20)},
};

// The confirmation window (`Veri`).
class ConfirmationWindow : public win32::FormWindow {
  public:
    ConfirmationWindow(win32::WindowHost& host, HWND owner, const std::string& name,
                       const std::string& position)
        : FormWindow(host) {
        create(L"VarnoVeri", confirmationCaption, WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME,
               owner, nullptr, {});
        const std::array parts{
            ControlSpec{idQuestion, ControlKind::label, confirmationQuestion, raster(20), raster(18),
                        raster(300), raster(18)},
            ControlSpec{idFileName, ControlKind::label, name.c_str(), raster(20), raster(42), raster(300),
                        raster(18)},
            ControlSpec{idPosition, ControlKind::label, position.c_str(), 0, 0, raster(40), raster(18)},
            ControlSpec{idYesButton, ControlKind::button, "Ja", raster(72), raster(76), raster(90),
                        raster(28)},
            ControlSpec{idCancelButton, ControlKind::defaultButton, "Ångra", raster(178), raster(76),
                        raster(90), raster(28)},
        };
        addControls(parts);
        ShowWindow(item(idPosition), SW_HIDE);
        setFontRole(idFileName, win32::FontRole::bold);
        sizeAndCentre(raster(340), raster(120), owner);
    }
    bool ask() {
        SetFocus(item(idCancelButton));
        runModal();
        return yes_;
    }

  protected:
    void onCommand(int id, int notification) override {
        // Enter comes as "OK" where no button that is the default one has the focus.
        const bool yes = id == idYesButton || (id == idOkButton && GetFocus() == item(idYesButton));
        if (yes || id == idOkButton) {
            yes_ = yes;
            closeForm();
            return;
        }
        FormWindow::onCommand(id, notification);
    }

  private:
    bool yes_ = false;
};

// The help window (`Help`).
class HelpWindow : public win32::FormWindow {
  public:
    HelpWindow(win32::WindowHost& host, HWND owner, const std::string& first, const std::string& second)
        : FormWindow(host) {
        create(L"VarnoHelp", "Hjälp", WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, owner, nullptr,
               {});
        const std::array parts{
            ControlSpec{idTextOne, ControlKind::label, first.c_str(), raster(20), raster(18), raster(330),
                        raster(18)},
            ControlSpec{idTextTwo, ControlKind::label, second.c_str(), raster(20), raster(42), raster(330),
                        raster(18)},
            ControlSpec{idOkButton, ControlKind::defaultButton, "OK", raster(140), raster(76), raster(90),
                        raster(28)},
        };
        addControls(parts);
        sizeAndCentre(raster(370), raster(120), owner);
    }

  protected:
    void onCommand(int id, int) override {
        if (id == idOkButton || id == idCancelButton) closeForm();
    }
};

} // namespace

DeletionWindow::DeletionWindow(win32::WindowHost& host, HWND owner) : FileChooserWindow(host) {
    create(L"VarnoDelFile", deletionCaption, WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, owner,
           nullptr, {});
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

std::string DeletionWindow::entry(int position) const {
    return win32::rowText(item(idFileList), position);
}

bool DeletionWindow::isSelected(int position) const {
    return SendMessageW(item(idFileList), LB_GETSEL, static_cast<WPARAM>(position), 0) > 0;
}

void DeletionWindow::select(int position, bool selected) {
    SendMessageW(item(idFileList), LB_SETSEL, selected ? TRUE : FALSE, position);
}

bool DeletionWindow::confirming() const {
    return IsDlgButtonChecked(handle(), idConfirm) == BST_CHECKED;
}

void DeletionWindow::setConfirming(bool confirming) {
    CheckDlgButton(handle(), idConfirm, confirming ? BST_CHECKED : BST_UNCHECKED);
}

bool DeletionWindow::confirmed(const std::string& name, const std::string& position) {
    ConfirmationWindow window(host(), handle(), name, position);
    return window.ask();
}

void DeletionWindow::showHelp(const std::string& first, const std::string& second) {
    HelpWindow window(host(), handle(), first, second);
    window.runModal();
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
