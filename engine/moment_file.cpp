#include "engine/moment_file.h"

#include "base/numbers.h"

namespace varno::engine {

namespace {

constexpr std::string_view pattern = "0.000000";
constexpr std::size_t perLine = 7; // three lines for the 21 moments of a span

void appendCurve(std::string& text, const std::vector<double>& dx, const std::vector<Curve>& curves) {
    for (std::size_t i = 0; i < curves.size(); ++i) {
        text += formatNumber(dx[i], pattern) + "\r\n";
        for (std::size_t k = 0; k < curves[i].size(); ++k)
            text += formatNumber(curves[i][k], pattern) + ((k + 1) % perLine == 0 ? "\r\n" : ",");
    }
}

} // namespace

std::string momentFile(const Envelope& result) {
    std::string text = std::to_string(result.dx.size()) + "\r\n";
    appendCurve(text, result.dx, result.upper);
    appendCurve(text, result.dx, result.lower);
    return text;
}

} // namespace varno::engine
