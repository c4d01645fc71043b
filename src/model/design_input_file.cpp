#include "model/design_input_file.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace varno {

namespace {

template <typename Number>
void appendNumber(std::string& text, Number value, CellFormat cell) {
    if (cell.isColumn())
        varno::appendNumber(text, value, cell.pattern);
    else
        text += generalForm(value);
}
void appendNumber(std::string& text, std::int16_t value, CellFormat cell) {
    if (cell.isColumn())
        varno::appendNumber(text, static_cast<double>(value), cell.pattern);
    else
        text += std::to_string(value);
}
void appendNumber(std::string& text, const Factor& factor, CellFormat cell) {
    if (factor) appendNumber(text, *factor, cell);
}

template <typename Number>
void appendCell(std::string& text, const Number& number, CellFormat cell) {
    const std::size_t begin = text.size();
    appendNumber(text, number, cell);
    if (cell.isColumn()) text.resize(begin + cell.width, ' ');
}

template <typename Value>
Value valueOf(double number) {
    if constexpr (std::is_same_v<Value, std::int16_t>)
        return toInteger(number);
    else if constexpr (std::is_same_v<Value, float>)
        return toSingle(number);
    else if (std::isfinite(number))
        return number;
    throw RunTimeError(errOverflow);
}

void appendLine(Bytes& text, const CaseLine& line, const CaseFile& caseFile) {
    const auto oem = [](const std::string& title) { return VARNO1::toOemLetters(encodeWindows1252(title)); };
    if (std::holds_alternative<CaseNameLine>(line)) text += oem(caseFile.name);
    if (std::holds_alternative<TitleLine>(line)) text += oem(caseFile.title);
    forEachNumber(line, caseFile.designCase, [&](CellFormat cell, auto, auto, auto at) {
        appendCell(text, at(caseFile.designCase), cell);
    });
}

// A column line that is too short gives empty cells, which read as 0.
void takeLine(const CaseLine& line, std::string_view text, CaseFile& caseFile) {
    const auto letters = [&] { return decodeWindows1252(VARNO1::fromOemLetters(text)); };
    if (std::holds_alternative<CaseNameLine>(line)) caseFile.name = upperCase(letters());
    if (std::holds_alternative<TitleLine>(line)) caseFile.title = letters();
    DesignCase& designCase = caseFile.designCase;
    std::size_t position = 0;
    forEachNumber(line, designCase, [&](CellFormat cell, auto, auto, auto at) {
        const auto number = text.substr(std::min(position, text.size()), cell.width);
        position += cell.width;
        at(designCase) = valueOf<NumberAt<decltype(at)>>(VARNO1::parseNumber(number));
    });
    holdEndSupports(line, designCase);
}

// From a file or a text.
template <typename Source>
CaseFile readLines(Source& source, const DesignCase& presets) {
    CaseFile read{presets, {}, {}};
    int number = 0;
    for (const CaseLine& line : caseLines) {
        ++number;
        try {
            takeLine(line, source.readField(), read);
        } catch (const RunTimeError& error) {
            throw error.atLine(number);
        }
    }
    return read;
}

} // namespace

} // namespace varno

namespace VARNO1 {

varno::CaseFile readDesignCase(varno::File& file, const varno::DesignCase& presets) {
    return varno::aboutFile(file.path(), varno::FileAction::reading,
                            [&] { return varno::readLines(file, presets); });
}

varno::CaseFile readDesignCase(varno::SequentialText text, const varno::DesignCase& presets) {
    return varno::readLines(text, presets);
}

void writeDesignCase(varno::File& file, const varno::CaseFile& caseFile) {
    varno::Bytes text;
    for (const varno::CaseLine& line : varno::caseLines) {
        text.clear();
        varno::appendLine(text, line, caseFile);
        file.printLine(text);
    }
}

varno::Bytes writtenDesignCase(const varno::CaseFile& caseFile) {
    varno::Bytes text;
    constexpr std::size_t enough = 1024; // for ten spans
    text.reserve(enough);
    for (const varno::CaseLine& line : varno::caseLines) {
        varno::appendLine(text, line, caseFile);
        text += "\r\n";
    }
    return text;
}

} // namespace VARNO1
