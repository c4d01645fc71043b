#include "diagram/diagram_window.h"

#include <array>

#include "controls/control_ids.h"

namespace varno {

namespace {

constexpr int margin = raster(10);
constexpr int pictureWidth = static_cast<int>(diagramWidth);
constexpr int pictureHeight = static_cast<int>(diagramHeight);
constexpr int width = pictureWidth + 2 * margin;
constexpr int height = pictureHeight + 2 * margin + raster(40);

constexpr std::array controls{
    ControlSpec{idPlot, ControlKind::defaultButton, "Plotta på skrivare", margin,
                pictureHeight + margin + raster(12), raster(150), raster(28)},
};

} // namespace

DiagramWindow::DiagramWindow(win32::WindowHost& host, HWND owner) : FormWindow(host), picture_(host) {
    const HMENU bar = CreateMenu();
    AppendMenuW(bar, MF_STRING, idReturn, L"Återgå");
    create(L"VarnoMomkurva", "Momentdiagram", WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
           WS_EX_DLGMODALFRAME, owner, bar, {});
    addControls(controls);
    picture_.create(handle(), idDiagramPicture, "Momentdiagram", drawing_);
}

void DiagramWindow::layOut() {
    FormWindow::layOut();
    if (!picture_.exists()) return;
    SetWindowPos(picture_.handle(), nullptr, px(margin), px(margin), px(pictureWidth), px(pictureHeight),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    picture_.setScale(dpi(), dpi());
}

void DiagramWindow::show() {
    if (!placed_) {
        placed_ = true;
        sizeAndCentre(width, height, GetWindow(handle(), GW_OWNER));
    }
    picture_.redraw();
    ShowWindow(handle(), SW_SHOW);
    SetForegroundWindow(handle());
}

void DiagramWindow::onCommand(int id, int notification) {
    switch (id) {
    case idPlot:
    case idOkButton:
        commands_->plot();
        return;
    case idReturn:
        commands_->back();
        return;
    default:
        FormWindow::onCommand(id, notification);
    }
}

} // namespace varno
