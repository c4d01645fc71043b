#include "engine/case_check.h"

#include "engine/columns.h"

namespace varno::engine {

namespace {

// A line load may stand this far outside the slab (m): its position is a sum of rounded lengths.
constexpr double lengthTolerance = 1e-5;

// Every message holds each Swedish letter at most once; see pages.h.
[[noreturn]] void refuse(int line, const std::string& field, double value, const std::string& rule) {
    throw CaseError("Rad " + std::to_string(line) + ": " + field + " = " + fitted(value, 12, 3) + " " + rule);
}

void checkGeometry(const DesignCase& c) {
    for (int i = 1; i <= c.nfack; ++i) {
        if (!(c.spv(i) > 0)) refuse(6, "spännvidd " + indexed("spv", i), c.spv(i), "m ska vara positiv.");
    }
    for (int i = 0; i <= c.nfack; ++i) {
        const std::string width = "upplagsbredd " + indexed("upl", i);
        if (!(c.upl(i) >= 0)) refuse(8, width, c.upl(i), "m ska inte vara negativ.");
        if (i < c.nfack && !(c.upl(i) < c.spv(i + 1)))
            refuse(8, width, c.upl(i), "m ska vara mindre än " + indexed("spv", i + 1) + ".");
    }
    if (!(c.konsv >= 0)) refuse(14, "konsol till vänster konsv", c.konsv, "m ska inte vara negativ.");
    if (!(c.konsh >= 0)) refuse(15, "konsol till höger konsh", c.konsh, "m ska inte vara negativ.");
}

void checkFactor(const char* name, const Factor& factor) {
    if (!(factor >= 0.0))
        refuse(10, std::string("partialkoefficient ") + name, factor.value_or(0), "ska inte vara negativ.");
}

void checkLineLoads(const DesignCase& c) {
    for (int i = 1; i <= c.nllast; ++i) {
        const int line = 32 + i;
        if (c.llfnr(i) < 1 || c.llfnr(i) > c.nfack)
            throw CaseError("Rad " + std::to_string(line) + ": linjelastens fack " + indexed("llfnr", i) +
                            " = " + std::to_string(c.llfnr(i)) + " ska vara 1 till " +
                            std::to_string(c.nfack) + ".");
        const double x = lineLoadPosition(c, i);
        if (!(x >= -lengthTolerance && x <= totalLength(c) + lengthTolerance))
            refuse(line, "linjelastens " + indexed("avst", i), c.avst(i), "m hamnar utanför plattan.");
    }
}

// From the slab's left end to the right end of a span.
double lengthThrough(const DesignCase& c, int span) {
    double length = c.konsv;
    for (int i = 1; i <= span; ++i)
        length += c.spv(i);
    return length;
}

} // namespace

double totalLength(const DesignCase& c) {
    return lengthThrough(c, c.nfack) + c.konsh;
}

double lineLoadPosition(const DesignCase& c, int load) {
    return lengthThrough(c, c.llfnr(load) - 1) + c.avst(load);
}

void checkCase(const DesignCase& c) {
    checkGeometry(c);
    checkFactor("lambdaG", c.lambdaG(c.loadCode));
    checkFactor("lambdaQ", c.lambdaQ(c.loadCode));
    checkLineLoads(c);
}

} // namespace varno::engine
