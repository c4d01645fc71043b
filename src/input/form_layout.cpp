#include "input/form_layout.h"

#include <array>

#include "controls/control_ids.h"
#include "controls/rule_sets.h"
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

    void add(int id, ControlKind kind, const char* text, int x, int y, int width, int height) {
        controls_.push_back({id, kind, text, raster(x), raster(y), raster(width), raster(height)});
    }
    void frame(const char* caption, int x, int y, int width, int height) {
        add(idFormLabel, ControlKind::group, caption, x, y, width, height);
    }
    void label(const char* text, int x, int y, int width) {
        add(idFormLabel, ControlKind::label, text, x, y, width, textHeight);
    }
    void symbol(const char* text, int x, int y, int width) {
        add(idFormLabel, ControlKind::symbolLabel, text, x, y - labelDrop, width, editHeight);
    }
    void number(Control control, int x, int y, int width, const char* text = "") {
        add(controlId(control), ControlKind::numberEdit, text, x, y, width, editHeight);
    }
    void list(Field field, int x, int y, int width) {
        add(controlId({field}), ControlKind::dropDown, "", x, y, width, editHeight);
    }
    template <std::size_t count>
    void options(Field group, const std::array<const char*, count>& captions, int x, int y, int width) {
        int option = 1;
        for (const char* caption : captions) {
            const auto kind = option == 1 ? ControlKind::firstRadio : ControlKind::radio;
            add(controlId({group, option}), kind, caption, x, y + (option - 1) * (optionHeight + 3), width,
                optionHeight);
            ++option;
        }
    }

  private:
    std::vector<ControlSpec> controls_;
};

constexpr int frameWidth = 936 - 2 * margin;

void addTitleRow(LayoutBuilder& form) {
    constexpr int y = 7;
    form.label("Rubrik:", margin + inner, y + labelDrop, 50);
    form.add(controlId({Field::rubrik}), ControlKind::edit, "", 78, y, 600, editHeight);
    form.label("Antal Fack:", 760, y + labelDrop, 72);
    form.number({Field::nfack}, 834, y, 34);
    form.add(controlId({Field::spin1}), ControlKind::spin, "", 868, y, 18, editHeight);
}

constexpr int geometryTop = 34;
constexpr int geometryHeight = 172;

void addGrid(LayoutBuilder& form) {
    static constexpr std::array<const char*, maxSpans> heads{"1", "2", "3", "4", "5",
                                                             "6", "7", "8", "9", "10"};
    struct Row {
        const char* caption;
        Field field;
        int first;
    };
    constexpr std::array rows{
        Row{"Spännvidd (m)", Field::spv, 1},
        Row{"Plattjocklek (m)", Field::ptjl, 1},
        Row{"Permanent last (kN/m2)", Field::plast, 1},
        Row{"Last (kN/m2)", Field::flast, 1},
        Row{"Upplagsbredd (m)", Field::upl, 0},
    };
    constexpr int column = gridColumn / 15;
    constexpr int firstX = firstSpanX / 15;
    constexpr int boxWidth = column - 2;

    form.frame("Geometri och Last", margin, geometryTop, frameWidth, geometryHeight);
    int y = geometryTop + 17;
    form.label("Fack", margin + inner, y, 160);
    for (int span = 1; span <= maxSpans; ++span) {
        form.add(spanHeadId(span), ControlKind::label, heads[static_cast<std::size_t>(span - 1)],
                 firstX + (span - 1) * column + boxWidth / 2 - 6, y, 20, textHeight);
    }
    y += 18;
    for (const Row& row : rows) {
        form.label(row.caption, margin + inner, y + labelDrop, 152);
        for (int i = row.first; i <= maxSpans; ++i) {
            const int x = firstX + (i - 1) * column + (row.first == 0 ? column / 2 : 0);
            form.number({row.field, i}, x, y, boxWidth);
        }
        y += editHeight + 3;
    }
    constexpr int cantileverX = 700;
    y = geometryTop + 17 + 18;
    form.label("Konsol vänster (m)", cantileverX, y + labelDrop, 120);
    form.number({Field::konsv}, cantileverX + 126, y, 50);
    y += editHeight + 3;
    form.label("Konsol höger (m)", cantileverX, y + labelDrop, 120);
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
    form.label("Lastkategori", margin + inner, y, 130);
    form.list(Field::lokt, margin + inner, y + 17, 134);

    constexpr int combinationX = 176;
    form.frame("Lastkombination", combinationX, y, 170, 84);
    form.options(Field::lastkomb, std::array{"6.10 a", "6.10 b", "6.10 a och 6.10 b"}, combinationX + inner,
                 y + 19, 150);
    addClassGroups(form, 360, y);

    struct Factor {
        const char* symbol;
        Field field;
    };
    static constexpr std::array<Factor, 6> factors{{
        {"γ_G", Field::lambdaG},
        {"ξ", Field::ksi},
        {"γ_Q", Field::lambdaQ},
        {"ψ_0", Field::psi0},
        {"ψ_1", Field::psi1},
        {"ψ_2", Field::psi2},
    }};
    for (std::size_t i = 0; i < factors.size(); ++i) {
        const int x = 560 + static_cast<int>(i % 3) * 110;
        const int row = y + 12 + static_cast<int>(i / 3) * (editHeight + 10);
        form.symbol(factors[i].symbol, x, row + labelDrop, 26);
        form.number({factors[i].field}, x + 28, row, 56);
    }
}

