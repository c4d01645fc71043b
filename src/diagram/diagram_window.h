#pragma once

#include "diagram/diagram_commands.h"
#include "drawing/recording_canvas.h"
#include "win32/form_window.h"
#include "win32/picture_window.h"

namespace varno {

/// The window "Momentdiagram" (`Momkurva`), modeless. It can be made larger, and its picture grows with it.
class DiagramWindow : public win32::FormWindow, public DiagramView {
  public:
    DiagramWindow(win32::WindowHost& host, HWND owner);

    void listen(DiagramCommands& commands) { commands_ = &commands; }

    Canvas& picture() override { return drawing_; }
    void paint() override { picture_.redraw(); }
    void show() override;
    void close() override { closeForm(); }

  protected:
    void onCommand(int id, int notification) override;
    void onCloseBox() override { commands_->back(); }
    void layOut() override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    DiagramCommands* commands_ = nullptr;
    RecordingCanvas drawing_;
    win32::PictureWindow picture_;
    bool placed_ = false;
};

} // namespace varno
