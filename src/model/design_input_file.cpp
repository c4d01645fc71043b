#include "model/design_input_file.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace varno {

namespace {

template <typename Number>
std::string cellOf(Number value, CellFormat cell) {
    if (!cell.isColumn()) return generalForm(value);
    std::string text = formatNumber(value, cell.pattern);
    text.resize(cell.width, ' ');
    return text;
}
std::string cellOf(std::int16_t value, const CellFormat& cell) {
    if (!cell.isColumn()) return std::to_string(value);
    return cellOf(static_cast<double>(value), cell);
}
std::string cellOf(const Factor& factor, CellFormat cell) {
    return factor ? cellOf(*factor, cell) : std::string(cell.width, ' ');
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

std::string textOf(const CaseLine& line, const CaseFile& caseFile) {
    const auto oem = [](const std::string& text) { return VARNO1::toOemLetters(encodeWindows1252(text)); };
    if (std::holds_alternative<CaseNameLine>(line)) return oem(caseFile.name);
    if (std::holds_alternative<TitleLine>(line)) return oem(caseFile.title);
    std::string text;
    forEachNumber(line, caseFile.designCase, [&](CellFormat cell, auto, auto, auto at) {
        text += cellOf(at(caseFile.designCase), cell);
    });
    return text;
}

// A column line that is too short gives empty cells, which read as 0.
void takeLine(const CaseLine& line, const Bytes& text, CaseFile& caseFile) {
    const auto letters = [&] { return decodeWindows1252(VARNO1::fromOemLetters(text)); };
    if (std::holds_alternative<CaseNameLine>(line)) caseFile.name = upperCase(letters());
    if (std::holds_alternative<TitleLine>(line)) caseFile.title = letters();
    DesignCase& designCase = caseFile.designCase;
    std::size_t position = 0;
    forEachNumber(line, designCase, [&](CellFormat cell, auto, auto, auto at) {
        const auto number = std::string_view(text).substr(std::min(position, text.size()), cell.width);
        position += cell.width;
        at(designCase) = valueOf<NumberAt<decltype(at)>>(VARNO1::parseNumber(number));
    });
    holdEndSupports(line, designCase);
}

} // namespace

} // namespace varno

namespace VARNO1 {

varno::CaseFile readDesignCase(varno::File& file, const varno::DesignCase& presets) {
    varno::CaseFile read{presets, {}, {}};
    varno::aboutFile(file.path(), varno::FileAction::reading, [&] {
        int number = 0;
        for (const varno::CaseLine& line : varno::caseLines) {
            ++number;
            try {
                varno::takeLine(line, file.readField(), read);
            } catch (const varno::RunTimeError& error) {
                throw error.atLine(number);
            }
        }
    });
    return read;
}

void writeDesignCase(varno::File& file, const varno::CaseFile& caseFile) {
    for (const varno::CaseLine& line : varno::caseLines)
        file.printLine(varno::textOf(line, caseFile));
}

} // namespace VARNO1
