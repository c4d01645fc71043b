#include "input/grid_clipboard.h"

#include <algorithm>

#include "base/text.h"
#include "input/form_layout.h"
#include "input/input_form.h"

namespace varno {

namespace {

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts(1);
    for (const char letter : text) {
        if (letter == separator) {
            parts.emplace_back();
        } else {
            parts.back() += letter;
        }
    }
    return parts;
}

bool inGrid(Control control) {
    return gridNeighbour(control, 0).has_value();
}

} // namespace

ClipboardRows clipboardRows(const std::string& text) {
    std::string lines = text;
    std::erase(lines, '\r');
    while (lines.ends_with('\n'))
        lines.pop_back();
    ClipboardRows rows;
    for (const std::string& line : split(lines, '\n'))
        rows.push_back(split(line, '\t'));
    if (std::ranges::any_of(rows, [](const auto& row) { return row.size() > 1; })) return rows;
    ClipboardRows one(1);
    for (const auto& row : rows)
        one.front().push_back(row.front());
    return one;
}

// Locked cells are no cells.
int InputForm::openCells(const TextField& row) const {
    if (row.field == Field::flast && context_.designCase.lokt != 0) return 0;
    return std::min(maxSpans, lastCell(row));
}

bool InputForm::fillCell(Control cell, const std::string& number, Redraws& drawn) {
    const TextField& row = *textField(cell.field);
    if (cell.index < 1 || cell.index > openCells(row)) return false;
    context_.form.setText(cell, number);
    context_.boxes().changed(cell);
    context_.markChanged();
    aboutField(accessibleName(cell), [&] {
        if (storeCell(row, cell.index)) drawn = std::max(drawn, row.redraws);
    });
    return true;
}

// False when numbers are left over.
bool InputForm::fillRows(Control from, const ClipboardRows& rows, Redraws& drawn) {
    bool all = true;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const auto first = gridNeighbour(from, static_cast<int>(r));
        for (std::size_t k = 0; k < rows[r].size(); ++k) {
            const std::string number = trimBlanks(rows[r][k]);
            if (number.empty()) continue;
            if (!first || !fillCell({first->field, first->index + static_cast<int>(k)}, number, drawn))
                all = false;
        }
    }
    return all;
}

bool InputForm::pasted(Control from, const std::string& text) {
    const Edit edit(context_.steps);
    const ClipboardRows rows = clipboardRows(text);
    if (!inGrid(from) || (rows.size() == 1 && rows.front().size() == 1)) return false;
    Redraws drawn = Redraws::nothing;
    bool all = true;
    try {
        all = fillRows(from, rows, drawn);
    } catch (const RunTimeError&) {
        try {
            redraw(drawn);
        } catch (const RunTimeError&) {
            // The number that was refused is told.
        }
        throw;
    }
    context_.form.enter(from);
    if (!all) context_.form.showHint(from, leftOutHint);
    redraw(drawn);
    return true;
}

std::optional<std::string> InputForm::copied(Control from) const {
    if (!inGrid(from)) return std::nullopt;
    std::string row;
    for (int i = from.index; i <= openCells(*textField(from.field)); ++i)
        row += (row.empty() ? "" : "\t") + context_.form.text({from.field, i});
    return row;
}

} // namespace varno
