#include "diagram/diagram_commands.h"

#include "diagram/moment_file.h"

namespace varno {

namespace {

// The picture area is painted however its drawing ended.
class Painted {
  public:
    explicit Painted(DiagramView& view) : view_(view) {}
    ~Painted() { view_.paint(); }
    Painted(const Painted&) = delete;
    Painted& operator=(const Painted&) = delete;

  private:
    DiagramView& view_;
};

} // namespace

void DiagramCommands::moment() {
    const BusyPointer busy(window_);
    File measured = files_.openFile(momentFileName, FileMode::input);
    diagram_.measure(measured);
    measured.close();

    File drawn = files_.openFile(momentFileName, FileMode::input);
    {
        const Painted painted(view_);
        diagram_.draw(drawn, view_.picture());
    }
    drawn.close();
    view_.show();
}

void DiagramCommands::plot() {
    if (!printerThere(printer_, boxes_)) return;
    const BusyPointer busy(window_);
    File file = files_.openFile(momentFileName, FileMode::input);
    {
        const Painted painted(view_);
        diagram_.plot(
            file, [this]() -> Canvas& { return printer_.canvas(); }, view_.picture());
    }
    file.close();
}

} // namespace varno
