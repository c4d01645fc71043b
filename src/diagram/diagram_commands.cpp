#include "diagram/diagram_commands.h"

#include "diagram/moment_file.h"

namespace varno {

void DiagramCommands::moment() {
    const BusyPointer busy(window_);
    File measured = files_.openFile(momentFileName, FileMode::input);
    diagram_.measure(measured);
    measured.close();
    pass([this](File& file) { diagram_.draw(file, view_.picture()); });
    File numbers = files_.openFile(momentFileName, FileMode::input);
    reading_ = diagram_.read(numbers);
    numbers.close();
    shown_ = shownResult(files_.calls(), document_.currentFileName, momentFileName);
    showTexts();
    view_.show();
}

void DiagramCommands::pointedAt(std::optional<double> x) {
    view_.showReading(x ? reading_.at(*x, locale_) : std::string());
}

void DiagramCommands::toggleValues() {
    valuesShown_ = !valuesShown_;
    showTexts();
}

void DiagramCommands::showTexts() {
    view_.setTexts(valuesShown_ ? reading_.peaks(locale_) : std::vector<PictureText>());
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
