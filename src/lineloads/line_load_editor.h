#pragma once

#include <vector>

#include "controls/main_view.h"
#include "input/edit_steps.h"
#include "input/form_view.h"
#include "input/number_box.h"
#include "input/sketch_refresh.h"
#include "lineloads/line_load_set.h"
#include "lineloads/line_load_view.h"

namespace varno {

/// What the rules of a line load editor work on. Everything outlives them.
struct LineLoadContext {
    DesignCase& designCase;
    DocumentState& document;
    MainView& window;
    SketchRefresh& sketch;
    FormView& form;
    LineLoadView& view;
    EditSteps& steps;
};

/// The rules of both line load editors. The window forwards its events and shows what it is told.
///
/// Only the count marks the case as changed. An edit of a row goes into the record and the sketch without a
/// mark: the program asks nothing about it when it ends. That is meant.
///
/// Input is not rejected, apart from what no number type holds (run-time error 6) and a count that the arrays
/// have no room for (9): the event stops there, the record is as it was and the box shows it again. An error
/// of the sketch comes after everything is stored and shown.
///
/// Events arrive while a rule runs: taking the focus brings the event of the box that had it.
class LineLoadEditor {
  public:
    LineLoadEditor(const LineLoadSet& set, const LineLoadContext& context, NumberLocale locale)
        : set_(set), context_(context), boxes_(context.view, std::move(locale)) {}
    LineLoadEditor(const LineLoadEditor&) = delete;
    LineLoadEditor& operator=(const LineLoadEditor&) = delete;

    /// The menu item: shows the window, filled from the record when it was not open. \throws RunTimeError 9
    /// for a record with more line loads than the arrays hold; nothing is shown then.
    void opened();
    /// Another case is in the record: what an open window shows is brought into line.
    void caseRead();
    /// The item "Layout", and the close box.
    void layout();

    /// The text of a box is another than before.
    void changed(LineLoadControl box) { boxes_.changed(box); }
    void entered(LineLoadControl box) { boxes_.entered(box); }
    /// What was typed in the box that has the focus, since it has it: whether there is anything, and back.
    bool isTyped(LineLoadControl box) const { return boxes_.isTyped(box); }
    void takeBack(LineLoadControl box) { boxes_.takeBack(box); }
    /// A box of a row is stored. A multiplier is only rewritten: they are not kept.
    void left(LineLoadControl box);

    void spinUp() { spin(1); }
    void spinDown() { spin(-1); }
    void backgroundClicked();
    /// The arrow keys up (-1) and down (1): in the count they step it, elsewhere they stay in the column.
    void arrow(LineLoadControl box, int rows);

    /// What there is to look at twice in the rows, with what is being typed taken for what will be stored.
    std::vector<LineLoadDoubt> doubts() const;

  private:
    using Rows = BoundedArray<bool, 1, maxLineLoads>;

    std::int16_t& count() const { return context_.designCase.*set_.count; }
    void showRecord();
    void fillRow(int row);
    void showRows(int last);
    DesignCase asTyped() const;
    void leaveSpanNumber(LineLoadControl box, std::int16_t& stored);
    void leaveReal(LineLoadControl box, float& stored, const char* pattern);
    void spin(int step);
    int countFrom(double wanted) const;
    void enterCount(double typed);

    const LineLoadSet& set_;
    LineLoadContext context_;
    bool open_ = false;
    Rows visible_;
    NumberBoxes<LineLoadView, LineLoadControl> boxes_;
};

} // namespace varno
