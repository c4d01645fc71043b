#include "lineloads/line_load_editor.h"

#include <algorithm>

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

void LineLoadEditor::opened() {
    const BusyPointer busy(context_.window);
    if (!open_) {
        if (count() > maxLineLoads) throw RunTimeError(errSubscriptOutOfRange);
        showRecord();
        if (set_.hasMultipliers) {
            for (int k = 1; k <= static_cast<int>(multiplierBoxes.size()); ++k)
                boxes_.put({LineLoadBox::multiplier, k}, std::nullopt, realPattern);
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
    context_.form.focus({Field::rubrik});
}

void LineLoadEditor::backgroundClicked() {
    if (visible_(1)) context_.view.focus({LineLoadBox::llfnr, 1});
}

void LineLoadEditor::showRecord() {
    boxes_.put(countBox, count(), wholePattern);
    // A damaged file can hold any count. What the arrays hold is shown; the sketch tells of the rest.
    for (int row = 1; row <= std::min<int>(count(), maxLineLoads); ++row)
        fillRow(row);
    showRows(count());
}

void LineLoadEditor::fillRow(int row) {
    const DesignCase& designCase = context_.designCase;
    boxes_.put({LineLoadBox::llfnr, row}, (designCase.*set_.span)(row), wholePattern);
    boxes_.put({LineLoadBox::avst, row}, (designCase.*set_.distance)(row), realPattern);
    boxes_.put({LineLoadBox::lllast, row}, (designCase.*set_.load)(row), realPattern);
}

void LineLoadEditor::showRows(int last) {
    for (int row = 1; row <= maxLineLoads; ++row) {
        visible_(row) = row <= last;
        context_.view.setRowVisible(row, visible_(row));
    }
}

// An error names the box.
template <typename Store>
void LineLoadEditor::leave(LineLoadControl box, Store store) {
    aboutField(accessibleName(box), [&] { boxes_.leave(box, store); });
}

void LineLoadEditor::spanNumberLeft(int row) {
    const LineLoadControl box{LineLoadBox::llfnr, row};
    std::int16_t& stored = (context_.designCase.*set_.span)(row);
    leave(box, [&](double typed) {
        const double number = std::min(typed, highestSpan);
        if (number == stored) {
            if (typed > highestSpan) boxes_.put(box, number, wholePattern);
            return;
        }
        const double whole = asShown(number, wholePattern);
        stored = toInteger(whole);
        boxes_.put(box, whole, wholePattern);
        context_.sketch.lineLoadRefresh();
    });
}

void LineLoadEditor::distanceLeft(int row) {
    leaveReal({LineLoadBox::avst, row}, (context_.designCase.*set_.distance)(row), realPattern);
}

void LineLoadEditor::loadLeft(int row) {
    leaveReal({LineLoadBox::lllast, row}, (context_.designCase.*set_.load)(row), editedLoadPattern);
}

void LineLoadEditor::leaveReal(LineLoadControl box, float& stored, const char* pattern) {
    leave(box, [&](double typed) {
        if (toSingle(typed) == stored) return;
        const double number = asShown(typed, pattern);
        stored = toSingle(number);
        boxes_.put(box, number, pattern);
        context_.sketch.lineLoadRefresh();
    });
}

void LineLoadEditor::multiplierLeft(int multiplier) {
    const LineLoadControl box{LineLoadBox::multiplier, multiplier};
    leave(box, [&](double typed) { boxes_.put(box, typed, realPattern); });
}

void LineLoadEditor::spinUp() {
    const double shown = VARNO1::parseNumber(context_.view.text(countBox));
    if (shown >= maxLineLoads) return;
    enterCount(shown + 1);
}

void LineLoadEditor::spinDown() {
    const double shown = VARNO1::parseNumber(context_.view.text(countBox));
    if (!(shown > 0)) return;
    enterCount(shown - 1);
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

void LineLoadEditor::enterCount(double typed) {
    int wanted = 0;
    aboutField(accessibleName(countBox),
               [&] { boxes_.attempt(countBox, [&] { wanted = countFrom(typed); }); });
    // What is being typed is stored now, before its row can go.
    context_.view.focus(countBox);
    context_.document.dataChanged = true;
    context_.window.setDiagramEnabled(false);

    boxes_.put(countBox, static_cast<double>(wanted), wholePattern);
    for (int row = std::max<int>(count(), 0) + 1; row <= wanted; ++row)
        fillRow(row);
    const bool emptyRow = wanted == 0 && visible_(1);
    if (emptyRow) {
        // The first row stays, showing nothing; the record keeps its values.
        boxes_.put({LineLoadBox::llfnr, 1}, 0.0, wholePattern);
        boxes_.put({LineLoadBox::avst, 1}, 0.0, realPattern);
        boxes_.put({LineLoadBox::lllast, 1}, 0.0, realPattern);
    }
    showRows(emptyRow ? 1 : wanted);
    count() = static_cast<std::int16_t>(wanted);
    context_.sketch.lineLoadRefresh();
}

} // namespace varno
