#include "lineloads/line_load_rig.h"

namespace varno::testing {

std::string FakeLineLoadWindow::text(LineLoadControl control) const {
    const auto found = texts_.find(control);
    return found == texts_.end() ? std::string() : found->second;
}

void FakeLineLoadWindow::setText(LineLoadControl control, const std::string& shownText) {
    std::string& text = texts_[control];
    if (text == shownText) return;
    text = shownText;
    onChange(control);
}

void FakeLineLoadWindow::type(LineLoadControl control, const std::string& typed) {
    texts_[control] = typed;
    onChange(control);
}

void FakeLineLoadWindow::focus(LineLoadControl control) {
    const LineLoadControl before = focused;
    focused = control;
    if (before == control) return;
    if (onLeave) onLeave(before);
    onEnter(control);
}

std::string FakeLineLoadWindow::rows() const {
    std::string out;
    for (int row = 1; row <= 5; ++row) {
        if (!visibleRows.at(static_cast<std::size_t>(row))) continue;
        out += (out.empty() ? "" : " ") + std::to_string(row);
    }
    return out;
}

LineLoadRig::LineLoadRig(const LineLoadSet& which, const NumberLocale& locale)
    : set(which), editor(set, {designCase, document, window, sketch, form, view, steps}, locale) {
    view.onLeave = [this](LineLoadControl control) { editor.left(control); };
    view.onEnter = [this](LineLoadControl control) { editor.entered(control); };
    view.onChange = [this](LineLoadControl control) { editor.changed(control); };
    designCase.nfack = 3;
    for (int i = 1; i <= 3; ++i) {
        designCase.spv(i) = 5;
        designCase.flast(i) = 2;
    }
    count() = 2;
    setRow(1, 1, 1.5f, 10);
    setRow(2, 3, 2.25f, 1234);
    setRow(3, 2, 0.5f, -4);
    setRow(4, 9, -1, 0.25f);
    slab.fullRefresh();
}

void LineLoadRig::setRow(int row, std::int16_t spanNumber, float distanceOf, float loadOf) {
    span(row) = spanNumber;
    distance(row) = distanceOf;
    load(row) = loadOf;
}

void LineLoadRig::open() {
    editor.opened();
    sketch.asked.clear();
}

void LineLoadRig::type(LineLoadControl control, const std::string& typed) {
    view.focus(control);
    view.type(control, typed);
}

void LineLoadRig::edit(LineLoadControl control, const std::string& typed) {
    type(control, typed);
    view.focus(loadCountBox);
}

void LineLoadRig::visit(LineLoadControl control) {
    view.focus(control);
    view.focus(loadCountBox);
}

std::string LineLoadRig::shownRow(int row) const {
    return text(LineLoadBox::llfnr, row) + "/" + text(LineLoadBox::avst, row) + "/" +
           text(LineLoadBox::lllast, row);
}

} // namespace varno::testing