constexpr int materialTop = loadTop + loadHeight + 6;
constexpr int materialHeight = formHeight / 15 - materialTop - margin;

void addConcrete(LayoutBuilder& form, int x, int width) {
    constexpr int listFrame = 56;
    form.frame("Betongklass", x, materialTop, width, listFrame);
    form.list(Field::btg, x + inner, materialTop + 22, width - 2 * inner);

    constexpr int ceilingTop = materialTop + listFrame + 6;
    form.frame("Undertak", x, ceilingTop, width, 66);
    form.options(Field::kutak, std::array{"Saknas", "13 Gips"}, x + inner, ceilingTop + 21,
                 width - 2 * inner);
}

// A number with its unit behind it, its caption on the line above.
void addMeasure(LayoutBuilder& form, const char* caption, Field field, const char* initial, const char* unit,
                int x, int y, int width) {
    form.label(caption, x, y, width);
    form.number({field}, x, y + textHeight + 3, 56, initial);
    form.label(unit, x + 62, y + textHeight + 3 + labelDrop, 30);
}

void addReinforcement(LayoutBuilder& form, const char* caption, Field grade, Field diameter, int x,
                      int width) {
    form.frame(caption, x, materialTop, width, materialHeight);
    int y = materialTop + 22;
    form.symbol("f_yk", x + inner, y + labelDrop, 36);
    form.list(grade, x + inner + 40, y, 80);
    y += editHeight + 8;
    form.symbol("ø", x + inner, y + labelDrop, 36);
    form.list(diameter, x + inner + 40, y, 80);
}

constexpr int measureTop = materialTop + 22 + 2 * (editHeight + 8) + 4;

void addTopReinforcement(LayoutBuilder& form, int x, int width) {
    addReinforcement(form, "Armering i överkant", Field::aok, Field::dok, x, width);
    addMeasure(form, "Täckande BTG-skikt i ÖK", Field::ktack, "15", "mm", x + inner, measureTop,
               width - 2 * inner);
    form.add(controlId({Field::kavko}), ControlKind::check, "Avkortning av armering", x + inner,
             measureTop + textHeight + editHeight + 14, width - 2 * inner, optionHeight);
}

void addBottomReinforcement(LayoutBuilder& form, int x, int width) {
    addReinforcement(form, "Armering i underkant - för Brand", Field::auk, Field::duk, x, width);
    addMeasure(form, "Avst. tyngdpkt armering i UK", Field::duarm, "42", "mm", x + inner, measureTop,
               width - 2 * inner);
}

void addFire(LayoutBuilder& form, int x, int width) {
    form.frame("Beräkningsmetod - Brand", x, materialTop, width, materialHeight);
    form.list(Field::brandk, x + inner, materialTop + 22, width - 2 * inner);
    form.options(Field::brandb, std::array{" REI  30 ", " REI  60 ", " REI  90 ", " REI 120 "}, x + inner,
                 materialTop + 22 + editHeight + 12, width - 2 * inner);
}

void addDeformation(LayoutBuilder& form, int x, int width) {
    form.frame("Deformation", x, materialTop, width, materialHeight);
    int y = materialTop + 21;
    form.options(Field::brukskomb, std::array{"Frekventa laster", "Karakteristiska laster"}, x + inner, y,
                 width - 2 * inner);
    y += 2 * (optionHeight + 3) + 6;
    struct Limit {
        const char* caption;
        Field field;
    };
    constexpr std::array limits{Limit{"Initiell nedböjning ", Field::initiell},
                                Limit{"Tillkommande nedböjning", Field::tillkommande}};
    for (const Limit& limit : limits) {
        form.label(limit.caption, x + inner, y, width - 2 * inner);
        y += textHeight + 2;
        form.label("L /", x + inner, y + labelDrop, 22);
        form.number({limit.field}, x + inner + 24, y, 56, "400");
        y += editHeight + 6;
    }
    form.label("Överhöjning (mm)", x + inner, y + labelDrop, 112);
    form.number({Field::overhojning}, x + inner + 114, y, 46, "20");
}

} // namespace

int spanHeadId(int span) {
    return idFormLabel + span;
}

int classFrameId(int ruleSet) {
    return idFormLabel + 40 + ruleSet;
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
