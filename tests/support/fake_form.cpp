#include "support/fake_form.h"

namespace varno::testing {

std::string FakeForm::text(Control control) const {
    return state(control).text;
}

void FakeForm::setText(Control control, const std::string& text) {
    State& state = states_[key(control)];
    if (state.text == text) return;
    state.text = text;
    changed(control);
}

void FakeForm::type(Control control, const std::string& text) {
    states_[key(control)].text = text;
    changed(control);
}

void FakeForm::setVisible(Control control, bool visible) {
    states_[key(control)].visible = visible;
}
void FakeForm::setEnabled(Control control, bool enabled) {
    states_[key(control)].enabled = enabled;
}
void FakeForm::setCaption(Control control, const std::string& caption) {
    states_[key(control)].caption = caption;
}

void FakeForm::showRows(Field list, std::span<const std::string_view> rows, int selected) {
    lists_[list] = {{rows.begin(), rows.end()}};
    selectRow(list, selected);
}

void FakeForm::selectRow(Field list, int row) {
    List& rows = lists_[list];
    const int selected = row >= 0 && row < static_cast<int>(rows.rows.size()) ? row : -1;
    if (rows.selected == selected) return;
    rows.selected = selected;
    changed({list});
}

int FakeForm::selectedRow(Field list) const {
    const auto found = lists_.find(list);
    return found == lists_.end() ? -1 : found->second.selected;
}

void FakeForm::selectOption(Field group, int option) {
    options_[group] = option;
}
void FakeForm::showGroup(Field group, bool visible) {
    groups_[group] = visible;
}
void FakeForm::setChecked(Field box, bool checked) {
    checks_[box] = checked;
}
void FakeForm::focus(Control control) {
    focused_ = control;
}
void FakeForm::enter(Control control) {
    focus(control);
    allSelected_ = control;
}

const FakeForm::State& FakeForm::state(Control control) const {
    static const State untouched;
    const auto found = states_.find(key(control));
    return found == states_.end() ? untouched : found->second;
}

const std::vector<std::string>& FakeForm::rows(Field list) const {
    static const std::vector<std::string> none;
    const auto found = lists_.find(list);
    return found == lists_.end() ? none : found->second.rows;
}

int FakeForm::option(Field group) const {
    const auto found = options_.find(group);
    return found == options_.end() ? 0 : found->second;
}

bool FakeForm::groupVisible(Field group) const {
    const auto found = groups_.find(group);
    return found != groups_.end() && found->second;
}

bool FakeForm::checked(Field box) const {
    const auto found = checks_.find(box);
    return found != checks_.end() && found->second;
}

} // namespace varno::testing
