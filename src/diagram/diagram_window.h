#pragma once

#include <utility>

#include "controls/control_ids.h"
#include "diagram/diagram_commands.h"
#include "drawing/recording_canvas.h"
#include "win32/clipboard.h"
#include "win32/form_window.h"
#include "win32/picture_window.h"

namespace varno {

/// The window "Momentdiagram" (`Momkurva`), modeless. It can be made larger, and its picture grows with it.
class DiagramWindow : public win32::FormWindow, public DiagramView, private win32::PictureEvents {
  public:
    DiagramWindow(win32::WindowHost& host, HWND owner);

    void listen(DiagramCommands& commands) { commands_ = &commands; }

    Canvas& picture() override { return drawing_; }
    void paint() override { picture_.redraw(); }
    void show() override;
    void close() override { closeForm(); }
    void showReading(const std::string& text) override { setLine(idDiagramReading, text); }
    void setTexts(std::vector<PictureText> texts) override { picture_.setTexts(std::move(texts)); }
    void copyText(const std::string& text) override { win32::setClipboardText(handle(), text); }
    void copyPicture() override;
    void savePicture(const std::string& name) override;
    /// The line about the age of the curves.
    void setAge(const std::string& text) { setLine(idDiagramAge, text); }

  protected:
    void onCommand(int id, int notification) override;
    void onCloseBox() override { commands_->back(); }
    void layOut() override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    // win32::PictureEvents
    void pointedAt(std::optional<double> x) override { commands_->pointedAt(x); }

    void setLine(int id, const std::string& text);
    void showMenu(POINT place);

    DiagramCommands* commands_ = nullptr;
    RecordingCanvas drawing_;
    win32::PictureWindow picture_;
};

} // namespace varno
