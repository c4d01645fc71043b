#pragma once

#include "diagram/diagram_commands.h"
#include "diagram/diagram_window.h"
#include "lineloads/line_load_window.h"
#include "results/font_chooser_window.h"
#include "results/result_viewer_window.h"
#include "shell/application.h"

namespace varno {

/// The result viewer and its font chooser, with their rules.
struct Application::Results {
    Results(win32::WindowHost& host, HWND owner, std::string& resultFontName, FileOpener& files,
            const Printer& printer, FileDialog& dialog)
        : viewer(host, owner), chooser(host, viewer.handle()),
          fonts(resultFontName, files, printer, dialog, viewer, chooser) {
        viewer.listen(fonts);
        chooser.listen(fonts);
    }

    ResultViewerWindow viewer;
    FontChooserWindow chooser;
    FontChoice fonts;
};

/// The moment diagram: its window and its rules.
struct Application::Moments {
    Moments(win32::WindowHost& host, HWND owner, MomentDiagram& diagram, FileOpener& files,
            MessageBoxes& boxes, MainView& main, Printer& printer)
        : window(host, owner), commands(diagram, files, boxes, main, printer, window) {
        window.listen(commands);
    }

    DiagramWindow window;
    DiagramCommands commands;
};

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
