#include "input/edit_walk.h"

namespace varno::testing {

EditWalk::EditWalk(unsigned seed, const NumberLocale& locale)
    : rig(static_cast<int>(seed % 10) + 1, locale), locale_(locale), dice_(seed) {
    // As the real window does: an error of a field being left is shown, and the event around it goes on.
    rig.form.onLeave = [this](Control control) { leave(control); };
}

void EditWalk::expect(bool holds, const std::string& what) {
    if (!holds && breach.empty()) breach = "event " + std::to_string(index_) + " (" + last_ + "): " + what;
}

template <typename Action>
void EditWalk::guarded(Action&& action) {
    const int error = errorOf(action);
    if (error == 0) return;
    ++errors[error];
    expect(error == errOverflow || error == errSubscriptOutOfRange || error == errDivisionByZero,
           "run-time error " + std::to_string(error));
}

void EditWalk::leave(Control control) {
    guarded([&] { rig.input.lostFocus(control); });
}

void EditWalk::run(int events) {
    for (int end = index_ + events; index_ < end && breach.empty(); ++index_) {
        step();
        check();
        if (index_ % 25 == 0) checkSavedFile();
    }
}

void EditWalk::step() {
    const int kind = pick(0, 99);
    const auto as = [this](const char* name) {
        last_ = name;
        ++done[name];
    };
    if (kind < 35) {
        as("type");
        typeSomewhere();
    } else if (kind < 55) {
        as("focus");
        moveFocus();
    } else if (kind < 65) {
        as("spin up");
        guarded([&] { rig.input.spinUp(); });
    } else if (kind < 74) {
        as("spin down");
        guarded([&] { rig.input.spinDown(); });
    } else if (kind < 80) {
        as("flag");
        guarded([&] { rig.input.flagClicked(rig.window.flag); });
    } else if (kind < 87) {
        as("row");
        chooseRow();
    } else if (kind < 94) {
        as("option");
        clickOption();
    } else if (kind < 96) {
        as("activate");
        rig.input.focusTitle();
    } else if (kind < 97) {
        as("Swedish rules");
        guarded([&] { rig.input.switchToSwedishRules(); });
    } else if (kind < 99) {
        as("line loads");
        editLineLoads();
    } else {
        as("show");
        rig.form.focus({Field::rubrik});
        guarded([&] { rig.show(); });
    }
}

Control EditWalk::anyBox() {
    if (pick(0, 15) == 0) return {Field::nfack};
    const TextField& row = dice_.anyOf(textFields);
    return {row.field, row.isPerSpan() ? pick(row.field == Field::upl ? 0 : 1, rig.designCase.nfack) : 0};
}

bool EditWalk::canEnter(Control control) const {
    const FakeForm::State& state = rig.form.state(control);
    return state.visible && state.enabled;
}

void EditWalk::typeSomewhere() {
    const Control box = pick(0, 2) == 0 ? rig.form.focused() : anyBox();
    if (box.field != Field::nfack && textField(box.field) == nullptr) return;
    rig.form.focus(box);
    if (!canEnter(box)) {
        rig.form.focus({Field::rubrik});
        return;
    }
    const std::string text = dice_.text();
    last_ += " " + text;
    rig.form.type(box, text);
}

void EditWalk::moveFocus() {
    const Control box = anyBox();
    rig.form.focus(canEnter(box) ? box : Control{Field::rubrik});
}

void EditWalk::chooseRow() {
    const ChoiceField& list = choiceFields[static_cast<std::size_t>(pick(0, 6))];
    rig.form.focus({list.field});
    rig.form.selectRow(list.field, pick(0, list.count() - 1));
    guarded([&] { rig.input.clicked({list.field}); });
}

void EditWalk::clickOption() {
    if (pick(0, 1) == 0) {
        const RuleSet& rules = dice_.anyOf(ruleSets);
        rig.form.focus({rules.classGroup});
        guarded([&] { rig.input.clicked({rules.classGroup, pick(1, 3)}); });
        return;
    }
    const ChoiceField& row = choiceFields[static_cast<std::size_t>(pick(7, 11))];
    const int option = row.kind == ChoiceKind::checkBox ? pick(0, 2) : pick(1, row.count());
    rig.form.focus({row.field});
    rig.form.selectOption(row.field, option);
    rig.form.setChecked(row.field, option == 1);
    guarded([&] { rig.input.clicked({row.field, option}); });
    expect(rig.document.dataChanged && !rig.window.diagram, "an option marks");
}

void EditWalk::editLineLoads() {
    rig.designCase.nllast = static_cast<std::int16_t>(pick(0, 5));
    const int i = pick(1, 5);
    rig.designCase.llfnr(i) = static_cast<std::int16_t>(pick(0, 16));
    rig.designCase.avst(i) = static_cast<float>(pick(-10, 100)) / 10;
    rig.designCase.lllast(i) = static_cast<float>(pick(-10, 100));
    guarded([&] { rig.sketch.lineLoadRefresh(); });
}

} // namespace varno::testing
