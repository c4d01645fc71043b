#include "benchmarks/ten_spans.h"

#include "model/reference_tables.h"

namespace varno::benchmarks {

CaseFile tenSpans() {
    CaseFile ten{{}, "TIOFACK", "Tio fack i lagerhall på Åland södra kajen"};
    DesignCase& c = ten.designCase;
    presetDesignCase(c);
    c.nfack = maxSpans;
    c.loadCode = 3;
    c.konsv = 0.9f;
    c.konsh = 1.35f;
    for (int i = 1; i <= maxSpans; ++i) {
        const auto number = static_cast<float>(i);
        c.spv(i) = 4.5f + 0.125f * number;
        c.ptjl(i) = 0.2f;
        c.upl(i) = i < maxSpans ? 0.2f : 0;
        c.plast(i) = 1 + 0.05f * number;
        c.flast(i) = 4 - 0.15f * number;
    }
    c.nllast = c.nllastf = maxLineLoads;
    for (int i = 1; i <= maxLineLoads; ++i) {
        const auto number = static_cast<float>(i);
        c.llfnr(i) = c.llfnrf(i) = static_cast<std::int16_t>(2 * i);
        c.avst(i) = 0.625f * number;
        c.avstf(i) = 0.375f * number;
        c.lllast(i) = 4.4f + number;
        c.lllastf(i) = 3.3f + number;
    }
    return ten;
}

Bytes fileOf(const CaseFile& caseFile) {
    return VARNO1::writtenDesignCase(caseFile);
}

} // namespace varno::benchmarks
