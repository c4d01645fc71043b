#include "lineloads/line_load_editor.h"

#include <algorithm>

#include "model/plausibility.h"
#include "model/record_fields.h"

namespace varno {

namespace {

constexpr const char* wholePattern = "#0";
constexpr const char* realPattern = "#0.00";
constexpr const char* editedLoadPattern = "##,##0.00";
constexpr LineLoadControl countBox{LineLoadBox::nllast};

// The highest span that the sketch has room for. The number of spans of the case is no limit: a load beyond
// it is drawn where the spans would be.
constexpr double highestSpan = 15;

std::int16_t spanNumberOf(double typed) {
    return toInteger(asShown(std::min(typed, highestSpan), wholePattern));
}

} // namespace

void LineLoadEditor::opened() {
    const BusyPointer busy(context_.window);
    if (!open_) {
        if (count() > maxLineLoads) throw RunTimeError(errSubscriptOutOfRange);
        showRecord();
        if (set_.hasMultipliers) {
            for (int k = 1; k <= static_cast<int>(multiplierLabels.size()); ++k)
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

void LineLoadEditor::arrow(LineLoadControl box, int rows) {
    if (box == countBox) {
        if (rows < 0) {
            spinUp();
        } else {
            spinDown();
        }
        context_.view.enter(countBox);
        return;
    }
    const LineLoadControl next{box.box, box.index + rows};
    const bool multiplier = box.box == LineLoadBox::multiplier;
    const int last = multiplier ? static_cast<int>(multiplierLabels.size()) : maxLineLoads;
    if (next.index < 1 || next.index > last || (!multiplier && !visible_(next.index))) return;
    context_.view.enter(next);
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

void LineLoadEditor::left(LineLoadControl box) {
    const Edit edit(context_.steps);
    DesignCase& designCase = context_.designCase;
    // An error names the box.
    aboutField(accessibleName(box), [&] {
        if (box.box == LineLoadBox::llfnr) leaveSpanNumber(box, (designCase.*set_.span)(box.index));
        if (box.box == LineLoadBox::avst) leaveReal(box, (designCase.*set_.distance)(box.index), realPattern);
        if (box.box == LineLoadBox::lllast)
            leaveReal(box, (designCase.*set_.load)(box.index), editedLoadPattern);
        if (box.box == LineLoadBox::multiplier)
            boxes_.leave(box, [&](double typed) { boxes_.put(box, typed, realPattern); });
    });
}

void LineLoadEditor::leaveSpanNumber(LineLoadControl box, std::int16_t& stored) {
    boxes_.leave(box, [&](double typed) {
        const double number = std::min(typed, highestSpan);
        if (number == stored) {
            if (typed > highestSpan) boxes_.put(box, number, wholePattern);
            return;
        }
        stored = spanNumberOf(number);
        boxes_.put(box, stored, wholePattern);
        context_.sketch.lineLoadRefresh();
    });
}

void LineLoadEditor::leaveReal(LineLoadControl box, float& stored, const char* pattern) {
    boxes_.leave(box, [&](double typed) {
        if (toSingle(typed) == stored) return;
        const double number = asShown(typed, pattern);
        stored = toSingle(number);
        boxes_.put(box, number, pattern);
        context_.sketch.lineLoadRefresh();
    });
}

DesignCase LineLoadEditor::asTyped() const {
    DesignCase seen = context_.designCase;
    for (int row = 1; row <= maxLineLoads; ++row) {
        try {
            float& distance = (seen.*set_.distance)(row);
            if (const auto typed = boxes_.typing({LineLoadBox::avst, row});
                typed && toSingle(*typed) != distance)
                distance = toSingle(asShown(*typed, realPattern));
            if (const auto typed = boxes_.typing({LineLoadBox::llfnr, row}))
                (seen.*set_.span)(row) = spanNumberOf(*typed);
        } catch (const RunTimeError&) {
            // No number type holds it; that is told when the box is left.
        }
    }
    return seen;
}

std::vector<LineLoadDoubt> LineLoadEditor::doubts() const {
    std::vector<LineLoadDoubt> doubts;
    for (const Finding& finding : implausible(asTyped())) {
        if (finding.field == recordFieldName(set_.span))
            doubts.push_back({{LineLoadBox::llfnr, finding.index}, finding.text});
        if (finding.field == recordFieldName(set_.distance))
            doubts.push_back({{LineLoadBox::avst, finding.index}, finding.text});
    }
    return doubts;
}

void LineLoadEditor::spin(int step) {
    const double shown = VARNO1::parseNumber(context_.view.text(countBox));
    if (step > 0 ? shown < maxLineLoads : shown > 0) enterCount(shown + step);
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
    const Edit edit(context_.steps);
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
