#include "model/case_check.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "base/numbers.h"
#include "base/run_time_error.h"
#include "model/strict_number.h"

namespace varno {

namespace {

std::optional<CaseFile> readBack(const Bytes& bytes, const DesignCase& presets) {
    try {
        return VARNO1::readDesignCase(SequentialText(bytes), presets);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

constexpr std::string_view lineEnd = "\r\n";

// Where the first two lines end, which the name and the title take.
std::size_t textsEnd(const Bytes& written) {
    const auto first = written.find(lineEnd);
    const auto second = first == Bytes::npos ? first : written.find(lineEnd, first + lineEnd.size());
    return second == Bytes::npos ? 0 : second + lineEnd.size();
}

// Without the texts the numbers stand where they belong, whatever a comma in a title does to them in the file itself.
Bytes withoutTexts(const Bytes& written) {
    const std::size_t end = textsEnd(written);
    return end == 0 ? written : "\r\n\r\n" + written.substr(end);
}

// The shortest text that reads back as the same number, without an exponent: "1e+07" says little to a reader.
template <typename Real>
std::string textOf(Real value) {
    std::array<char, 400> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
    return {text.data(), end};
}

double plain(const Factor& value) {
    return value.value_or(0);
}
float plain(float value) {
    return value;
}

} // namespace

SavedCheck checkSaved(const CaseFile& caseFile, const Bytes& written) {
    SavedCheck check;
    const std::optional<CaseFile> numbers = readBack(withoutTexts(written), caseFile.designCase);
    SequentialText text(written);
    const std::string name = upperCase(decodeWindows1252(VARNO1::fromOemLetters(text.readField())));
    const std::string title =
        text.atEnd() ? std::string() : decodeWindows1252(VARNO1::fromOemLetters(text.readField()));
    check.shifted = !numbers;
    // Texts that end with their lines leave the numbers where they are.
    if (numbers && text.position() != textsEnd(written)) {
        const std::optional<CaseFile> whole = readBack(written, caseFile.designCase);
        check.shifted = !whole || whole->designCase != numbers->designCase;
    }
    if (name != caseFile.name) check.lost.push_back({{1, 0}, caseFile.name, name});
    if (title != caseFile.title) check.lost.push_back({{2, 0}, caseFile.title, title});
    if (!numbers) return check;

    CasePlace place;
    for (const CaseLine& line : caseLines) {
        place = {place.line + 1, 0};
        forEachNumber(line, caseFile.designCase, [&](const CellFormat& cell, auto, auto, auto at) {
            if (cell.isColumn()) ++place.cell;
            const auto kept = plain(at(caseFile.designCase));
            const auto read = plain(at(numbers->designCase));
            if (kept != read) check.lost.push_back({place, textOf(kept), textOf(read)});
        });
    }
    return check;
}

// Any file

namespace {

using Kind = FileFault::Kind;

// The whole of the text is one number, as a person would read it; the reader takes less.
bool isNumber(const std::string& text) {
    double number = 0;
    return readStrictly(text, number) != std::errc::invalid_argument;
}

class LineCheck {
  public:
    explicit LineCheck(std::vector<FileFault>& faults) : faults_(faults) {
        // Without a number of spans nobody knows how many cells there should be.
        counts_.nfack = -1;
    }

    void line(int number, const CaseLine& content, std::string_view text) {
        place_ = {number, 0};
        // Rule set 0 has no factors.
        const bool unused = std::holds_alternative<FactorCellsLine>(content) && ruleSet_ == "0";
        if (const auto value = valueIn(text); value && !unused) numbers(content, text, *value);
    }
    bool open() const { return open_; }

  private:
    void add(Kind kind, std::string_view found, IntegerLine range = {nullptr, 0, 0}) {
        faults_.push_back({.kind = kind,
                           .place = place_,
                           .found = decodeWindows1252(found.substr(0, 40)),
                           .first = range.first,
                           .last = range.last});
    }

    // The one value of a line.
    std::optional<std::string_view> valueIn(std::string_view line) {
        if (line.empty()) return line;
        const auto begin = line.find_first_not_of(' ');
        open_ = begin != std::string_view::npos && line[begin] == '"' &&
                line.find('"', begin + 1) == std::string_view::npos;
        SequentialText text(line);
        const std::string_view value = text.readField();
        // A comma that ends the line begins another value, which the next line end closes.
        if (!open_ && text.atEnd() && !line.ends_with(',')) return value;
        add(open_ ? Kind::openQuote : Kind::severalValues, line);
        return std::nullopt;
    }

    // What stands behind the last cell is no fault: nobody reads it.
    void numbers(const CaseLine& content, std::string_view line, std::string_view value) {
        const auto* const integer = std::get_if<IntegerLine>(&content);
        std::size_t begin = 0;
        bool lost = false; // where the cells stand
        forEachNumber(content, counts_, [&](CellFormat format, auto, auto, auto at) {
            if (format.isColumn() && !lost) lost = !cellAt(begin, line, value);
            if (lost) return;
            constexpr bool whole = std::is_same_v<NumberAt<decltype(at)>, std::int16_t>;
            const bool good =
                number(value.substr(begin, format.width), whole, integer ? *integer : anyInteger);
            begin += format.width;
            if (good && integer && integer->field == &DesignCase::nfack)
                counts_.nfack = toInteger(VARNO1::parseNumber(value));
        });
        if (integer && integer->field == &DesignCase::loadCode) ruleSet_ = trimBlanks(value);
    }

    bool cellAt(std::size_t begin, std::string_view line, std::string_view value) {
        if (line.starts_with(' ')) {
            add(Kind::blanksAhead, line);
            return false;
        }
        ++place_.cell;
        if (begin < value.size()) return true;
        add(Kind::cellMissing, value);
        return false;
    }

    bool number(std::string_view text, bool whole, IntegerLine range) {
        const Bytes found = trimBlanks(text);
        const std::optional<double> plain = VARNO1::numberWrittenPlainly(found);
        const double value = plain ? *plain : VARNO1::parseNumber(found);
        if (!plain && !isNumber(found))
            add(Kind::notANumber, found);
        else if (whole && value != std::floor(value))
            add(Kind::notWhole, found);
        else if (whole && (value < range.first || value > range.last))
            add(Kind::outOfRange, found, range);
        else
            return true;
        return false;
    }

    static constexpr IntegerLine anyInteger{nullptr};

    std::vector<FileFault>& faults_;
    CasePlace place_;
    Bytes ruleSet_;
    DesignCase counts_; // only the number of spans
    bool open_ = false;
};

} // namespace

std::vector<FileFault> checkFile(const Bytes& bytes) {
    std::vector<FileFault> faults;
    LineCheck check(faults);
    SequentialText text(bytes);
    const int expected = static_cast<int>(caseLines.size());
    int count = 0;
    while (!text.atEnd()) {
        const std::string_view line = text.readLine();
        const int number = ++count;
        if (number <= expected && !check.open())
            check.line(number, caseLines[static_cast<std::size_t>(number - 1)], line);
    }
    if (count == expected) return faults;
    FileFault ofTheWhole{.place = {count < expected ? std::max(count, 1) : expected + 1, 0}, .number = count};
    if (count > 0) ofTheWhole.kind = count < expected ? Kind::tooFewLines : Kind::tooManyLines;
    faults.insert(faults.begin(), ofTheWhole);
    return faults;
}

bool isNoCase(const std::vector<FileFault>& faults) {
    return std::ranges::any_of(faults, [](const FileFault& fault) {
        // A case always knows its rule set and its number of spans.
        const bool head = fault.place.line == 3 || fault.place.line == 5;
        return fault.kind == Kind::empty || (head && fault.kind == Kind::notANumber) ||
               (fault.kind == Kind::tooFewLines && fault.number < 5);
    });
}

} // namespace varno
