#include "input/edit_steps.h"

namespace varno {

CaseStep EditSteps::now() const {
    return {case_, form_.text({Field::rubrik}), filler_.factorsOpen()};
}

void EditSteps::note() {
    // A box that goes while a step is shown loses the focus, which is no edit.
    if (!showing_) history_.note(now());
}

void EditSteps::back() {
    // A title that is still being typed is an edit too.
    note();
    show(history_.back());
}

void EditSteps::forward() {
    note();
    show(history_.forward());
}

void EditSteps::show(const CaseStep* step) {
    if (step == nullptr) return;
    case_ = step->designCase;
    document_.dataChanged = true;
    window_.setDiagramEnabled(false);
    showing_ = true;
    try {
        filler_.showCase(step->title, step->factorsOpen);
    } catch (...) {
        showing_ = false;
        throw;
    }
    showing_ = false;
    beside_.showBeside();
}

} // namespace varno
