#pragma once

#include <functional>
#include <string>

#include "driver/prints.h"
#include "driver/program.h"

namespace varno::gui {

/// The tour's stops at the line loads, the printer, the moment diagram and the deletion window.
class PaperTour {
  public:
    /// \param picture takes a picture of this name
    PaperTour(const Program& program, std::string folder, std::function<void(const std::string&)> picture);

    /// A line load on the case.
    void lineLoads() const;
    /// The result goes to result.pdf; the diagram is drawn and plotted; a file is deleted.
    void printAndDraw();
    /// The plot comes out when the program has ended: diagram.pdf.
    void takePlot();

  private:
    void printResult();
    void plotMoments() const;
    void deleteFile() const;
    void require(bool wanted, const std::string& what) const;
    void requireSoon(const std::function<bool()>& wanted, const std::string& what) const;
    void press(const Control& window, int button) const;
    void typeInto(const Control& box, const std::string& text) const;
    void keep(const Print& print, const std::string& name) const;

    const Program& program_;
    std::string folder_;
    std::function<void(const std::string&)> picture_;
    Prints prints_;
};

} // namespace varno::gui
