#include "line_load_rig.h"

namespace varno::gui {

Bytes loadLine(const char* span, const char* distance, const char* load) {
    return cells({span}, 3) + cells({distance, load});
}

std::string Editor::row(int index) const {
    std::string all;
    for (const LineLoadBox column : {LineLoadBox::llfnr, LineLoadBox::avst, LineLoadBox::lllast}) {
        all += (all.empty() ? "" : " ") + (box(column, index).visible() ? text(column, index) : "-");
    }
    return all == "- - -" ? "-" : all;
}

Editor LineLoads::openEditor() {
    program().command(idLineLoads);
    return Editor(program().window(lineLoadClass));
}

Editor LineLoads::openFree() {
    program().command(idFreeLineLoads);
    return Editor(program().window(freeLineLoadClass));
}

void LineLoads::close(const Editor& editor) {
    editor.window().post(WM_COMMAND, idLayout);
    program().waitGone(editor.window());
    expectFocus(field(Field::rubrik));
}

void LineLoads::count(const Editor& editor, int step, const std::string& count) {
    spin(editor.spin(), step);
    expectBox(editor, LineLoadBox::nllast, 0, count);
}

void LineLoads::expectBox(const Editor& editor, LineLoadBox box, int index, const std::string& expected,
                          std::source_location place) {
    expectSoon(
        program(), expected, [&] { return editor.text(box, index); }, place);
}

void LineLoads::expectRow(const Editor& editor, int index, const std::string& expected,
                          std::source_location place) {
    std::string local;
    std::string number;
    for (const char letter : expected + " ") {
        if (letter != ' ') {
            number += letter;
            continue;
        }
        local += (local.empty() ? "" : " ") + shown(number);
        number.clear();
    }
    expectSoon(
        program(), local, [&] { return editor.row(index); }, place);
}

} // namespace varno::gui
