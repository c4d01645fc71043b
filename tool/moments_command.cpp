#include <algorithm>
#include <cmath>
#include <optional>
#include <ostream>
#include <utility>

#include "base/numbers.h"
#include "diagram/curve_values.h"
#include "tool/commands.h"

namespace varno::tool {

namespace {

class Csv {
  public:
    Csv(std::ostream& out, bool spreadsheet)
        : out_(out), separator_(spreadsheet ? ';' : ','), decimal_(spreadsheet ? ',' : '.') {}

    template <typename... Cells>
    void row(const Cells&... cells) {
        bool first = true;
        ((out_ << (std::exchange(first, false) ? "" : std::string(1, separator_)) << text(cells)), ...);
        out_ << '\n';
    }

  private:
    static std::string text(const char* word) { return word; }
    static std::string text(int number) { return std::to_string(number); }
    std::string text(double number) const {
        std::string digits = generalForm(number);
        std::ranges::replace(digits, '.', decimal_);
        return digits;
    }
    std::string text(float number) const {
        std::string digits = generalForm(number);
        std::ranges::replace(digits, '.', decimal_);
        return digits;
    }

    std::ostream& out_;
    char separator_;
    char decimal_;
};

// Sums of singles end in noise; a tenth of a millimetre is enough for a place.
double rounded(double metres) {
    return std::round(metres * 1e4) / 1e4;
}

} // namespace

ExitCode printMoments(const Session& session, const Request& request) {
    std::optional<DesignCase> designCase;
    if (!request.file.empty()) designCase = loadCase(session.opener, request.file).designCase;
    File file = session.opener.openFile(request.moments, FileMode::input);
    const CurveValues values = readCurveValues(file);
    if (values.spans() == 0)
        throw InputError(request.moments +
                         " har inga kurvor: en fil med momentkurvor börjar med antalet fack.");
    if (designCase && designCase->nfack != values.spans())
        throw InputError(request.moments + " har " + std::to_string(values.spans()) + " fack, men " +
                         request.file + " har " + std::to_string(designCase->nfack) +
                         ": kurvorna hör till ett annat fall.");
    Csv csv(session.out, request.spreadsheet);
    csv.row("fack", "punkt", "x (m)", "kurva 1 (kNm/m)", "kurva 2 (kNm/m)");
    for (int span = 1; span <= values.spans(); ++span) {
        const auto at = static_cast<std::size_t>(span - 1);
        const SpanMoments& one = values.curves[0][at];
        const SpanMoments& two = values.curves[1][at];
        for (int k = 0; k <= lastMoment; ++k) {
            const auto point = static_cast<std::size_t>(k);
            const double place = designCase
                                     ? supportPlace(*designCase, span) + pointPlace(*designCase, span, one, k)
                                     : static_cast<double>(k) * one.dx;
            csv.row(span, k, rounded(place), one.moments[point], two.moments[point]);
        }
    }
    return done;
}

} // namespace varno::tool
