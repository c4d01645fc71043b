#pragma once

#include <array>
#include <string_view>
#include <variant>

#include "input/form_view.h"
#include "model/design_case.h"

// What the main input form consists of, one row per field: the rules, the window and the tests read the same
// tables. Captions are those beside the fields, UTF-8; the factor fields are labelled by their symbols.

namespace varno {

/// Where the number of a text field lives. The factors have one cell per rule set, or per rule set and load
/// category: the current one.
using NumberPlace = std::variant<SpanArray DesignCase::*, float DesignCase::*, FactorPerRuleSet DesignCase::*,
                                 FactorPerCategory DesignCase::*, std::int16_t DesignCase::*>;

/// Whether leaving the field marks the case as changed, even when its text was left alone.
enum class OnLeaving { nothing, marks };
/// What of the sketch a changed number redraws.
enum class Redraws { nothing, geometry, all };

struct TextField {
    Field field;
    std::string_view name;
    std::string_view caption;
    std::string_view meaning;
    std::string_view pattern;      ///< what its text becomes when it is left
    std::string_view shownPattern; ///< as a case being read shows it
    NumberPlace place;
    OnLeaving onLeaving;
    Redraws redraws;
    std::string_view designText; ///< until a case is read
    std::string_view helpTopic;
};

namespace fieldTable {
using enum OnLeaving;
constexpr auto redrawsNothing = Redraws::nothing;
constexpr auto redrawsGeometry = Redraws::geometry;
constexpr auto redrawsAll = Redraws::all;
using C = DesignCase;
} // namespace fieldTable

// clang-format off
inline constexpr auto textFields = [] {
    using namespace fieldTable;
    return std::array{
        // Spans 1..nfack; an edit is carried forward to the spans behind it.
        TextField{Field::spv, "spv", "Spännvidd (m)", "span length, m",
                  "##0.00", "#0.00", &C::spv, nothing, redrawsAll, "", "falt-spv"},
        TextField{Field::plast, "plast", "Permanent last (kN/m2)", "permanent load, kN/m²",
                  "##0.00", "#0.00", &C::plast, nothing, redrawsAll, "", "falt-plast"},
        TextField{Field::flast, "flast", "Last (kN/m2)", "variable load, kN/m²",
                  "##0.00", "#0.00", &C::flast, nothing, redrawsAll, "", "falt-flast"},
        TextField{Field::ptjl, "ptjl", "Plattjocklek (m)", "slab thickness, m",
                  "#0.000", "0.000", &C::ptjl, nothing, redrawsGeometry, "", "falt-ptjl"},
        // Supports 0..nfack.
        TextField{Field::upl, "upl", "Upplagsbredd (m)", "support width, m",
                  "0.000", "0.000", &C::upl, nothing, redrawsNothing, "", "falt-upl"},
        TextField{Field::konsv, "konsv", "Konsol vänster (m)", "left cantilever, m",
                  "#0.00", "#0.00", &C::konsv, nothing, redrawsAll, "", "falt-konsv"},
        TextField{Field::konsh, "konsh", "Konsol höger (m)", "right cantilever, m",
                  "#0.00", "#0.00", &C::konsh, nothing, redrawsAll, "", "falt-konsh"},
        TextField{Field::lambdaG, "lambdaG", "", "partial factor, permanent load",
                  "#0.00", "#0.00", &C::lambdaG, marks, redrawsNothing, "", "falt-lambdag"},
        TextField{Field::lambdaQ, "lambdaQ", "", "partial factor, variable load",
                  "#0.00", "#0.00", &C::lambdaQ, marks, redrawsNothing, "", "falt-lambdaq"},
        TextField{Field::ksi, "ksi", "", "reduction factor for the permanent load",
                  "#0.00", "#0.00", &C::ksi, marks, redrawsNothing, "", "falt-ksi"},
        TextField{Field::psi0, "psi0", "", "combination factor",
                  "#0.00", "#0.00", &C::psi0, marks, redrawsNothing, "", "falt-psi0"},
        TextField{Field::psi1, "psi1", "", "frequent value factor",
                  "#0.00", "#0.00", &C::psi1, marks, redrawsNothing, "", "falt-psi1"},
        TextField{Field::psi2, "psi2", "", "quasi-permanent value factor",
                  "#0.00", "#0.00", &C::psi2, marks, redrawsNothing, "", "falt-psi2"},
        TextField{Field::initiell, "initiell", "Initiell nedböjning ", "initial deflection limit, n of span/n",
                  "#0", "####", &C::initiell, marks, redrawsNothing, "400", "falt-initiell"},
        TextField{Field::tillkommande, "tillkommande", "Tillkommande nedböjning", "additional deflection limit, n of span/n",
                  "#0", "####", &C::tillkommande, marks, redrawsNothing, "400", "falt-tillkommande"},
        TextField{Field::overhojning, "overhojning", "Överhöjning (mm)", "camber, mm",
                  "#0", "#0", &C::overhojning, marks, redrawsNothing, "20", "falt-overhojning"},
        // Shown with two decimals but stored as a whole number: 23.50 is 24.
        TextField{Field::ktack, "ktack", "Täckande BTG-skikt i ÖK", "cover to the top reinforcement, mm",
                  "#0.00", "#0", &C::ktack, nothing, redrawsNothing, "15", "falt-ktack"},
        TextField{Field::duarm, "duarm", "Avst. tyngdpkt armering i UK", "underside to centroid of the bottom reinforcement, mm",
                  "#0", "#0", &C::duarm, nothing, redrawsNothing, "42", "falt-duarm"},
    };
}();
// clang-format on

enum class ChoiceKind { list, options, checkBox };
enum class StoredOn { leaving, click };

/// A list, an option group or the check box.
struct ChoiceField {
    Field field;
    std::string_view name;
    std::string_view caption;
    ChoiceKind kind;
    StoredOn storedOn;
    std::int16_t DesignCase::*place;
    int firstNumber; ///< what the first row or option is stored as
    int count;       ///< rows or options
    std::array<std::string_view, 3> options;
    std::string_view helpTopic;
};

// clang-format off
inline constexpr auto choiceFields = [] {
    using enum ChoiceKind;
    using enum StoredOn;
    using C = DesignCase;
    return std::array{
        // Stored under rule set 1 only; under the others the choice is dropped.
        ChoiceField{Field::btg, "btg", "Betongklass", list, leaving, &C::btg, 1, 9, {}, "falt-btg"},
        ChoiceField{Field::aok, "aok", "fyk", list, leaving, &C::aok, 1, 3, {}, "falt-aok"},
        ChoiceField{Field::dok, "dok", "", list, leaving, &C::dok, 1, 5, {}, "falt-dok"},
        ChoiceField{Field::auk, "auk", "fyk", list, leaving, &C::auk, 1, 3, {}, "falt-auk"},
        ChoiceField{Field::duk, "duk", "", list, leaving, &C::duk, 1, 5, {}, "falt-duk"},
        ChoiceField{Field::brandk, "brandk", "", list, click, &C::brandk, 1, 1, {}, "falt-brandk"},
        ChoiceField{Field::lokt, "lokt", "", list, click, &C::lokt, 0, 10, {}, "falt-lokt"},
        ChoiceField{Field::lastkomb, "lastkomb", "", options, click, &C::lastkomb, 1, 3,
                    {"6.10 a", "6.10 b", "6.10 a och 6.10 b"}, "falt-lastkomb"},
        ChoiceField{Field::brukskomb, "brukskomb", "", options, click, &C::brukskomb, 1, 2,
                    {"Frekventa laster", "Karakteristiska laster"}, "falt-brukskomb"},
        // The captions follow the fire class.
        ChoiceField{Field::brandb, "brandb", "", options, click, &C::brandb, 1, 4, {}, "falt-brandb"},
        ChoiceField{Field::kutak, "kutak", "", options, click, &C::kutak, 1, 2,
                    {"Saknas", "13 Gips"}, "falt-kutak"},
        ChoiceField{Field::kavko, "kavko", "Avkortning av armering", checkBox, click, &C::kavko, 0, 2, {},
                    "falt-kavko"},
    };
}();
// clang-format on

/// The row of a field, null for a field that is not in the table.
const TextField* textField(Field field);
const ChoiceField* choiceField(Field field);

} // namespace varno
