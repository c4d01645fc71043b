#pragma once

#include <functional>

#include "base/message_boxes.h"
#include "base/open_file.h"
#include "controls/main_view.h"
#include "diagram/moment_diagram.h"
#include "drawing/printer.h"

namespace varno {

/// The window "Momentdiagram" as its rules see it.
class DiagramView {
  public:
    virtual ~DiagramView() = default;
    /// Its picture area, diagramWidth by diagramHeight. It can be drawn on before the window is shown.
    virtual Canvas& picture() = 0;
    /// Something was drawn on the picture area.
    virtual void paint() = 0;
    virtual void show() = 0;
    virtual void close() = 0;
};

/// "Moment" and what its window offers. An error in a pass ends the command there; the next one that runs
/// through makes the picture whole again.
class DiagramCommands {
  public:
    DiagramCommands(MomentDiagram& diagram, FileOpener& files, MessageBoxes& boxes, MainView& window,
                    Printer& printer, DiagramView& view)
        : diagram_(diagram), files_(files), boxes_(boxes), window_(window), printer_(printer), view_(view) {}

    /// The menu item "Moment". \throws RunTimeError; a window that was not shown is not shown then.
    void moment();
    /// "Plotta på skrivare": into the current document, which is left open for the next result printing.
    void plot();
    /// "Återgå".
    void back() { view_.close(); }

  private:
    void pass(const std::function<void(File&)>& draw);

    MomentDiagram& diagram_;
    FileOpener& files_;
    MessageBoxes& boxes_;
    MainView& window_;
    Printer& printer_;
    DiagramView& view_;
};

} // namespace varno
