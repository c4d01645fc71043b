#pragma once

#include <array>
#include <string_view>

#include "model/design_case.h"

namespace varno {

// The rows of the input form's lists. The trailing blanks belong to the rows and stand in the lists. UTF-8.

inline constexpr std::array<std::string_view, 9> concreteClasses{
    "C20/25", "C25/30", "C30/37", "C35/45", "C40/50", "C45/55", "C50/60", "C55/67", "C60/75"};
inline constexpr std::array<std::string_view, 5> barDiameters{"ø 6 ", "ø 8 ", "ø 10", "ø 12", "ø 16"};
inline constexpr std::array<std::string_view, 3> steelGrades{"400 ", "500 ", "600 "};
inline constexpr std::array<std::string_view, 10> loadCategories{
    "Valfri last", "A-Bostäder ", "B-Kontor   ", "C1         ", "C2         ",
    "C3         ", "C4         ", "C5         ", "D1         ", "D2         "};
inline constexpr std::array<std::string_view, 1> fireClasses{"Brandteknisk klass"};

/// Default variable load, kN/m², of a rule set (0..6) and load category (0..9). \throws RunTimeError 9
/// outside.
float loadFactorTable(int ruleSet, int category);

/// Sets the span defaults (supports 1..9 0.1 m, 0 and 10 0; spans 1..10: 5.5 m long, 0.17 m thick, 2.0 kN/m²
/// variable and no permanent load) and presets the factor tables of rule sets 1 to 6. Rule set 0 has no
/// presets.
void presetDesignCase(DesignCase& designCase);

} // namespace varno
