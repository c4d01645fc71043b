#include "engine/case_check.h"

#include "engine/numbers.h"

#include <numeric>

namespace varnowb {
namespace {

// Every line below holds each Swedish letter at most once; see letters.h.
[[noreturn]] void refuse(int line, const std::string& field, double value, const std::string& rule) {
    throw CaseError("Rad " + std::to_string(line) + ": " + field + " = " + fitted(value, 12, 3) + " " + rule);
}

void checkGeometry(const DesignInput& c) {
    for (std::size_t i = 0; i < c.spv.size(); ++i)
        if (!(c.spv[i] > 0)) refuse(6, "spännvidd " + indexed("spv", i + 1), c.spv[i], "m ska vara positiv.");
    for (std::size_t i = 0; i < c.upl.size(); ++i)
        if (!(c.upl[i] >= 0))
            refuse(8, "upplagsbredd " + indexed("upl", i), c.upl[i], "m ska inte vara negativ.");
    for (std::size_t i = 0; i < c.spv.size(); ++i)
        if (!(c.upl[i] < c.spv[i]))
            refuse(8, "upplagsbredd " + indexed("upl", i), c.upl[i],
                   "m ska vara mindre än " + indexed("spv", i + 1) + ".");
    if (!(c.konsv >= 0)) refuse(14, "konsol till vänster konsv", c.konsv, "m ska inte vara negativ.");
    if (!(c.konsh >= 0)) refuse(15, "konsol till höger konsh", c.konsh, "m ska inte vara negativ.");
}

void checkLineLoads(const DesignInput& c) {
    for (int i = 1; i <= c.nllast; ++i) {
        const auto& load = *c.lineLoads[static_cast<std::size_t>(i - 1)];
        const auto number = static_cast<std::size_t>(i);
        if (load.llfnr < 1 || load.llfnr > c.nfack)
            throw CaseError("Rad " + std::to_string(32 + i) + ": linjelastens fack " +
                            indexed("llfnr", number) + " = " + std::to_string(load.llfnr) +
                            " ska vara 1 till " + std::to_string(c.nfack) + ".");
        const double x = lineLoadPosition(c, load);
        if (!(x >= -kLengthTolerance && x <= totalLength(c) + kLengthTolerance))
            refuse(32 + i, "linjelastens " + indexed("avst", number), load.avst, "m hamnar utanför plattan.");
    }
}

} // namespace

double totalLength(const DesignInput& c) {
    return std::accumulate(c.spv.begin(), c.spv.end(), c.konsv) + c.konsh;
}

double lineLoadPosition(const DesignInput& c, const LineLoad& load) {
    return std::accumulate(c.spv.begin(), c.spv.begin() + (load.llfnr - 1), c.konsv) + load.avst;
}

void checkCase(const DesignInput& c) {
    checkGeometry(c);
    if (!(c.lambdaG >= 0)) refuse(10, "partialkoefficient lambdaG", c.lambdaG, "ska inte vara negativ.");
    if (!(c.lambdaQ >= 0)) refuse(10, "partialkoefficient lambdaQ", c.lambdaQ, "ska inte vara negativ.");
    checkLineLoads(c);
}

} // namespace varnowb
