#include "diagram/diagram_window.h"

#include <array>

#include "controls/control_ids.h"
#include "diagram/diagram_layout.h"

namespace varno {

namespace {

constexpr std::array controls{
    ControlSpec{idPlot, ControlKind::defaultButton, "Plotta på skrivare", 0, 0, 0, 0},
};

void put(HWND window, const Area& area) {
    win32::setPlace(window, area.x, area.y, area.width, area.height);
}

} // namespace

DiagramWindow::DiagramWindow(win32::WindowHost& host, HWND owner) : FormWindow(host), picture_(host) {
    const HMENU bar = CreateMenu();
    AppendMenuW(bar, MF_STRING, idReturn, L"Återgå");
    create(L"VarnoMomkurva", "Momentdiagram", win32::growingWindow | WS_CLIPCHILDREN, 0, owner, bar, {});
    addControls(controls);
    picture_.create(handle(), idDiagramPicture, "Momentdiagram", drawing_);
}

void DiagramWindow::layOut() {
    if (!picture_.exists()) return;
    RECT client{};
    GetClientRect(handle(), &client);
    const DiagramLayout layout = diagramLayout(client.right, client.bottom, dpi());
    put(picture_.handle(), layout.picture);
    put(item(idPlot), layout.plotButton);
    // The lines stay as thin as they are at the picture's own scale.
    picture_.setScale(layout.pictureDpi, dpi());
}

void DiagramWindow::show() {
    if (!placed_) {
        placed_ = true;
        sizeAndCentre(naturalDiagramWidth, naturalDiagramHeight, GetWindow(handle(), GW_OWNER));
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

LRESULT DiagramWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED) layOut();
        return 0;
    case WM_GETMINMAXINFO: {
        const Area least = leastDiagramArea(dpi());
        keepAtLeast(*reinterpret_cast<MINMAXINFO*>(lParam), {least.width, least.height});
        return 0;
    }
    default:
        return FormWindow::onMessage(message, wParam, lParam);
    }
}

} // namespace varno
