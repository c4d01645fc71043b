#include "engine/moment_file.h"

#include "engine/numbers.h"

namespace varnowb {
namespace {

constexpr int kDecimals = 6;
constexpr std::size_t kPerLine = 7; // three lines for the 21 moments of a span

void appendCurve(std::string& text, const std::vector<double>& dx, const std::vector<Curve>& curves) {
    for (std::size_t i = 0; i < curves.size(); ++i) {
        text += fixed(dx[i], kDecimals) + "\r\n";
        for (std::size_t k = 0; k < curves[i].size(); ++k)
            text += fixed(curves[i][k], kDecimals) + ((k + 1) % kPerLine == 0 ? "\r\n" : ",");
    }
}

} // namespace

std::string momentFile(const Envelope& result) {
    std::string text = std::to_string(result.dx.size()) + "\r\n";
    appendCurve(text, result.dx, result.upper);
    appendCurve(text, result.dx, result.lower);
    return text;
}

} // namespace varnowb
