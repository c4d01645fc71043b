#pragma once

#include "input/field_table.h"
#include "input/input_context.h"

namespace varno {

/// The grid of spans and supports, the cantilevers and the number of spans.
///
/// A text that cannot be stored raises run-time error 6, a number of spans that the form has no room for 9;
/// the record is then as it was, and the box shows it again. Errors of the sketch come after everything is
/// stored and shown.
class SpanRules {
  public:
    explicit SpanRules(InputContext& context) : context_(context) {}

    /// A changed value goes into the span and into all spans behind it.
    void leaveSpanCell(const TextField& row, int span);
    /// A changed width goes into the support and into the inner supports behind it. End supports stay 0.
    void leaveSupport(const TextField& row, int support);
    /// The length is stored as typed, not as shown.
    void leaveCantilever(const TextField& row);

    void addSpan();
    void removeSpan();

  private:
    void leaveCell(const TextField& row, int index, int last);
    int spanCount() const;
    int countFrom(double wanted) const;
    void enterCount(double wanted, int lastCleared);
    void redraw(Redraws what);

    InputContext& context_;
};

} // namespace varno
