#pragma once

#include <functional>
#include <string>

#include "driver/prints.h"
#include "driver/program.h"
#include "tour_camera.h"

namespace varno::gui {

/// The tour's stops at the line loads, the printer, the moment diagram and the deletion window.
class PaperTour {
  public:
    PaperTour(const Program& program, std::string folder, Camera& camera);

    /// A line load on the case.
    void lineLoads();
    /// The result goes to result.pdf; the diagram is drawn and plotted; a file is deleted.
    void printAndDraw();
    /// The plot comes out when the program has ended: diagram.pdf.
    void takePlot();

  private:
    void printResult();
    void plotMoments();
    void deleteFile();
    void require(bool wanted, const std::string& what) const;
    void requireSoon(const std::function<bool()>& wanted, const std::string& what) const;
    void press(const Control& window, int button) const;
    void typeInto(const Control& box, const std::string& text) const;
    void requireText(const Print& print, std::size_t words) const;
    void keep(const Print& print, const std::string& name) const;

    const Program& program_;
    std::string folder_;
    Camera& camera_;
    Prints prints_;
};

} // namespace varno::gui
