#pragma once

#include "base/numbers.h"
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
    NumberLocale locale; ///< of the display; what is typed may have "," or "." whatever it says

    /// There is something to save, and the last moment curve no longer fits the input.
    void markChanged() const {
        document.dataChanged = true;
        window.setDiagramEnabled(false);
    }
    template <typename Number>
    std::string display(Number value, std::string_view pattern) const {
        return formatNumber(value, pattern, locale);
    }
};

/// The number that the shown digits of a value mean, whatever signs the display uses.
inline double asShown(double value, std::string_view pattern) {
    return VARNO1::parseNumber(formatNumber(value, pattern));
}

} // namespace varno
