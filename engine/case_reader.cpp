#include "engine/case_reader.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <type_traits>

#include "base/sequential_text.h"
#include "engine/columns.h"
#include "model/design_input_file.h"
#include "model/record_fields.h"
#include "model/strict_number.h"

namespace varno::engine {

namespace {

// A line load may stand this far outside the slab (m): its position is a sum of rounded lengths.
constexpr double lengthTolerance = 1e-5;

// Every message holds each Swedish letter at most once; see pages.h.
[[noreturn]] void refuse(int line, const std::string& reason) {
    throw CaseError("Rad " + std::to_string(line) + ": " + reason);
}
[[noreturn]] void refuse(int line, const std::string& field, double value, const std::string& rule) {
    refuse(line, field + " = " + fitted(value, 12, 3) + " " + rule);
}

void checkRange(int line, const std::string& field, int value, int first, int last) {
    if (value < first || value > last)
        refuse(line, field + " = " + std::to_string(value) + " ska vara " + std::to_string(first) + " till " +
                         std::to_string(last) + ".");
}

// Of the fields whose numbers have a range.
std::string captionOf(std::int16_t DesignCase::*field) {
    if (field == &DesignCase::loadCode) return "lastregler ";
    if (field == &DesignCase::nfack) return "antal fack ";
    return field == &DesignCase::lokt ? "lastkategori " : "antal linjelaster ";
}

// Foreign bytes stay out of the message: they would upset the repair of its letters.
std::string quoted(std::string_view text) {
    constexpr std::size_t longest = 20;
    std::string shown = "\"";
    for (const char c : text.substr(0, longest))
        shown += c >= ' ' && c < 0x7F && c != '^' ? c : '?';
    return shown + (text.size() > longest ? "...\"" : "\"");
}

// The number that a cell is, blanks around it allowed; nothing when it is anything else or out of range.
template <typename Number>
std::optional<Number> numberIn(std::string_view cell) {
    std::string text = trimBlanks(cell);
    if (const auto comma = text.find(','); comma != std::string::npos) text[comma] = '.';
    std::conditional_t<std::is_same_v<Number, float>, float, double> value = 0;
    if (readStrictly(text, value) != std::errc()) return {};
    if constexpr (std::is_same_v<Number, std::int16_t>) {
        using Limit = std::numeric_limits<std::int16_t>;
        if (value != std::floor(value) || value < Limit::min() || value > Limit::max()) return {};
    }
    return static_cast<Number>(value);
}

void readLine(int number, const CaseLine& line, std::string_view text, CaseOnFile& target) {
    DesignCase& c = target.values;
    if (std::holds_alternative<CaseNameLine>(line)) target.name = text;
    if (std::holds_alternative<TitleLine>(line)) target.title = text;
    std::size_t place = 0;
    forEachNumber(line, c, [&](CellFormat format, auto field, std::optional<int> element, auto at) {
        using Number = NumberAt<decltype(at)>;
        // Nothing is left where an editor has cut the trailing blanks of a line.
        const std::string_view found = text.substr(std::min(place, text.size()), format.width);
        place += format.width;
        const std::string name(recordFieldName(field));
        const bool optional = name == "ksi" || name.starts_with("psi") ||
                              (std::holds_alternative<LineLoadLine>(line) && *element > c.nllast);
        const std::optional<Number> value = numberIn<Number>(found);
        if (!value && !optional)
            refuse(number, (element ? indexed(name, *element) : name) + " = " + quoted(found) +
                               " är inte ett " + (std::is_integral_v<Number> ? "heltal." : "tal."));
        at(c) = value.value_or(Number());
    });
    if (const auto* integer = std::get_if<IntegerLine>(&line))
        checkRange(number, captionOf(integer->field) + std::string(recordFieldName(integer->field)),
                   c.*integer->field, integer->first, integer->last);
    holdEndSupports(line, c);
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
        checkRange(line, "linjelastens fack " + indexed("llfnr", i), c.llfnr(i), 1, c.nfack);
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

CaseOnFile readCase(const Bytes& bytes) {
    CaseOnFile found;
    SequentialText text(bytes);
    int number = 0;
    for (const CaseLine& line : caseLines) {
        ++number;
        if (text.atEnd())
            throw CaseError("Indatafilen är avkortad: rad " + std::to_string(number) + " av 37 saknas.");
        readLine(number, line, text.readLine(), found);
    }
    return found;
}

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
