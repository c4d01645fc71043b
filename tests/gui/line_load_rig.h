#pragma once

#include "edit_rig.h"
#include "lineloads/line_load_view.h"

namespace varno::gui {

inline constexpr const char* lineLoadClass = "VarnoLineLoads";
inline constexpr const char* freeLineLoadClass = "VarnoFreeLineLoads";

/// A line of the case file with a line load.
Bytes loadLine(const char* span, const char* distance, const char* load);

/// An open line load editor.
class Editor {
  public:
    Editor() = default;
    explicit Editor(const Control& window) : window_(window) {}

    const Control& window() const { return window_; }
    Control box(LineLoadBox box, int index = 0) const {
        return window_.item(idLineLoadField + 10 * static_cast<int>(box) + index);
    }
    std::string text(LineLoadBox box, int index = 0) const { return this->box(box, index).text(); }
    /// The texts of a row, "-" for a hidden one.
    std::string row(int index) const;
    Control spin() const { return window_.item(idLineLoadSpin); }

  private:
    Control window_;
};

class LineLoads : public Editing {
  protected:
    static Editor openEditor();
    static Editor openFree();
    /// The item "Layout".
    static void close(const Editor& editor);
    /// Steps the count and waits for it to be shown.
    static void count(const Editor& editor, int step, const std::string& count);
    static void expectBox(const Editor& editor, LineLoadBox box, int index, const std::string& expected,
                          std::source_location place = std::source_location::current());
    /// A row as `Editor::row` gives it, the numbers written with a point.
    static void expectRow(const Editor& editor, int index, const std::string& expected,
                          std::source_location place = std::source_location::current());
};

} // namespace varno::gui
