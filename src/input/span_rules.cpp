#include "input/span_rules.h"

#include <algorithm>

namespace varno {

namespace {

constexpr Control countBox{Field::nfack};

} // namespace

// A text that is still the stored number's own display is not read again: it shows fewer digits than the
// number may have, and the display's signs need not be those of the number reader.
bool SpanRules::isUntouched(Control control, float stored, std::string_view pattern) const {
    return context_.form.text(control) == context_.display(stored, pattern);
}

// A damaged file leaves any count behind; what goes through the spans asks for it before it changes anything.
int SpanRules::spanCount() const {
    const int count = context_.designCase.nfack;
    if (count > SpanArray::last) throw RunTimeError(errSubscriptOutOfRange);
    return count;
}

void SpanRules::redraw(Redraws what) {
    if (what == Redraws::all) context_.sketch.fullRefresh();
    if (what == Redraws::geometry) context_.sketch.geometryRefresh();
}

void SpanRules::leaveSpanCell(const TextField& row, int span) {
    SpanArray& values = context_.designCase.*std::get<SpanArray DesignCase::*>(row.place);
    const int count = spanCount();
    const Control cell{row.field, span};
    if (span < 1 || span > count || isUntouched(cell, values(span), row.pattern)) return;

    const double typed = VARNO1::parseNumber(context_.form.text(cell));
    if (toSingle(typed) == values(span)) {
        context_.form.setText(cell, context_.display(values(span), row.pattern));
        return;
    }
    const float stored = toSingle(asShown(typed, row.pattern));
    const std::string text = context_.display(typed, row.pattern);
    for (int k = span; k <= count; ++k) {
        values(k) = stored;
        if (k <= maxSpans) context_.form.setText({row.field, k}, text);
    }
    redraw(row.redraws);
}

void SpanRules::leaveSupport(const TextField& row, int support) {
    SpanArray& widths = context_.designCase.upl;
    const int count = spanCount();
    const Control cell{row.field, support};
    if (support < 0 || support > count) return;
    if (support == 0 || support == count) {
        widths(support) = 0;
        context_.form.setText(cell, context_.display(0.0, row.pattern));
        return;
    }
    if (isUntouched(cell, widths(support), row.pattern)) return;

    const double typed = VARNO1::parseNumber(context_.form.text(cell));
    if (toSingle(typed) == widths(support)) {
        context_.form.setText(cell, context_.display(widths(support), row.pattern));
        return;
    }
    const float stored = toSingle(asShown(typed, row.pattern));
    const std::string text = context_.display(typed, row.pattern);
    for (int k = support; k < count; ++k) {
        widths(k) = stored;
        if (k <= maxSpans) context_.form.setText({row.field, k}, text);
    }
    if (count <= maxSpans) {
        context_.form.setText({row.field, count}, context_.display(0.0, row.pattern));
        context_.form.setEnabled({row.field, count}, false);
    }
}

void SpanRules::leaveCantilever(const TextField& row) {
    float& length = context_.designCase.*std::get<float DesignCase::*>(row.place);
    const Control box{row.field};
    if (isUntouched(box, length, row.pattern)) return;

    const float typed = toSingle(VARNO1::parseNumber(context_.form.text(box)));
    const bool differs = typed != length;
    length = typed;
    context_.form.setText(box, context_.display(length, row.pattern));
    if (differs) redraw(row.redraws);
}

void SpanRules::addSpan() {
    const std::string text = context_.form.text(countBox);
    if (VARNO1::parseNumber(text) >= maxSpans) return;
    enterCount(countFrom(VARNO1::plainNumber(text) + 1), maxSpans);
}

void SpanRules::removeSpan() {
    const std::string text = context_.form.text(countBox);
    if (!(VARNO1::parseNumber(text) > 1)) return;
    enterCount(countFrom(VARNO1::plainNumber(text) - 1), context_.designCase.nfack);
}

// The count box takes any text, so a step can lead anywhere. The form has boxes for ten spans; only a case
// read with more may keep more, to be counted down.
int SpanRules::countFrom(double wanted) const {
    const int count = toInteger(asShown(wanted, "#0"));
    if (count < 1 || count > std::max(maxSpans, spanCount())) throw RunTimeError(errSubscriptOutOfRange);
    return count;
}

void SpanRules::enterCount(int count, int lastCleared) {
    DesignCase& designCase = context_.designCase;
    context_.document.dataChanged = true;
    // Whatever is being typed is stored now, under the old count.
    context_.form.focus({Field::rubrik});
    context_.window.setDiagramEnabled(false);

    const int before = std::max(spanCount(), 0);
    context_.form.setText(countBox, context_.display(static_cast<double>(count), "#0"));
    for (int support = count; support <= std::max(count, lastCleared); ++support)
        designCase.upl(support) = 0;
    designCase.nfack = static_cast<std::int16_t>(count);
    for (int span = before + 1; span <= std::min(count, maxSpans); ++span)
        showSpan(span);
    if (count <= maxSpans) context_.form.setText({Field::upl, count}, context_.display(0.0, "0.000"));
    context_.filler.showSpanCells();
    context_.sketch.fullRefresh();
}

void SpanRules::showSpan(int span) {
    for (const Field row : {Field::spv, Field::upl, Field::ptjl, Field::flast, Field::plast}) {
        const TextField& field = *textField(row);
        const SpanArray& values = context_.designCase.*std::get<SpanArray DesignCase::*>(field.place);
        context_.form.setText({row, span}, context_.display(values(span), field.shownPattern));
    }
}

} // namespace varno
