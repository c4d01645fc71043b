#include "model/design_input_file.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace varno {

namespace {

std::string inCell(std::string text, CellFormat cell) {
    text.resize(cell.width, ' ');
    return text;
}

template <typename Number>
std::string cellOf(Number value, CellFormat cell) {
    return inCell(formatNumber(value, cell.pattern), cell);
}

std::string cellOf(const Factor& factor, CellFormat cell) {
    return factor ? cellOf(*factor, cell) : inCell("", cell);
}

// The cells of a column line from left to right. A line that is too short gives empty cells, which read as 0.
class CellReader {
  public:
    explicit CellReader(Bytes line) : line_(std::move(line)) {}

    double next(CellFormat cell) {
        const Bytes text = position_ < line_.size() ? line_.substr(position_, cell.width) : Bytes();
        position_ += cell.width;
        return VARNO1::parseNumber(text);
    }

  private:
    Bytes line_;
    std::size_t position_ = 0;
};

double finite(double value) {
    if (!std::isfinite(value)) throw RunTimeError(errOverflow);
    return value;
}

class LineWriter {
  public:
    explicit LineWriter(const CaseFile& caseFile) : file_(caseFile), case_(caseFile.designCase) {}

    std::string operator()(CaseNameLine) const { return oem(file_.name); }
    std::string operator()(TitleLine) const { return oem(file_.title); }
    std::string operator()(IntegerLine line) const { return std::to_string(case_.*line.field); }
    std::string operator()(SafetyClassLine) const {
        return std::to_string(case_.safetyClass(case_.loadCode));
    }
    std::string operator()(RealLine line) const { return generalForm(case_.*line.field); }
    std::string operator()(const SpanCellsLine& line) const {
        std::string text;
        for (int i = line.first; i <= case_.nfack; ++i)
            text += cellOf((case_.*line.field)(i), line.cell);
        return text;
    }
    std::string operator()(const FactorCellsLine& line) const {
        const int ruleSet = case_.loadCode;
        const int category = case_.lokt;
        return cellOf(case_.lambdaG(ruleSet), line.cell) + cellOf(case_.ksi(ruleSet), line.cell) +
               cellOf(case_.lambdaQ(ruleSet), line.cell) + cellOf(case_.psi0(ruleSet, category), line.cell) +
               cellOf(case_.psi1(ruleSet, category), line.cell) +
               cellOf(case_.psi2(ruleSet, category), line.cell);
    }
    std::string operator()(LineLoadLine line) const {
        return cellOf(static_cast<double>(case_.llfnr(line.index)), numberCell) +
               cellOf(case_.avst(line.index), spanCell) + cellOf(case_.lllast(line.index), spanCell);
    }

  private:
    static std::string oem(const std::string& text) { return VARNO1::toOemLetters(encodeWindows1252(text)); }

    const CaseFile& file_;
    const DesignCase& case_;
};

class LineReader {
  public:
    explicit LineReader(CaseFile& caseFile) : file_(caseFile), case_(caseFile.designCase) {}

    void read(const CaseLine& line, Bytes text) {
        text_ = std::move(text);
        std::visit(*this, line);
    }

    void operator()(CaseNameLine) { file_.name = upperCase(letters()); }
    void operator()(TitleLine) { file_.title = letters(); }
    void operator()(IntegerLine line) { case_.*line.field = number(); }
    void operator()(SafetyClassLine) { case_.safetyClass(case_.loadCode) = number(); }
    void operator()(RealLine line) { case_.*line.field = toSingle(VARNO1::parseNumber(text_)); }
    void operator()(const SpanCellsLine& line) {
        CellReader cells(text_);
        for (int i = line.first; i <= case_.nfack; ++i)
            (case_.*line.field)(i) = toSingle(cells.next(line.cell));
        if (line.field == &DesignCase::upl) {
            // The end supports have no width in memory, whatever an older file says.
            case_.upl(0) = 0;
            case_.upl(case_.nfack) = 0;
        }
    }
    void operator()(const FactorCellsLine& line) {
        CellReader cells(text_);
        const int ruleSet = case_.loadCode;
        const int category = case_.lokt;
        for (FactorPerRuleSet* table : {&case_.lambdaG, &case_.ksi, &case_.lambdaQ}) {
            (*table)(ruleSet) = finite(cells.next(line.cell));
        }
        for (FactorPerCategory* table : {&case_.psi0, &case_.psi1, &case_.psi2}) {
            (*table)(ruleSet, category) = finite(cells.next(line.cell));
        }
    }
    void operator()(LineLoadLine line) {
        CellReader cells(text_);
        case_.llfnr(line.index) = toInteger(cells.next(numberCell));
        case_.avst(line.index) = toSingle(cells.next(spanCell));
        case_.lllast(line.index) = toSingle(cells.next(spanCell));
    }

  private:
    std::int16_t number() const { return toInteger(VARNO1::parseNumber(text_)); }
    std::string letters() const { return decodeWindows1252(VARNO1::fromOemLetters(text_)); }

    CaseFile& file_;
    DesignCase& case_;
    Bytes text_;
};

} // namespace

} // namespace varno

namespace VARNO1 {

varno::CaseFile readDesignCase(varno::File& file, const varno::DesignCase& presets) {
    varno::CaseFile read{presets, {}, {}};
    varno::LineReader reader(read);
    varno::aboutFile(file.path(), varno::FileAction::reading, [&] {
        int number = 0;
        for (const varno::CaseLine& line : varno::caseLines) {
            ++number;
            try {
                reader.read(line, file.readField());
            } catch (const varno::RunTimeError& error) {
                throw error.atLine(number);
            }
        }
    });
    return read;
}

void writeDesignCase(varno::File& file, const varno::CaseFile& caseFile) {
    const varno::LineWriter writer(caseFile);
    for (const varno::CaseLine& line : varno::caseLines)
        file.printLine(std::visit(writer, line));
}

} // namespace VARNO1
