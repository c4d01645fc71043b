#include <cmath>

#include "base/open_file.h"
#include "input/edit_walk.h"
#include "model/design_input_file.h"

namespace varno::testing {

namespace {

constexpr Field spanRows[] = {Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl};

// A number that fits its cell comes back as the cell's decimals show it; one that does not is cut.
bool sameInCell(double saved, double stored, CellFormat cell) {
    if (formatNumber(stored, cell.pattern).size() > cell.width) return true;
    return std::fabs(saved - stored) <= 0.0005 + 1e-6 * std::fabs(stored);
}

bool sameFactor(const Factor& saved, const Factor& stored) {
    return sameInCell(saved.value_or(0), stored.value_or(0), spanCell);
}

std::string differingLine(const DesignCase& saved, const DesignCase& stored) {
    for (const CaseLine& line : caseLines) {
        bool same = true;
        if (const auto* whole = std::get_if<IntegerLine>(&line)) {
            same = saved.*whole->field == stored.*whole->field;
        } else if (const auto* real = std::get_if<RealLine>(&line)) {
            same = saved.*real->field == stored.*real->field;
        } else if (const auto* cells = std::get_if<SpanCellsLine>(&line)) {
            for (int i = cells->first; i <= stored.nfack; ++i) {
                same = same && sameInCell((saved.*cells->field)(i), (stored.*cells->field)(i), cells->cell);
            }
        } else if (std::holds_alternative<SafetyClassLine>(line)) {
            same = saved.safetyClass(stored.loadCode) == stored.safetyClass(stored.loadCode);
        } else if (std::holds_alternative<FactorCellsLine>(line)) {
            const int set = stored.loadCode;
            const int row = stored.lokt;
            same = sameFactor(saved.lambdaG(set), stored.lambdaG(set)) &&
                   sameFactor(saved.ksi(set), stored.ksi(set)) &&
                   sameFactor(saved.lambdaQ(set), stored.lambdaQ(set)) &&
                   sameFactor(saved.psi0(set, row), stored.psi0(set, row)) &&
                   sameFactor(saved.psi1(set, row), stored.psi1(set, row)) &&
                   sameFactor(saved.psi2(set, row), stored.psi2(set, row));
        } else if (const auto* load = std::get_if<LineLoadLine>(&line)) {
            same = saved.llfnr(load->index) == stored.llfnr(load->index) &&
                   sameInCell(saved.avst(load->index), stored.avst(load->index), spanCell) &&
                   sameInCell(saved.lllast(load->index), stored.lllast(load->index), spanCell);
        }
        if (!same) return "line " + std::to_string(&line - caseLines.data() + 1);
    }
    return "";
}

} // namespace

void EditWalk::check() {
    expect(rig.designCase.nfack >= 1 && rig.designCase.nfack <= maxSpans, "number of spans");
    if (!breach.empty()) return;
    checkVisibility();
    for (const TextField& row : textFields) {
        if (!row.isPerSpan()) {
            checkBox(row, 0);
            continue;
        }
        for (int i = row.field == Field::upl ? 0 : 1; i <= rig.designCase.nfack; ++i)
            checkBox(row, i);
    }
    checkLists();
}

void EditWalk::checkVisibility() {
    const int spans = rig.designCase.nfack;
    for (int i = 1; i <= maxSpans; ++i) {
        for (const Field row : spanRows) {
            expect(rig.form.state({row, i}).visible == (i <= spans), "visible cells");
        }
        expect(rig.form.state({Field::flast, i}).enabled == (rig.designCase.lokt == 0), "locked loads");
        if (i < spans) expect(rig.form.state({Field::upl, i}).enabled, "an inner support is locked");
    }
    for (const int end : {0, spans}) {
        const FakeForm::State& box = rig.form.state({Field::upl, end});
        expect(box.visible && !box.enabled, "an end support can be edited");
        expect(rig.designCase.upl(end) == 0, "an end support has a width");
        expect(box.text == formatNumber(0.0, "0.000", locale_), "an end support shows " + box.text);
    }
}

bool EditWalk::agrees(const TextField& row, int index, const std::string& text) const {
    std::string pointed = text;
    const auto sign = pointed.find(locale_.decimal);
    if (sign != std::string::npos) pointed.replace(sign, locale_.decimal.size(), ".");
    const double shown = VARNO1::plainNumber(pointed);

    const std::optional<double> stored = numberOf(rig.designCase, row, index);
    // A cantilever keeps what was typed and shows two decimals of it.
    if (row.field == Field::konsv || row.field == Field::konsh)
        return text == formatNumber(*stored, row.pattern, locale_);
    if (row.isPerSpan()) return static_cast<float>(shown) == static_cast<float>(*stored);
    return row.isFactor() ? stored == shown : *stored == toInteger(shown);
}

void EditWalk::checkBox(const TextField& row, int index) {
    const Control box{row.field, index};
    if (rig.form.focused() == box) return; // being typed in
    const std::string text = rig.form.text(box);
    expect(agrees(row, index, text), std::string(row.name) + "(" + std::to_string(index) + ") shows " + text);
}

void EditWalk::checkLists() {
    for (const ChoiceField& row : choiceFields) {
        const std::int16_t stored = rig.designCase.*row.place;
        const std::string name(row.name);
        if (row.kind == ChoiceKind::checkBox) {
            expect(rig.form.checked(row.field) == (stored != 0), name);
        } else if (row.kind == ChoiceKind::options) {
            expect(rig.form.option(row.field) == stored, name);
        } else if (row.field != Field::btg && rig.form.focused() != Control{row.field}) {
            expect(rig.form.selectedRow(row.field) + row.firstNumber == stored, name);
        }
    }
    int frames = 0;
    for (const RuleSet& rules : ruleSets)
        frames += rig.form.groupVisible(rules.classGroup) ? 1 : 0;
    expect(frames == 1 &&
               rig.form.groupVisible(ruleSetWith(&RuleSet::number, rig.designCase.loadCode)->classGroup),
           "class frames");
    expect(rig.window.flag == ruleSetWith(&RuleSet::number, rig.designCase.loadCode)->flag, "flag");
}

void EditWalk::checkSavedFile() {
    MemoryFiles files;
    FakeMessageBoxes boxes;
    FileOpener opener(files, boxes);
    File out = opener.openFile("VANDRING.IND", FileMode::output);
    VARNO1::writeDesignCase(out, {rig.designCase, "VANDRING", "Titel"});
    out.close();

    File in = opener.openFile("VANDRING.IND", FileMode::input);
    const CaseFile saved = VARNO1::readDesignCase(in, {});
    expect(saved.title == "Titel", "saved title");
    const std::string line = differingLine(saved.designCase, rig.designCase);
    expect(line.empty(), "saved " + line);
}

} // namespace varno::testing
