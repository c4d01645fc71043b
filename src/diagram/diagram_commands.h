#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/message_boxes.h"
#include "base/open_file.h"
#include "controls/main_view.h"
#include "diagram/moment_diagram.h"
#include "diagram/moment_reading.h"
#include "drawing/annotated_picture.h"
#include "drawing/printer.h"
#include "results/result_viewer.h"

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
    /// The line under the picture about the place that is pointed at; empty for none.
    virtual void showReading(const std::string& text) = 0;
    /// Words in the picture, which are not of its drawing.
    virtual void setTexts(std::vector<PictureText> texts) = 0;
    virtual void copyText(const std::string& text) = 0;
    /// The picture with its words: to the clipboard, or to a file that the user names. \throws RunTimeError
    virtual void copyPicture() = 0;
    virtual void savePicture(const std::string& name) = 0;
};

/// "Moment" and what its window offers. An error in a pass ends the command there; the next one that runs
/// through makes the picture whole again.
class DiagramCommands {
  public:
    DiagramCommands(MomentDiagram& diagram, const DocumentState& document, const NumberLocale& locale,
                    FileOpener& files, MessageBoxes& boxes, MainView& window, Printer& printer,
                    DiagramView& view)
        : diagram_(diagram), document_(document), locale_(locale), files_(files), boxes_(boxes),
          window_(window), printer_(printer), view_(view) {}

    /// The menu item "Moment". \throws RunTimeError; a window that was not shown is not shown then.
    void moment();
    /// "Plotta på skrivare": into the current document, which is left open for the next result printing.
    void plot();
    /// "Återgå".
    void back() { view_.close(); }

    /// The pointer is at this x of the picture, in twips, or beside it.
    void pointedAt(std::optional<double> x);
    /// "Visa värden": off at first.
    bool valuesShown() const { return valuesShown_; }
    void toggleValues();
    void copyValues() { view_.copyText(reading_.table(locale_)); }
    void copyPicture() { view_.copyPicture(); }
    void savePicture() { view_.savePicture(shown_.caseName + "-moment"); }

    /// What is drawn.
    const ShownResult& shown() const { return shown_; }

  private:
    void pass(const std::function<void(File&)>& draw);

    void showTexts();

    MomentDiagram& diagram_;
    const DocumentState& document_;
    const NumberLocale& locale_;
    FileOpener& files_;
    MessageBoxes& boxes_;
    MainView& window_;
    Printer& printer_;
    DiagramView& view_;
    MomentReading reading_;
    ShownResult shown_;
    bool valuesShown_ = false;
};

} // namespace varno
