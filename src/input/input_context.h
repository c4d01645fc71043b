#pragma once

#include "controls/main_view.h"
#include "input/form_filling.h"
#include "input/form_view.h"
#include "input/sketch_refresh.h"
#include "model/design_case.h"

namespace varno {

/// What the rules of the input form work on. Everything outlives them.
struct InputContext {
    DesignCase& designCase;
    DocumentState& document;
    FormView& form;
    MainView& window;
    CaseFormFiller& filler;
    SketchRefresh& sketch;

    FormBoxes& boxes() const { return filler.boxes(); }
    /// There is something to save, and the last moment curve no longer fits the input.
    void markChanged() const {
        document.dataChanged = true;
        window.setDiagramEnabled(false);
    }
};

} // namespace varno
