#pragma once

#include "lineloads/line_load_window.h"
#include "shell/application.h"

namespace varno {

/// A line load editor: its window and its rules, which need each other.
struct Application::LineLoads {
    LineLoads(win32::WindowHost& host, HWND owner, const LineLoadSet& set, DesignCase& designCase,
              DocumentState& document, MainView& main, SketchRefresh& sketch, FormView& form,
              const NumberLocale& locale)
        : window(host, owner, set), rules(set, {designCase, document, main, sketch, form, window}, locale) {
        window.listen(rules);
    }

    LineLoadWindow window;
    LineLoadEditor rules;
};

} // namespace varno
