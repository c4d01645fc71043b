#pragma once

#include <array>
#include <string>
#include <string_view>

#include "input/field_table.h"
#include "lineloads/line_load_view.h"
#include "model/design_case.h"

namespace varno {

/// Which line loads of the design case an editor works on.
struct LineLoadSet {
    const char* caption; ///< of the editor's window
    std::int16_t DesignCase::*count;
    LineLoadIntegers DesignCase::*span;  ///< the span that carries load i
    LineLoadReals DesignCase::*distance; ///< from the left support of that span, m
    LineLoadReals DesignCase::*load;     ///< kN/m
    bool hasMultipliers;                 ///< the editor shows the multiplier panel
};

/// Saved with the case and calculated with.
inline constexpr LineLoadSet caseLineLoads{.caption = "Linjelaster",
                                           .count = &DesignCase::nllast,
                                           .span = &DesignCase::llfnr,
                                           .distance = &DesignCase::avst,
                                           .load = &DesignCase::lllast,
                                           .hasMultipliers = false};
/// Only drawn in the sketch: in no file, and unknown to the calculation.
inline constexpr LineLoadSet freeLineLoads{.caption = "Fria linjelaster",
                                           .count = &DesignCase::nllastf,
                                           .span = &DesignCase::llfnrf,
                                           .distance = &DesignCase::avstf,
                                           .load = &DesignCase::lllastf,
                                           .hasMultipliers = true};

// What both editors show. UTF-8.

inline constexpr const char* lineLoadFrame = caseLineLoads.caption;
inline constexpr const char* lineLoadCount = "Antal linjelaster:";

/// A column of the five rows: its heading and its unit.
struct LineLoadColumn {
    const char* heading;
    const char* unit;
};
inline constexpr std::array lineLoadColumns{
    LineLoadColumn{"Fack nr", ""},
    LineLoadColumn{"Avstånd från vänster stöd", "(m)"},
    LineLoadColumn{"Last", "(kN/m)"},
};

// The multiplier panel. "Multiplikatoer" is how the users know it.

inline constexpr const char* multiplierFrame = "Multiplikatoer 1)";
inline constexpr const char* multiplierLoadCase = combinationHeading;
inline constexpr const char* multiplierValue = "Multiplikator";
inline constexpr const char* multiplierNote =
    "1) Multiplikatorn för aktuell Lastkombination = Partkoeff. x Lastreduktionsfaktorn (Psi)";

/// Labels of the boxes mfbro, mfbru, mflan and mfbra.
inline constexpr std::array multiplierLabels{"Brottlast", "Brukslast", "Långtidslast", "Brandlast"};

/// What a box is called where its place does not tell: by a screen reader, in a message.
inline std::string accessibleName(LineLoadControl control) {
    if (control.box == LineLoadBox::nllast)
        return std::string(lineLoadCount).substr(0, std::string_view(lineLoadCount).find(':'));
    if (control.box == LineLoadBox::multiplier)
        return std::string(multiplierValue) + ", " +
               multiplierLabels.at(static_cast<std::size_t>(control.index - 1));
    const auto column = static_cast<std::size_t>(control.box) - static_cast<std::size_t>(LineLoadBox::llfnr);
    const auto& [heading, unit] = lineLoadColumns.at(column);
    return std::string(heading) + (*unit != '\0' ? " " : "") + unit + ", linjelast " +
           std::to_string(control.index);
}

} // namespace varno
