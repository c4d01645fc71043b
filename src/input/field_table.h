#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "controls/field.h"
#include "model/design_case.h"
#include "model/reference_tables.h"

// What the main input form consists of, one row a field: the rules, the layout, the screen reader, the help and
// varnotool read it. Texts are UTF-8 and stand here only; a field's help topic is "falt-" and its name.

namespace varno {

/// What every field has.
struct FieldRow {
    Field field;
    std::string_view name;
    std::string_view caption; ///< beside the field, or on its frame; a symbol is written "f_yk"
    /// What a screen reader says instead of the caption, or, from a comma on, behind it. Of a row of boxes it
    /// says the span or support too.
    std::string_view spoken = "";
    std::string_view unit = ""; ///< behind the box, where the caption does not hold it
};

/// Where the number of a text field lives. The factors have one cell per rule set, or per rule set and load
/// category: the current one.
using NumberPlace = std::variant<SpanArray DesignCase::*, float DesignCase::*, FactorPerRuleSet DesignCase::*,
                                 FactorPerCategory DesignCase::*, std::int16_t DesignCase::*>;

/// Whether leaving the field marks the case as changed, even when its text was left alone.
enum class OnLeaving { nothing, marks };
/// What of the sketch a changed number redraws.
enum class Redraws { nothing, geometry, all };

struct TextField : FieldRow {
    std::string_view pattern;      ///< what its text becomes when it is left
    std::string_view shownPattern; ///< as a case being read shows it
    NumberPlace place;
    OnLeaving onLeaving;
    Redraws redraws;
    std::string_view designText = ""; ///< until a case is read

    bool isPerSpan() const { return std::holds_alternative<SpanArray DesignCase::*>(place); }
    bool isFactor() const {
        return std::holds_alternative<FactorPerRuleSet DesignCase::*>(place) ||
               std::holds_alternative<FactorPerCategory DesignCase::*>(place);
    }
};

namespace fieldTable {
using enum OnLeaving;
constexpr auto redrawsNothing = Redraws::nothing;
constexpr auto redrawsGeometry = Redraws::geometry;
constexpr auto redrawsAll = Redraws::all;
using C = DesignCase;
// Captions of more than one field.
constexpr std::string_view steelSymbol = "f_yk";
constexpr std::string_view barSymbol = "ø";
constexpr std::string_view millimetres = "mm";
} // namespace fieldTable

// clang-format off
inline constexpr auto textFields = [] {
    using namespace fieldTable;
    return std::array{
        // Spans 1..nfack; an edit is carried forward to the spans behind it.
        TextField{{Field::spv, "spv", "Spännvidd (m)"},
                  "##0.00", "#0.00", &C::spv, nothing, redrawsAll},
        TextField{{Field::ptjl, "ptjl", "Plattjocklek (m)"},
                  "#0.000", "0.000", &C::ptjl, nothing, redrawsGeometry},
        TextField{{Field::plast, "plast", "Permanent last (kN/m2)"},
                  "##0.00", "#0.00", &C::plast, nothing, redrawsAll},
        TextField{{Field::flast, "flast", "Last (kN/m2)", "Variabel last (kN/m2)"},
                  "##0.00", "#0.00", &C::flast, nothing, redrawsAll},
        // Supports 0..nfack.
        TextField{{Field::upl, "upl", "Upplagsbredd (m)"},
                  "0.000", "0.000", &C::upl, nothing, redrawsNothing},
        TextField{{Field::konsv, "konsv", "Konsol vänster (m)"},
                  "#0.00", "#0.00", &C::konsv, nothing, redrawsAll},
        TextField{{Field::konsh, "konsh", "Konsol höger (m)"},
                  "#0.00", "#0.00", &C::konsh, nothing, redrawsAll},
        TextField{{Field::lambdaG, "lambdaG", "γ_G", "Partialkoefficient för permanent last"},
                  "#0.00", "#0.00", &C::lambdaG, marks, redrawsNothing},
        TextField{{Field::ksi, "ksi", "ξ", "Reduktionsfaktor för permanent last"},
                  "#0.00", "#0.00", &C::ksi, marks, redrawsNothing},
        TextField{{Field::lambdaQ, "lambdaQ", "γ_Q", "Partialkoefficient för variabel last"},
                  "#0.00", "#0.00", &C::lambdaQ, marks, redrawsNothing},
        TextField{{Field::psi0, "psi0", "ψ_0", "Kombinationsfaktor psi 0"},
                  "#0.00", "#0.00", &C::psi0, marks, redrawsNothing},
        TextField{{Field::psi1, "psi1", "ψ_1", "Faktor för frekvent värde, psi 1"},
                  "#0.00", "#0.00", &C::psi1, marks, redrawsNothing},
        TextField{{Field::psi2, "psi2", "ψ_2", "Faktor för kvasipermanent värde, psi 2"},
                  "#0.00", "#0.00", &C::psi2, marks, redrawsNothing},
        // Limits are divisors n of span/n.
        TextField{{Field::initiell, "initiell", "Initiell nedböjning ", ", L genom"},
                  "#0", "####", &C::initiell, marks, redrawsNothing, "400"},
        TextField{{Field::tillkommande, "tillkommande", "Tillkommande nedböjning", ", L genom"},
                  "#0", "####", &C::tillkommande, marks, redrawsNothing, "400"},
        TextField{{Field::overhojning, "overhojning", "Överhöjning (mm)"},
                  "#0", "#0", &C::overhojning, marks, redrawsNothing, "20"},
        // Shown with two decimals but stored as a whole number: 23.50 is 24.
        TextField{{Field::ktack, "ktack", "Täckande BTG-skikt i ÖK", "Täckande betongskikt i överkant", millimetres},
                  "#0.00", "#0", &C::ktack, nothing, redrawsNothing, "15"},
        TextField{{Field::duarm, "duarm", "Avst. tyngdpkt armering i UK", "Avstånd till tyngdpunkt för armering i underkant", millimetres},
                  "#0", "#0", &C::duarm, nothing, redrawsNothing, "42"},
    };
}();
// clang-format on

enum class ChoiceKind { list, options, checkBox };
enum class StoredOn { leaving, click };

/// A list, an option group or the check box.
struct ChoiceField : FieldRow {
    ChoiceKind kind;
    StoredOn storedOn;
    std::int16_t DesignCase::*place;
    int firstNumber; ///< what the first row or option is stored as
    std::span<const std::string_view> options;

