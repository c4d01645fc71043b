#include "model/case_check.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "base/byte_files.h"
#include "base/numbers.h"
#include "base/run_time_error.h"

namespace varno {

namespace {

std::optional<CaseFile> readBack(const Bytes& bytes, const DesignCase& presets) {
    try {
        ByteFiles memory;
        memory.content[""] = bytes;
        File file(memory, "", FileMode::input, 0, 1);
        return VARNO1::readDesignCase(file, presets);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

// The name and the title take the first two lines. Without them the numbers stand where they belong, whatever
// a comma in a title does to them in the file itself.
Bytes withoutTexts(const Bytes& written) {
    const auto first = written.find("\r\n");
    const auto second = first == Bytes::npos ? first : written.find("\r\n", first + 2);
    return second == Bytes::npos ? written : "\r\n" + written.substr(second);
}

std::string textOf(std::int16_t value) {
    return std::to_string(value);
}
// The shortest text that reads back as the same number, without an exponent: "1e+07" says little to a reader.
template <typename Real>
std::string realText(Real value) {
    std::array<char, 400> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
    return {text.data(), end};
}
std::string textOf(float value) {
    return realText(value);
}
std::string textOf(const Factor& value) {
    return realText(value.value_or(0));
}
bool same(std::int16_t a, std::int16_t b) {
    return a == b;
}
bool same(float a, float b) {
    return a == b;
}
bool same(const Factor& a, const Factor& b) {
    return a.value_or(0) == b.value_or(0);
}

// Compares two records line by line, as far as a file holds them.
class Comparison {
  public:
    Comparison(const DesignCase& kept, const DesignCase& read, std::vector<LostValue>& lost)
        : kept_(kept), read_(read), lost_(lost) {}

    void line(int number, const CaseLine& content) {
        place_ = {number, 0};
        std::visit(*this, content);
    }

    void operator()(CaseNameLine) {}
    void operator()(TitleLine) {}
    void operator()(IntegerLine line) { compare(kept_.*line.field, read_.*line.field); }
    void operator()(SafetyClassLine) {
        compare(kept_.safetyClass(kept_.loadCode), read_.safetyClass(kept_.loadCode));
    }
    void operator()(RealLine line) { compare(kept_.*line.field, read_.*line.field); }
    void operator()(const SpanCellsLine& line) {
        for (int i = line.first; i <= kept_.nfack; ++i)
            cell((kept_.*line.field)(i), (read_.*line.field)(i));
    }
    void operator()(const FactorCellsLine&) {
        const int ruleSet = kept_.loadCode;
        const int category = kept_.lokt;
        for (const auto table : {&DesignCase::lambdaG, &DesignCase::ksi, &DesignCase::lambdaQ})
            cell((kept_.*table)(ruleSet), (read_.*table)(ruleSet));
        for (const auto table : {&DesignCase::psi0, &DesignCase::psi1, &DesignCase::psi2})
            cell((kept_.*table)(ruleSet, category), (read_.*table)(ruleSet, category));
    }
    void operator()(LineLoadLine line) {
        cell(kept_.llfnr(line.index), read_.llfnr(line.index));
        cell(kept_.avst(line.index), read_.avst(line.index));
        cell(kept_.lllast(line.index), read_.lllast(line.index));
    }

  private:
    template <typename Value>
    void cell(const Value& kept, const Value& read) {
        ++place_.cell;
        compare(kept, read);
    }
    template <typename Value>
    void compare(const Value& kept, const Value& read) {
        if (!same(kept, read)) lost_.push_back({place_, textOf(kept), textOf(read)});
    }

    const DesignCase& kept_;
    const DesignCase& read_;
    std::vector<LostValue>& lost_;
    CasePlace place_;
};

} // namespace

SavedCheck checkSaved(const CaseFile& caseFile, const Bytes& written) {
    SavedCheck check;
    const std::optional<CaseFile> whole = readBack(written, caseFile.designCase);
    const std::optional<CaseFile> numbers = readBack(withoutTexts(written), caseFile.designCase);
    check.shifted = !whole || !numbers || whole->designCase != numbers->designCase;

    SequentialText text(written);
    const std::string name = upperCase(decodeWindows1252(VARNO1::fromOemLetters(text.readField())));
    const std::string title =
        text.atEnd() ? std::string() : decodeWindows1252(VARNO1::fromOemLetters(text.readField()));
    if (name != caseFile.name) check.lost.push_back({{1, 0}, caseFile.name, name});
    if (title != caseFile.title) check.lost.push_back({{2, 0}, caseFile.title, title});
    if (!numbers) return check;

    Comparison comparison(caseFile.designCase, numbers->designCase, check.lost);
    int number = 0;
    for (const CaseLine& content : caseLines)
        comparison.line(++number, content);
    return check;
}

// Any file

namespace {

using Kind = FileFault::Kind;

Bytes trimmed(std::string_view text) {
    return trimBlanks(text);
}

// The whole of the text is one number, as a person would read it; the reader takes less.
bool isNumber(std::string_view text) {
    std::size_t at = 0;
    const auto digits = [&] {
        const std::size_t begin = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9')
            ++at;
        return at - begin;
    };
    const auto sign = [&] {
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    };
    sign();
    std::size_t count = digits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        count += digits();
    }
    if (count == 0) return false;
    if (at < text.size() && std::string_view("EeDd").find(text[at]) != std::string_view::npos) {
        ++at;
        sign();
        if (digits() == 0) return false;
    }
    return at == text.size();
}

struct Range {
    int first;
    int last;
};

constexpr Range anyInteger{-32768, 32767};

// What a whole number may be: outside it the reader stops, or the form has no place for it.
Range rangeOf(std::int16_t DesignCase::*field) {
    if (field == &DesignCase::loadCode) return {0, maxLoadCode};
    if (field == &DesignCase::lokt) return {0, maxLoadCategory};
    if (field == &DesignCase::nfack) return {1, maxSpans};
    if (field == &DesignCase::nllast) return {0, maxLineLoads};
    return anyInteger;
}

class LineCheck {
  public:
    explicit LineCheck(std::vector<FileFault>& faults) : faults_(faults) {}

    void line(int number, const CaseLine& content, const Bytes& text) {
        place_ = {number, 0};
        line_ = text;
        if (oneValue()) std::visit(*this, content);
    }
    int spans() const { return spans_; }
    bool open() const { return open_; }

    void operator()(CaseNameLine) {}
    void operator()(TitleLine) {}
    void operator()(IntegerLine line) {
        const bool spanCount = line.field == &DesignCase::nfack;
        if (whole(value_, rangeOf(line.field)) && spanCount) {
            spans_ = static_cast<int>(VARNO1::parseNumber(value_));
        }
        ruleSet_ = line.field == &DesignCase::loadCode ? trimmed(value_) : ruleSet_;
    }
    void operator()(SafetyClassLine) { whole(value_, anyInteger); }
    void operator()(RealLine) { number(value_); }
    void operator()(const SpanCellsLine& line) {
        // Without a number of spans nobody knows how many cells there should be.
        if (spans_ > 0)
            cells(std::vector<CellFormat>(static_cast<std::size_t>(spans_ - line.first + 1), line.cell));
    }
    void operator()(const FactorCellsLine& line) {
        // Rule set 0 has no factors.
        if (ruleSet_ != "0") cells(std::vector<CellFormat>(6, line.cell));
    }
    void operator()(LineLoadLine) { cells({numberCell, spanCell, spanCell}); }

  private:
    void add(Kind kind, const Bytes& found, Range range = {0, 0}) {
        faults_.push_back({.kind = kind,
                           .place = place_,
                           .found = decodeWindows1252(found.substr(0, 40)),
                           .number = 0,
                           .first = range.first,
                           .last = range.last});
    }

    // Takes the one value of the line.
    bool oneValue() {
        if (line_.empty()) {
            value_.clear();
            return true;
        }
        const auto begin = line_.find_first_not_of(' ');
        open_ = begin != Bytes::npos && line_[begin] == '"' && line_.find('"', begin + 1) == Bytes::npos;
        if (open_) {
            add(Kind::openQuote, line_);
            return false;
        }
        SequentialText text(line_);
        value_ = text.readField();
        // A comma that ends the line begins another value, which the next line end closes.
        if (!text.atEnd() || line_.ends_with(',')) {
            add(Kind::severalValues, line_);
            return false;
        }
        return true;
    }

    bool number(const Bytes& text) {
        if (isNumber(trimmed(text))) return true;
        add(Kind::notANumber, trimmed(text));
        return false;
    }

    bool whole(const Bytes& text, Range range) {
        if (!number(text)) return false;
        const double value = VARNO1::parseNumber(text);
        if (value != std::floor(value)) {
            add(Kind::notWhole, trimmed(text));
            return false;
        }
        if (value < range.first || value > range.last) {
            add(Kind::outOfRange, trimmed(text), range);
            return false;
        }
        return true;
    }

    // What stands behind the last cell is no fault: nobody reads it.
    void cells(const std::vector<CellFormat>& formats) {
        if (line_.starts_with(' ')) {
            add(Kind::blanksAhead, line_);
            return;
        }
        std::size_t at = 0;
        for (const CellFormat& format : formats) {
            ++place_.cell;
            if (at >= value_.size()) {
                add(Kind::cellMissing, value_);
                return;
            }
            const Bytes text = value_.substr(at, format.width);
            at += format.width;
            if (format.pattern == numberCell.pattern)
                whole(text, anyInteger);
            else
                number(text);
        }
    }

    std::vector<FileFault>& faults_;
    CasePlace place_;
    Bytes line_;
    Bytes value_;
    Bytes ruleSet_;
    int spans_ = 0;
    bool open_ = false;
};

// The first lines of a file, and how many it has.
struct Lines {
    std::vector<Bytes> first;
    int count = 0;
};

Lines linesOf(const Bytes& bytes) {
    Lines lines;
    for (std::size_t at = 0; at < bytes.size(); ++lines.count) {
        const auto end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
        if (lines.first.size() < caseLines.size()) lines.first.push_back(bytes.substr(at, end - at));
        const bool both = end + 1 < bytes.size() && bytes[end] == '\r' && bytes[end + 1] == '\n';
        at = end + (both ? 2 : 1);
    }
    return lines;
}

} // namespace

std::vector<FileFault> checkFile(const Bytes& bytes) {
    std::vector<FileFault> faults;
    const Lines lines = linesOf(bytes);
    const auto ofTheWhole = [&](Kind kind, int line) {
        FileFault fault;
        fault.kind = kind;
        fault.place.line = line;
        fault.number = lines.count;
        faults.push_back(fault);
    };
    const int expected = static_cast<int>(caseLines.size());
    if (lines.count == 0)
        ofTheWhole(Kind::empty, 1);
    else if (lines.count < expected)
        ofTheWhole(Kind::tooFewLines, lines.count);
    else if (lines.count > expected)
        ofTheWhole(Kind::tooManyLines, expected + 1);
    LineCheck check(faults);
    for (std::size_t i = 0; i < lines.first.size() && !check.open(); ++i)
        check.line(static_cast<int>(i) + 1, caseLines[i], lines.first[i]);
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
