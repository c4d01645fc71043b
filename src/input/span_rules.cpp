// The grid of spans and supports, the cantilevers and the number of spans.
#include <algorithm>

#include "input/input_form.h"

namespace varno {

namespace {

constexpr Control countBox{Field::nfack};

} // namespace

// A damaged file leaves any count behind; what goes through the spans asks for it before it changes anything.
int InputForm::spanCount() const {
    const int count = context_.designCase.nfack;
    if (count > SpanArray::last) throw RunTimeError(errSubscriptOutOfRange);
    return count;
}

void InputForm::redraw(Redraws what) {
    if (what == Redraws::all) context_.sketch.fullRefresh();
    if (what == Redraws::geometry) context_.sketch.geometryRefresh();
}

void InputForm::leaveSpanCell(const TextField& row, int span) {
    if (span >= 1 && storeCell(row, span)) redraw(row.redraws);
}

void InputForm::leaveSupport(const TextField& row, int support) {
    const int count = spanCount();
    if (support > 0 && support < count) {
        storeCell(row, support);
    } else if (support == 0 || support == count) {
        context_.designCase.upl(support) = 0;
        context_.boxes().put({row.field, support}, 0.0, row.pattern);
    }
}

int InputForm::lastCell(const TextField& row) const {
    return row.field == Field::upl ? spanCount() - 1 : spanCount();
}

bool InputForm::storeCell(const TextField& row, int index) {
    const int last = lastCell(row);
    if (index > last) return false;
    bool another = false;
    SpanArray& values = context_.designCase.*std::get<SpanArray DesignCase::*>(row.place);
    const Control cell{row.field, index};
    context_.boxes().leave(cell, row.pattern, [&](double typed) {
        if (toSingle(typed) == values(index)) {
            context_.boxes().put(cell, values(index), row.pattern);
            return;
        }
        const double number = asShown(typed, row.pattern);
        const float stored = toSingle(number);
        for (int k = index; k <= last; ++k) {
            values(k) = stored;
            if (k <= maxSpans) context_.boxes().put({row.field, k}, number, row.pattern);
        }
        another = true;
    });
    return another;
}

void InputForm::leaveCantilever(const TextField& row) {
    float& length = context_.designCase.*std::get<float DesignCase::*>(row.place);
    const Control box{row.field};
    context_.boxes().leave(box, row.pattern, [&](double typed) {
        const bool differs = toSingle(typed) != length;
        length = toSingle(typed);
        context_.boxes().put(box, length, row.pattern);
        if (differs) redraw(row.redraws);
    });
}

void InputForm::spinUp() {
    const Edit edit(context_.steps);
    const std::string text = context_.form.text(countBox);
    if (VARNO1::parseNumber(text) >= maxSpans) return;
    enterCount(VARNO1::plainNumber(text) + 1, maxSpans);
}

void InputForm::spinDown() {
    const Edit edit(context_.steps);
    const std::string text = context_.form.text(countBox);
    if (!(VARNO1::parseNumber(text) > 1)) return;
    enterCount(VARNO1::plainNumber(text) - 1, context_.designCase.nfack);
}

// The count box takes any text, so a step can lead anywhere. The form has boxes for ten spans; only a case
// read with more may keep more, to be counted down.
int InputForm::countFrom(double wanted) const {
    const int count = toInteger(asShown(wanted, "#0"));
    if (count < 1 || count > std::max(maxSpans, spanCount())) throw RunTimeError(errSubscriptOutOfRange);
    return count;
}

void InputForm::enterCount(double wanted, int lastCleared) {
    int count = 0;
    context_.boxes().attempt(countBox, [&] { count = countFrom(wanted); });
    DesignCase& designCase = context_.designCase;
    context_.document.dataChanged = true;
    // Whatever is being typed is stored now, under the old count.
    context_.form.focus({Field::rubrik});
    context_.window.setDiagramEnabled(false);

    const int before = std::max(spanCount(), 0);
    context_.boxes().put(countBox, static_cast<double>(count), "#0");
    for (int support = count; support <= std::max(count, lastCleared); ++support)
        designCase.upl(support) = 0;
    designCase.nfack = static_cast<std::int16_t>(count);
    for (int span = before + 1; span <= std::min(count, maxSpans); ++span)
        context_.filler.showSpan(span);
    if (count <= maxSpans) context_.boxes().put({Field::upl, count}, 0.0, "0.000");
    context_.filler.showSpanCells();
    context_.sketch.fullRefresh();
}

} // namespace varno
