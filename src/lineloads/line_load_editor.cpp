#include "lineloads/line_load_editor.h"

#include <algorithm>
#include <utility>

#include "input/input_context.h"

namespace varno {

namespace {

constexpr const char* wholePattern = "#0";
constexpr const char* realPattern = "#0.00";
constexpr const char* editedLoadPattern = "##,##0.00";
constexpr LineLoadControl countBox{LineLoadBox::nllast};

// The highest span that the sketch has room for. The number of spans of the case is no limit: a load beyond
// it is drawn where the spans would be.
constexpr double highestSpan = 15;

} // namespace

template <typename Number>
void LineLoadEditor::write(LineLoadControl control, Number value, const char* pattern) {
    const std::string text = formatNumber(value, pattern, context_.locale);
    written_[{control.box, control.index}] = text;
    context_.view.setText(control, text);
}

// A text that still is what was shown from here is not read: its grouping sign would be taken for a decimal
// comma, and it shows fewer digits than the number may have. The zeros of a row that was counted away are not
// read either, so that its values come back with the count.
bool LineLoadEditor::isUntouched(LineLoadControl control) const {
    const auto written = written_.find({control.box, control.index});
    return context_.view.text(control) == (written == written_.end() ? std::string() : written->second);
}

void LineLoadEditor::opened() {
    const BusyPointer busy(context_.window);
    if (!open_) {
        showRecord();
        if (set_.hasMultipliers) {
            for (int k = 1; k <= static_cast<int>(multiplierBoxes.size()); ++k) {
                const LineLoadControl box{LineLoadBox::multiplier, k};
                written_[{box.box, k}] = "";
                context_.view.setText(box, "");
            }
        }
        open_ = true;
    }
    context_.view.show();
}

void LineLoadEditor::caseRead() {
    if (open_) showRecord();
}

void LineLoadEditor::layout() {
    // What is being typed is stored first.
    context_.view.focus(countBox);
    open_ = false;
    context_.view.close();
}

void LineLoadEditor::backgroundClicked() {
    if (visible_(1)) context_.view.focus({LineLoadBox::llfnr, 1});
}

void LineLoadEditor::showRecord() {
    if (count() > maxLineLoads) throw RunTimeError(errSubscriptOutOfRange);
    write(countBox, static_cast<double>(count()), wholePattern);
    for (int row = 1; row <= count(); ++row)
        fillRow(row);
    showRows(count());
}

void LineLoadEditor::fillRow(int row) {
    const DesignCase& designCase = context_.designCase;
    write({LineLoadBox::llfnr, row}, static_cast<double>((designCase.*set_.span)(row)), wholePattern);
    write({LineLoadBox::avst, row}, (designCase.*set_.distance)(row), realPattern);
    write({LineLoadBox::lllast, row}, (designCase.*set_.load)(row), realPattern);
}

void LineLoadEditor::showRows(int last) {
    for (int row = 1; row <= maxLineLoads; ++row) {
        visible_(row) = row <= last;
        context_.view.setRowVisible(row, visible_(row));
    }
}

void LineLoadEditor::spanNumberLeft(int row) {
    const LineLoadControl box{LineLoadBox::llfnr, row};
    std::int16_t& stored = (context_.designCase.*set_.span)(row);
    if (isUntouched(box)) return;

    const double typed = VARNO1::parseNumber(context_.view.text(box));
    const double number = std::min(typed, highestSpan);
    if (number == stored) {
        if (typed > highestSpan) write(box, number, wholePattern);
        return;
    }
    const std::int16_t span = toInteger(asShown(number, wholePattern));
    write(box, number, wholePattern);
    stored = span;
    context_.sketch.lineLoadRefresh();
}

void LineLoadEditor::distanceLeft(int row) {
    leaveReal({LineLoadBox::avst, row}, (context_.designCase.*set_.distance)(row), realPattern);
}

void LineLoadEditor::loadLeft(int row) {
    leaveReal({LineLoadBox::lllast, row}, (context_.designCase.*set_.load)(row), editedLoadPattern);
}

void LineLoadEditor::leaveReal(LineLoadControl control, float& stored, const char* pattern) {
    if (isUntouched(control)) return;
    const double typed = VARNO1::parseNumber(context_.view.text(control));
    if (toSingle(typed) == stored) return;

    // The digits without a grouping sign are what the shown number means: 1,234.00 is not 1.234.
    const float value = toSingle(asShown(typed, realPattern));
    write(control, typed, pattern);
    stored = value;
    context_.sketch.lineLoadRefresh();
}

void LineLoadEditor::multiplierLeft(int multiplier) {
    const LineLoadControl box{LineLoadBox::multiplier, multiplier};
    if (isUntouched(box)) return;
    write(box, VARNO1::parseNumber(context_.view.text(box)), realPattern);
}

void LineLoadEditor::spinUp() {
    const double shown = VARNO1::parseNumber(context_.view.text(countBox));
    if (shown >= maxLineLoads) return;
    enterCount(countFrom(shown + 1));
}

void LineLoadEditor::spinDown() {
    const double shown = VARNO1::parseNumber(context_.view.text(countBox));
    if (!(shown > 0)) return;
    enterCount(countFrom(shown - 1));
}

// The count box takes any text, so a step can lead anywhere. A negative count, which only a file brings, can
// be counted up.
int LineLoadEditor::countFrom(double wanted) const {
    const std::int16_t result = toInteger(asShown(wanted, wholePattern));
    if (result > maxLineLoads || result < std::min<int>(0, count())) {
        throw RunTimeError(errSubscriptOutOfRange);
    }
    return result;
}

void LineLoadEditor::enterCount(int wanted) {
    // What is being typed is stored now, before its row can go.
    context_.view.focus(countBox);
    context_.document.dataChanged = true;
    context_.window.setDiagramEnabled(false);

    write(countBox, static_cast<double>(wanted), wholePattern);
    for (int row = std::max<int>(count(), 0) + 1; row <= wanted; ++row)
        fillRow(row);
    const bool emptyRow = wanted == 0 && visible_(1);
    if (emptyRow) {
        // The first row stays, showing nothing; the record keeps its values.
        write({LineLoadBox::llfnr, 1}, 0.0, wholePattern);
        write({LineLoadBox::avst, 1}, 0.0, realPattern);
        write({LineLoadBox::lllast, 1}, 0.0, realPattern);
    }
    showRows(emptyRow ? 1 : wanted);
    count() = static_cast<std::int16_t>(wanted);
    context_.sketch.lineLoadRefresh();
}

} // namespace varno
