#pragma once

#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "drawing/printer.h"
#include "drawing/recording_canvas.h"

namespace varno::testing {

/// A printer that keeps its documents. As on a real one, the document starts with the first thing printed.
class FakePrinter : public Printer {
  public:
    struct Page {
        std::vector<std::string> lines;
        RecordingCanvas drawing;
        bool empty() const { return lines.empty() && drawing.drawn().empty(); }
    };
    using Document = std::vector<Page>;

    bool available() const override { return there; }
    std::vector<std::string> fonts() const override { return offered; }
    void setFontName(const std::string& face) override { fontsSet.push_back(face); }
    void printLine(const std::string& text) override {
        if (error != 0) throw RunTimeError(error);
        current().lines.push_back(text);
    }
    int page() override { return static_cast<int>(open.empty() ? 1 : open.size()); }
    void newPage() override {
        current();
        open.emplace_back();
    }
    void endDocument() override {
        ++timesEnded;
        if (!open.empty() && open.back().empty()) open.pop_back();
        if (!open.empty()) printed.push_back(open);
        open.clear();
    }
    Canvas& canvas() override { return current().drawing; }

    bool there = true;
    std::vector<std::string> offered;
    int error = 0;                     ///< raised by printing
    std::vector<std::string> fontsSet; ///< one after the other
    Document open;                     ///< the current document
    std::vector<Document> printed;
    int timesEnded = 0;

  private:
    Page& current() {
        if (open.empty()) open.emplace_back();
        return open.back();
    }
};

} // namespace varno::testing
