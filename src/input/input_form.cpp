#include "input/input_form.h"

namespace varno {

void InputForm::changed(Control control) {
    context_.boxes().changed(control);
    const ChoiceField* choice = choiceField(control.field);
    const bool isList = choice != nullptr && choice->kind == ChoiceKind::list;
    if (isList || textField(control.field) != nullptr) context_.markChanged();
    if (control.field == Field::rubrik) titleChanged();
}

void InputForm::titleChanged() {
    // It is saved but not calculated with.
    context_.document.dataChanged = true;
    const Control title{Field::rubrik};
    if (context_.form.text(title).find(',') == std::string::npos) {
        context_.form.hideHint();
    } else {
        context_.form.showHint(title, commaHint);
    }
}

void InputForm::lostFocus(Control control) {
    const Edit edit(context_.steps);
    context_.form.hideHint();
    if (const TextField* row = textField(control.field)) {
        if (row->onLeaving == OnLeaving::marks) context_.document.dataChanged = true;
        aboutField(accessibleName(control), [&] { leaveNumber(*row, control.index); });
    } else if (const ChoiceField* choice = choiceField(control.field)) {
        if (choice->storedOn == StoredOn::leaving) storeRow(*choice);
    }
}

void InputForm::leaveNumber(const TextField& row, int index) {
    DesignCase& designCase = context_.designCase;
    if (const auto* perRuleSet = std::get_if<FactorPerRuleSet DesignCase::*>(&row.place)) {
        leaveFactor(row, (designCase.**perRuleSet)(designCase.loadCode));
    } else if (const auto* perCategory = std::get_if<FactorPerCategory DesignCase::*>(&row.place)) {
        leaveFactor(row, (designCase.**perCategory)(designCase.loadCode, designCase.lokt));
    } else if (const auto* whole = std::get_if<std::int16_t DesignCase::*>(&row.place)) {
        leaveWhole(row, designCase.**whole);
    } else if (std::holds_alternative<float DesignCase::*>(row.place)) {
        leaveCantilever(row);
    } else if (row.field == Field::upl) {
        leaveSupport(row, index);
    } else {
        leaveSpanCell(row, index);
    }
}

void InputForm::leaveFactor(const TextField& row, Factor& stored) {
    const Control box{row.field};
    context_.boxes().leave(box, row.pattern, [&](double typed) {
        const double number = asShown(typed, row.pattern);
        context_.boxes().put(box, number, row.pattern);
        stored = number;
    });
}

void InputForm::leaveWhole(const TextField& row, std::int16_t& stored) {
    const Control box{row.field};
    context_.boxes().leave(box, row.pattern, [&](double typed) {
        const double number = asShown(typed, row.pattern);
        stored = toInteger(number);
        context_.boxes().put(box, number, row.pattern);
    });
}

void InputForm::storeRow(const ChoiceField& row) {
    const int selected = context_.form.selectedRow(row.field);
    std::int16_t& stored = context_.designCase.*row.place;
    // A number without a row shows as nothing selected. It stays until the user chooses.
    const int storedRow = stored - row.firstNumber;
    if (selected < 0 && (storedRow < 0 || storedRow >= row.count())) return;
    if (row.field == Field::btg && context_.designCase.loadCode != 1) return;
    stored = static_cast<std::int16_t>(selected + row.firstNumber);
}

void InputForm::tabbedOut(bool backwards) {
    if (backwards) {
        context_.window.focusLoadPicture();
    } else {
        context_.window.focusFlag();
    }
}

void InputForm::clicked(Control control) {
    const Edit edit(context_.steps);
    if (const RuleSet* rules = ruleSetWith(&RuleSet::classGroup, control.field)) {
        classClicked(*rules, control.index);
    } else if (control.field == Field::lokt) {
        categoryChosen(context_.form.selectedRow(Field::lokt));
    } else if (control.field == Field::brandk) {
        storeRow(*choiceField(Field::brandk));
        context_.filler.showFireOptions();
    } else if (const ChoiceField* choice = choiceField(control.field)) {
        if (choice->kind != ChoiceKind::list) choose(*choice, control.index);
    }
}

void InputForm::choose(const ChoiceField& row, int option) {
    if (row.kind == ChoiceKind::checkBox) {
        // Only a tick counts; a grey check box is a clear one.
        context_.designCase.*row.place = option == 1 ? 1 : 0;
    } else {
        if (option < 1 || option > row.count()) throw RunTimeError(errSubscriptOutOfRange);
        context_.designCase.*row.place = static_cast<std::int16_t>(option);
    }
    context_.markChanged();
}

} // namespace varno
