#include "input/form_layout.h"

#include <algorithm>
#include <array>

#include "controls/control_ids.h"
#include "controls/rule_sets.h"
#include "input/field_table.h"
#include "model/design_case.h"

namespace varno {

namespace {

// All measures below are pixels of the 96 dpi raster.
constexpr int margin = 8;
constexpr int inner = 10; // from a frame's edge to its content
constexpr int textHeight = 15;
constexpr int editHeight = 21;
constexpr int optionHeight = 17;
constexpr int labelDrop = 3; // a label beside an edit stands this much lower than the edit's top

class LayoutBuilder {
  public:
    std::vector<ControlSpec> take() { return std::move(controls_); }

    // The texts are literals, so a zero stands behind each.
    void add(int id, ControlKind kind, std::string_view text, int x, int y, int width, int height) {
        controls_.push_back(inRaster(id, kind, text.data(), x, y, width, height));
    }
    void frame(std::string_view caption, int x, int y, int width, int height) {
        add(idFormLabel, ControlKind::group, caption, x, y, width, height);
    }
    void label(std::string_view text, int x, int y, int width) {
        add(idFormLabel, ControlKind::label, text, x, y, width, textHeight);
    }
    void caption(Field field, int x, int y, int width) { label(fieldRow(field)->caption, x, y, width); }
    void symbol(Field field, int x, int y, int width) {
        add(idFormLabel, ControlKind::symbolLabel, fieldRow(field)->caption, x, y - labelDrop, width,
            editHeight);
    }
    void number(Control control, int x, int y, int width) {
        const TextField* const row = textField(control.field);
        add(controlId(control), ControlKind::numberEdit, row == nullptr ? "" : row->designText, x, y, width,
            editHeight);
    }
    void list(Field field, int x, int y, int width) {
        add(controlId({field}), ControlKind::dropDown, "", x, y, width, editHeight);
    }
    template <typename Captions>
    void options(Field group, const Captions& captions, int x, int y, int width) {
        int option = 1;
        for (const std::string_view caption : captions) {
            const auto kind = option == 1 ? ControlKind::firstRadio : ControlKind::radio;
            add(controlId({group, option}), kind, caption, x, y + (option - 1) * (optionHeight + 3), width,
                optionHeight);
            ++option;
        }
    }
    void options(Field group, int x, int y, int width) {
        options(group, choiceField(group)->options, x, y, width);
    }
    /// A frame that is named by the field in it.
    void frameOf(Field field, int x, int y, int width, int height) {
        frame(fieldRow(field)->caption, x, y, width, height);
    }