    int count() const { return static_cast<int>(options.size()); }
};

inline constexpr const char* combinationHeading = "Lastkombination"; ///< of the multipliers too
inline constexpr std::array<std::string_view, 3> loadCombinations{"6.10 a", "6.10 b", "6.10 a och 6.10 b"};
inline constexpr std::array<std::string_view, 2> serviceCombinations{"Frekventa laster",
                                                                     "Karakteristiska laster"};
// Equally long, with their blanks.
inline constexpr std::array<std::string_view, 4> fireResistances{" REI  30 ", " REI  60 ", " REI  90 ",
                                                                 " REI 120 "};
inline constexpr std::array<std::string_view, 4> fireLoads{"100 MJ/m2", "150 MJ/m2", "200 MJ/m2",
                                                           "250 MJ/m2"};
inline constexpr std::array<std::string_view, 2> ceilings{"Saknas", "13 Gips"};

// clang-format off
inline constexpr auto choiceFields = [] {
    using namespace fieldTable;
    using enum ChoiceKind;
    using enum StoredOn;
    return std::array{
        // Stored under rule set 1 only; under the others the choice is dropped.
        ChoiceField{{Field::btg, "btg", "Betongklass"}, list, leaving, &C::btg, 1, concreteClasses},
        ChoiceField{{Field::aok, "aok", steelSymbol, "Stålsort, armering i överkant"}, list, leaving, &C::aok, 1, steelGrades},
        ChoiceField{{Field::dok, "dok", barSymbol, "Stångdiameter, armering i överkant"}, list, leaving, &C::dok, 1, barDiameters},
        ChoiceField{{Field::auk, "auk", steelSymbol, "Stålsort, armering i underkant"}, list, leaving, &C::auk, 1, steelGrades},
        ChoiceField{{Field::duk, "duk", barSymbol, "Stångdiameter, armering i underkant"}, list, leaving, &C::duk, 1, barDiameters},
        ChoiceField{{Field::brandk, "brandk", "", fireClasses.front()}, list, click, &C::brandk, 1, fireClasses},
        ChoiceField{{Field::lokt, "lokt", "Lastkategori"}, list, click, &C::lokt, 0, loadCategories},
        ChoiceField{{Field::lastkomb, "lastkomb", combinationHeading}, options, click, &C::lastkomb, 1, loadCombinations},
        ChoiceField{{Field::brukskomb, "brukskomb", "Deformation"}, options, click, &C::brukskomb, 1, serviceCombinations},
        // What the options mean follows the fire class.
        ChoiceField{{Field::brandb, "brandb", "Beräkningsmetod - Brand"}, options, click, &C::brandb, 1, fireResistances},
        ChoiceField{{Field::kutak, "kutak", "Undertak"}, options, click, &C::kutak, 1, ceilings},
        ChoiceField{{Field::kavko, "kavko", "Avkortning av armering"}, checkBox, click, &C::kavko, 0, {}},
    };
}();
// clang-format on

/// The title, and the number of spans with its spin button.
inline constexpr std::array otherFields{
    FieldRow{Field::rubrik, "rubrik", "Rubrik:"},
    FieldRow{Field::nfack, "nfack", "Antal Fack:"},
};

// Captions of frames and rows that belong to no single field.
inline constexpr std::string_view geometryFrame = "Geometri och Last";
inline constexpr std::string_view spanHeading = "Fack";
inline constexpr std::string_view topReinforcement = "Armering i överkant";
inline constexpr std::string_view bottomReinforcement = "Armering i underkant - för Brand";
inline constexpr std::string_view limitHeading = "L /";

/// The row of a field, null for a field that is not in the table.
const FieldRow* fieldRow(Field field);
const TextField* textField(Field field);
const ChoiceField* choiceField(Field field);

/// The number of the record that a field shows; nothing for a factor without a value.
std::optional<double> numberOf(const DesignCase& designCase, const TextField& row, int index = 0);
/// What the options of `brandb` mean: a fire resistance, or a fire load for fire class 2.
std::span<const std::string_view> fireOptions(int fireClass);
/// The words of what is chosen in a list or an option group, without the padding of its rows; nothing for a number that
/// no row has.
std::optional<std::string> choiceText(Field field, const DesignCase& designCase);

/// What a screen reader says for a control: the boxes of the grid are told apart by span or support. Empty
/// for a control that its own caption names.
std::string accessibleName(Control control);
/// The name of a field's help topic; empty for what is no field.
std::string fieldTopic(Field field);
/// A caption in running text: "Spännvidd" of "Spännvidd (m)".
std::string plainCaption(Field field);
/// "m" of "Spännvidd (m)".
std::string unitOf(Field field);

} // namespace varno
