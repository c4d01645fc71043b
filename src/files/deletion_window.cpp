#include "files/deletion_window.h"

#include <array>

#include "controls/control_ids.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr int width = raster(560);
constexpr int height = raster(372);
constexpr std::array controls{
    ControlSpec{0, ControlKind::label, "Filer:", raster(16), raster(16), raster(230), raster(16)},
    ControlSpec{idFileList, ControlKind::multiListBox, "", raster(16), raster(36), raster(230), raster(286)},
    ControlSpec{0, ControlKind::label, "Mapp:", raster(258), raster(16), raster(180), raster(16)},
    ControlSpec{idPathLabel, ControlKind::readOnlyEdit, "", raster(258), raster(36), raster(188), raster(18)},
    ControlSpec{idDirectoryList, ControlKind::folderList, "", raster(258), raster(66), raster(188),
                raster(204)},
    ControlSpec{0, ControlKind::label, "Enhet:", raster(258), raster(280), raster(180), raster(16)},
    ControlSpec{idDriveList, ControlKind::dropDown, "", raster(258), raster(298), raster(188), raster(24)},
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
            ControlSpec{idYesButton, ControlKind::defaultButton, "Ja", raster(72), raster(76), raster(90),
                        raster(28)},
            ControlSpec{idCancelButton, ControlKind::button, "Ångra", raster(178), raster(76), raster(90),
                        raster(28)},
        };
        addControls(parts);
        ShowWindow(item(idPosition), SW_HIDE);
        setFontRole(idFileName, win32::FontRole::bold);
        sizeAndCentre(raster(340), raster(120), owner);
    }
    bool ask() {
        runModal();
        return yes_;
    }

  protected:
    void onCommand(int id, int notification) override {
        if (id == idYesButton || id == idOkButton) {
            yes_ = true;
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

DeletionWindow::DeletionWindow(win32::WindowHost& host, HWND owner) : FormWindow(host) {
    create(L"VarnoDelFile", deletionCaption, WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, owner,
           nullptr, {});
    addControls(controls);
    lists_.attach({item(idDriveList), item(idDirectoryList), item(idFileList), item(idPathLabel)});
}

void DeletionWindow::ask(FileDeletion& deletion, const std::string& pattern,
                         const std::string& dialogDirectory) {
    deletion_ = &deletion;
    sizeAndCentre(width, height, GetWindow(handle(), GW_OWNER));
    deletion.opened(*this, pattern, dialogDirectory);
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

void DeletionWindow::clearSelection(int position) {
    SendMessageW(item(idFileList), LB_SETSEL, FALSE, position);
}

bool DeletionWindow::confirming() const {
    return IsDlgButtonChecked(handle(), idConfirm) == BST_CHECKED;
}

void DeletionWindow::setConfirming(bool confirming) {
    CheckDlgButton(handle(), idConfirm, confirming ? BST_CHECKED : BST_UNCHECKED);
}

void DeletionWindow::refreshLists() {
    lists_.show(deletion_->lists());
}

bool DeletionWindow::confirmed(const std::string& name, const std::string& position) {
    ConfirmationWindow window(host(), handle(), name, position);
    return window.ask();
}

void DeletionWindow::showHelp(const std::string& first, const std::string& second) {
    HelpWindow window(host(), handle(), first, second);
    window.runModal();
}

void DeletionWindow::layOut() {
    FormWindow::layOut();
    lists_.setDpi(dpi());
}

void DeletionWindow::onCommand(int id, int notification) {
    if (deletion_ == nullptr) return;
    switch (id) {
    case idDelete:
        deletion_->deletePressed(*this);
        return;
    case idCancelButton:
        deletion_->closePressed(*this);
        return;
    case idDeletionHelp:
        deletion_->helpPressed(*this);
        return;
    case idDirectoryList:
    case idOkButton:
        // Enter opens the selected folder, as a double click does.
        if (id == idOkButton ? GetFocus() == item(idDirectoryList) : notification == LBN_DBLCLK) {
            if (const auto folder = lists_.chosenFolder()) deletion_->folderChosen(*this, *folder);
        }
        return;
    case idDriveList:
        if (notification == CBN_SELCHANGE) deletion_->driveChosen(*this, lists_.chosenDrive());
        return;
    default:
        return;
    }
}

LRESULT DeletionWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM && wParam == idDirectoryList) {
        lists_.drawFolder(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam), dpi());
        return TRUE;
    }
    return FormWindow::onMessage(message, wParam, lParam);
}

} // namespace varno