  private:
    std::vector<ControlSpec> controls_;
};

constexpr int frameWidth = 936 - 2 * margin;

void addTitleRow(LayoutBuilder& form) {
    constexpr int y = 7;
    form.caption(Field::rubrik, margin + inner, y + labelDrop, 50);
    form.add(controlId({Field::rubrik}), ControlKind::edit, "", 78, y, 600, editHeight);
    form.caption(Field::nfack, 760, y + labelDrop, 72);
    form.number({Field::nfack}, 834, y, 34);
    form.add(controlId({Field::spin1}), ControlKind::spin, "", 868, y, 18, editHeight);
}

constexpr int geometryTop = 34;
constexpr int geometryHeight = 172;

void addGrid(LayoutBuilder& form) {
    static constexpr std::array<const char*, maxSpans> heads{"1", "2", "3", "4", "5",
                                                             "6", "7", "8", "9", "10"};
    constexpr int column = gridColumn / 15;
    constexpr int firstX = firstSpanX / 15;
    constexpr int boxWidth = column - 2;

    form.frame(geometryFrame, margin, geometryTop, frameWidth, geometryHeight);
    int y = geometryTop + 17;
    form.label(spanHeading, margin + inner, y, 160);
    for (int span = 1; span <= maxSpans; ++span) {
        form.add(spanHeadId(span), ControlKind::label, heads[static_cast<std::size_t>(span - 1)],
                 firstX + (span - 1) * column + boxWidth / 2 - 6, y, 20, textHeight);
    }
    y += 18;
    for (const TextField& row : textFields) {
        if (!row.isPerSpan()) continue;
        form.label(row.caption, margin + inner, y + labelDrop, 152);
        const bool supports = row.field == Field::upl;
        for (int i = supports ? 0 : 1; i <= maxSpans; ++i) {
            const int x = firstX + (i - 1) * column + (supports ? column / 2 : 0);
            form.number({row.field, i}, x, y, boxWidth);
        }
        y += editHeight + 3;
    }
    constexpr int cantileverX = 700;
    y = geometryTop + 17 + 18;
    form.caption(Field::konsv, cantileverX, y + labelDrop, 120);
    form.number({Field::konsv}, cantileverX + 126, y, 50);
    y += editHeight + 3;
    form.caption(Field::konsh, cantileverX, y + labelDrop, 120);
    form.number({Field::konsh}, cantileverX + 126, y, 50);
}

constexpr int loadTop = geometryTop + geometryHeight + 6;
constexpr int loadHeight = 112;

void addClassGroups(LayoutBuilder& form, int x, int y) {
    for (const RuleSet& rules : ruleSets) {
        form.add(classFrameId(rules.number), ControlKind::group, rules.frame, x, y, 150, 84);
        form.options(rules.classGroup, rules.classes, x + inner, y + 19, 120);
    }
}

void addLoads(LayoutBuilder& form) {
    form.add(controlId({Field::loadFrame}), ControlKind::group, loadFrameCaption(0), margin, loadTop,
             frameWidth, loadHeight);
    const int y = loadTop + 18;
    form.caption(Field::lokt, margin + inner, y, 130);
    form.list(Field::lokt, margin + inner, y + 17, 134);

    constexpr int combinationX = 176;
    form.frameOf(Field::lastkomb, combinationX, y, 170, 84);
    form.options(Field::lastkomb, combinationX + inner, y + 19, 150);
    addClassGroups(form, 360, y);

    int place = 0;
    for (const TextField& factor : textFields) {
        if (!factor.isFactor()) continue;
        const int x = 560 + place % 3 * 110;
        const int row = y + 12 + place / 3 * (editHeight + 10);
        form.symbol(factor.field, x, row + labelDrop, 26);
        form.number({factor.field}, x + 28, row, 56);
        ++place;
    }
}

constexpr int materialTop = loadTop + loadHeight + 6;
constexpr int materialHeight = formHeight / 15 - materialTop - margin;

void addConcrete(LayoutBuilder& form, int x, int width) {
    constexpr int listFrame = 56;
    form.frameOf(Field::btg, x, materialTop, width, listFrame);
    form.list(Field::btg, x + inner, materialTop + 22, width - 2 * inner);

    constexpr int ceilingTop = materialTop + listFrame + 6;
    form.frameOf(Field::kutak, x, ceilingTop, width, 66);
    form.options(Field::kutak, x + inner, ceilingTop + 21, width - 2 * inner);
}

// A number with its unit behind it, its caption on the line above.
void addMeasure(LayoutBuilder& form, Field field, int x, int y, int width) {
    form.caption(field, x, y, width);
    form.number({field}, x, y + textHeight + 3, 56);
    form.label(fieldRow(field)->unit, x + 62, y + textHeight + 3 + labelDrop, 30);
}

void addReinforcement(LayoutBuilder& form, std::string_view caption, Field grade, Field diameter, int x,
                      int width) {
    form.frame(caption, x, materialTop, width, materialHeight);
    int y = materialTop + 22;
    form.symbol(grade, x + inner, y + labelDrop, 36);
    form.list(grade, x + inner + 40, y, 80);
    y += editHeight + 8;
    form.symbol(diameter, x + inner, y + labelDrop, 36);
    form.list(diameter, x + inner + 40, y, 80);
}

constexpr int measureTop = materialTop + 22 + 2 * (editHeight + 8) + 4;

void addTopReinforcement(LayoutBuilder& form, int x, int width) {
    addReinforcement(form, topReinforcement, Field::aok, Field::dok, x, width);
    addMeasure(form, Field::ktack, x + inner, measureTop, width - 2 * inner);
    form.add(controlId({Field::kavko}), ControlKind::check, fieldRow(Field::kavko)->caption, x + inner,
             measureTop + textHeight + editHeight + 14, width - 2 * inner, optionHeight);
}

void addBottomReinforcement(LayoutBuilder& form, int x, int width) {
    addReinforcement(form, bottomReinforcement, Field::auk, Field::duk, x, width);
    addMeasure(form, Field::duarm, x + inner, measureTop, width - 2 * inner);
}

void addFire(LayoutBuilder& form, int x, int width) {
    form.frameOf(Field::brandb, x, materialTop, width, materialHeight);
    form.list(Field::brandk, x + inner, materialTop + 22, width - 2 * inner);
    form.options(Field::brandb, x + inner, materialTop + 22 + editHeight + 12, width - 2 * inner);
}

void addDeformation(LayoutBuilder& form, int x, int width) {
    form.frameOf(Field::brukskomb, x, materialTop, width, materialHeight);
    int y = materialTop + 21;
    form.options(Field::brukskomb, x + inner, y, width - 2 * inner);
    y += 2 * (optionHeight + 3) + 6;
    for (const Field limit : {Field::initiell, Field::tillkommande}) {
        form.caption(limit, x + inner, y, width - 2 * inner);
        y += textHeight + 2;
        form.label(limitHeading, x + inner, y + labelDrop, 22);
        form.number({limit}, x + inner + 24, y, 56);
        y += editHeight + 6;
    }
    form.caption(Field::overhojning, x + inner, y + labelDrop, 112);
    form.number({Field::overhojning}, x + inner + 114, y, 46);
}

} // namespace

int spanHeadId(int span) {
    return idFormLabel + span;
}

int classFrameId(int ruleSet) {
    return idFormLabel + 40 + ruleSet;
}

std::optional<Control> gridNeighbour(Control control, int rows) {
    constexpr std::array grid{Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl};
    const auto found = std::ranges::find(grid, control.field);
    if (found == grid.end()) return std::nullopt;
    const auto row = static_cast<int>(found - grid.begin()) + rows;
    if (row < 0 || row >= static_cast<int>(grid.size())) return std::nullopt;
    // The left end support has no span of its own; up from it is the first span.
    const Field target = grid[static_cast<std::size_t>(row)];
    return Control{target, target == Field::upl ? control.index : std::max(1, control.index)};
}

std::vector<ControlSpec> inputFormLayout() {
    LayoutBuilder form;
    addTitleRow(form);
    addGrid(form);
    addLoads(form);
    constexpr int gap = 6;
    constexpr std::array widths{138, 182, 206, 178, 192};
    int x = margin;
    addConcrete(form, x, widths[0]);
    x += widths[0] + gap;
    addTopReinforcement(form, x, widths[1]);
    x += widths[1] + gap;
    addBottomReinforcement(form, x, widths[2]);
    x += widths[2] + gap;
    addFire(form, x, widths[3]);
    x += widths[3] + gap;
    addDeformation(form, x, widths[4]);
    return form.take();
}

} // namespace varno
