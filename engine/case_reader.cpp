#include "engine/case_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "base/sequential_text.h"
#include "engine/columns.h"
#include "model/design_input_file.h"

namespace varno::engine {

namespace {

// What the lines up to 32 hold, as messages call it.
constexpr std::string_view fieldNames[] = {
    "name",   "title", "loadCode",      "safetyClass", "nfack",    "spv",          "ptjl",      "upl",
    "lokt",   "",      "lastkomb",      "plast",       "flast",    "konsv",        "konsh",     "btg",
    "aok",    "dok",   "kavko",         "ktack",       "auk",      "duk",          "duarm",     "brandk",
    "brandb", "kutak", "reservedValue", "overhojning", "initiell", "tillkommande", "brukskomb", "nllast"};

// Whole numbers that the case has no room for outside these. Every message holds each Swedish letter at most once: see
// pages.h.
struct Limits {
    std::int16_t DesignCase::*field;
    const char* caption;
    int first, last;
};
constexpr Limits limits[] = {
    {&DesignCase::loadCode, "lastregler", 0, maxLoadCode},
    {&DesignCase::nfack, "antal fack", 1, maxSpans},
    {&DesignCase::lokt, "lastkategori", 0, maxLoadCategory},
    {&DesignCase::nllast, "antal linjelaster", 0, maxLineLoads},
};

// Foreign bytes stay out of the message: they would upset the repair of its letters.
std::string quoted(std::string_view text) {
    constexpr std::size_t longest = 20;
    std::string shown = "\"";
    for (const char c : text.substr(0, longest))
        shown += c >= ' ' && c < 0x7F && c != '^' ? c : '?';
    return shown + (text.size() > longest ? "...\"" : "\"");
}

// The number that a text is, blanks around it allowed; nothing when it is anything else or out of range.
template <typename Number>
std::optional<Number> numberIn(std::string_view cell) {
    std::string text = trimBlanks(cell);
    if (const auto comma = text.find(','); comma != std::string::npos) text[comma] = '.';
    std::ranges::replace_if(
        text, [](char c) { return c == 'd' || c == 'D'; }, 'e');
    // Only these: from_chars would take "inf" and "nan" for numbers.
    if (text.find_first_not_of("0123456789+-.eE") != std::string::npos || text.starts_with("+-")) return {};
    const char* const end = text.data() + text.size();
    Number value = 0;
    const auto read = std::from_chars(text.data() + (text.starts_with('+') ? 1 : 0), end, value);
    if (read.ec != std::errc() || read.ptr != end) return {};
    return value;
}

std::optional<std::int16_t> wholeIn(std::string_view cell) {
    using Limit = std::numeric_limits<std::int16_t>;
    const auto value = numberIn<double>(cell);
    if (!value || *value != std::floor(*value) || *value < Limit::min() || *value > Limit::max()) return {};
    return static_cast<std::int16_t>(*value);
}

class LineReader {
  public:
    explicit LineReader(CaseOnFile& target) : target_(target), case_(target.values) {}

    void read(int number, const CaseLine& line, Bytes text) {
        number_ = number;
        text_ = std::move(text);
        place_ = 0;
        std::visit(*this, line);
    }

    void operator()(CaseNameLine) { target_.name = text_; }
    void operator()(TitleLine) { target_.title = text_; }
    void operator()(IntegerLine line) {
        const auto value = required(wholeIn(text_), name(), text_);
        for (const Limits& limit : limits) {
            if (limit.field == line.field && (value < limit.first || value > limit.last))
                refuse(std::string(limit.caption) + " " + std::string(name()) + " = " +
                       std::to_string(value) + " ska vara " + std::to_string(limit.first) + " till " +
                       std::to_string(limit.last) + ".");
        }
        case_.*line.field = value;
    }
    void operator()(SafetyClassLine) {
        case_.safetyClass(case_.loadCode) = required(wholeIn(text_), name(), text_);
    }
    void operator()(RealLine line) { case_.*line.field = required(numberIn<float>(text_), name(), text_); }
    void operator()(const SpanCellsLine& line) {
        for (int i = line.first; i <= case_.nfack; ++i)
            (case_.*line.field)(i) = real<float>(line.cell, indexed(name(), i));
        if (line.field != &DesignCase::upl) return;
        // The front-end holds the end supports at 0 whatever the file says, and draws the moment curves accordingly.
        case_.upl(0) = 0;
        case_.upl(case_.nfack) = 0;
    }
    void operator()(const FactorCellsLine& line) {
        const int ruleSet = case_.loadCode;
        case_.lambdaG(ruleSet) = real<double>(line.cell, "lambdaG");
        case_.ksi(ruleSet) = numberIn<double>(next(line.cell));
        case_.lambdaQ(ruleSet) = real<double>(line.cell, "lambdaQ");
        for (FactorPerCategory* table : {&case_.psi0, &case_.psi1, &case_.psi2})
            (*table)(ruleSet, case_.lokt) = numberIn<double>(next(line.cell));
    }
    void operator()(LineLoadLine line) {
        const int i = line.index;
        const Bytes span = next(numberCell), distance = next(spanCell), load = next(spanCell);
        if (i <= case_.nllast) {
            case_.llfnr(i) = required(wholeIn(span), indexed("llfnr", i), span);
            case_.avst(i) = required(numberIn<float>(distance), indexed("avst", i), distance);
            case_.lllast(i) = required(numberIn<float>(load), indexed("lllast", i), load);
        } else {
            case_.llfnr(i) = wholeIn(span).value_or(std::int16_t{0});
            case_.avst(i) = numberIn<float>(distance).value_or(0.0f);
            case_.lllast(i) = numberIn<float>(load).value_or(0.0f);
        }
    }

  private:
    std::string_view name() const { return fieldNames[number_ - 1]; }
    // Nothing is left where an editor has cut the trailing blanks of a line.
    Bytes next(CellFormat cell) {
        const auto from = std::min(std::exchange(place_, place_ + cell.width), text_.size());
        return text_.substr(from, cell.width);
    }
    template <typename Number>
    Number real(CellFormat cell, std::string_view field) {
        const Bytes text = next(cell);
        return required(numberIn<Number>(text), field, text);
    }
    template <typename Number>
    Number required(std::optional<Number> value, std::string_view field, std::string_view text) const {
        if (!value)
            refuse(std::string(field) + " = " + quoted(text) + " är inte ett " +
                   (std::is_integral_v<Number> ? "heltal." : "tal."));
        return *value;
    }
    [[noreturn]] void refuse(const std::string& reason) const {
        throw CaseError("Rad " + std::to_string(number_) + ": " + reason);
    }

    CaseOnFile& target_;
    DesignCase& case_;
    int number_ = 0;
    Bytes text_;
    std::size_t place_ = 0;
};

} // namespace

CaseOnFile readCase(const Bytes& bytes) {
    CaseOnFile found;
    SequentialText text(bytes);
    LineReader reader(found);
    int number = 0;
    for (const CaseLine& line : caseLines) {
        ++number;
        if (text.atEnd())
            throw CaseError("Indatafilen är avkortad: rad " + std::to_string(number) + " av 37 saknas.");
        reader.read(number, line, text.readLine());
    }
    return found;
}

} // namespace varno::engine
