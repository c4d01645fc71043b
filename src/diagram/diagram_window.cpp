#include "diagram/diagram_window.h"

#include <array>

#include "controls/control_ids.h"
#include "diagram/diagram_layout.h"
#include "win32/picture_files.h"
#include "win32/popup_menu.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr std::array controls{
    ControlSpec{idPlot, ControlKind::defaultButton, "Plotta på skrivare", 0, 0, 0, 0},
    inRaster(idDiagramReading, ControlKind::label, "", 0, 0, 100, 16),
    inRaster(idDiagramAge, ControlKind::label, "", 0, 0, 100, 16),
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
    picture_.listen(*this);
}

void DiagramWindow::layOut() {
    if (!picture_.exists()) return;
    RECT client{};
    GetClientRect(handle(), &client);
    const DiagramLayout layout = diagramLayout(client.right, client.bottom, dpi());
    put(picture_.handle(), layout.picture);
    put(item(idPlot), layout.plotButton);
    put(item(idDiagramReading), layout.reading);
    put(item(idDiagramAge), layout.age);
    // The lines stay as thin as they are at the picture's own scale.
    picture_.setScale(layout.pictureDpi, dpi());
}

void DiagramWindow::show() {
    stand(naturalDiagramWidth, naturalDiagramHeight, GetWindow(handle(), GW_OWNER));
    picture_.redraw();
    ShowWindow(handle(), SW_SHOW);
    SetForegroundWindow(handle());
}

void DiagramWindow::setLine(int id, const std::string& text) {
    if (win32::textOf(item(id)) != text) win32::setText(item(id), text);
}

void DiagramWindow::copyPicture() {
    win32::copyPicture(handle(), picture_.annotated(diagramWidth, diagramHeight));
}

void DiagramWindow::savePicture(const std::string& name) {
    win32::savePicture(handle(), picture_.annotated(diagramWidth, diagramHeight), name, systemFileCalls());
}

void DiagramWindow::showMenu(POINT place) {
    switch (win32::chooseFromMenu(handle(), place,
                                  {{"Visa värden", commands_->valuesShown()},
                                   {"-"},
                                   {"Kopiera bild"},
                                   {"Kopiera värden"},
                                   {"Spara som bild..."}})) {
    case 0:
        return commands_->toggleValues();
    case 2:
        return commands_->copyPicture();
    case 3:
        return commands_->copyValues();
    case 4:
        return commands_->savePicture();
    default:
        return;
    }
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
    case WM_CONTEXTMENU:
        showMenu(win32::placeOfMenu(picture_.handle(), lParam));
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
