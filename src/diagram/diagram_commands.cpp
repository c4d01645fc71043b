#include "diagram/diagram_commands.h"

#include "diagram/moment_file.h"

namespace varno {

void DiagramCommands::moment() {
    const BusyPointer busy(window_);
    File measured = files_.openFile(momentFileName, FileMode::input);
    diagram_.measure(measured);
    measured.close();
    pass([this](File& file) { diagram_.draw(file, view_.picture()); });
    view_.show();
}

void DiagramCommands::plot() {
    if (!printerThere(printer_, boxes_)) return;
    const BusyPointer busy(window_);
    pass([this](File& file) {
        diagram_.plot(
            file, [this]() -> Canvas& { return printer_.canvas(); }, view_.picture());
    });
}

// The picture area is painted however its drawing ended.
void DiagramCommands::pass(const std::function<void(File&)>& draw) {
    File file = files_.openFile(momentFileName, FileMode::input);
    try {
        draw(file);
    } catch (...) {
        view_.paint();
        throw;
    }
    view_.paint();
}

} // namespace varno
