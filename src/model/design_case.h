#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/bounded_array.h"

namespace varno {

inline constexpr int maxSpans = 10;       ///< spans that the form offers
inline constexpr int maxLineLoads = 5;    ///< line loads of a case
inline constexpr int maxLoadCode = 6;     ///< highest load rule set
inline constexpr int maxLoadCategory = 9; ///< highest load category

using SpanArray = BoundedArray<float, 0, 15>;               ///< spans from 1, supports from 0
using LineLoadReals = BoundedArray<float, 0, maxLineLoads>; ///< element 0 is not used
using LineLoadIntegers = BoundedArray<std::int16_t, 0, maxLineLoads>;

/// A cell of a factor table: a double, or empty (rule set 0 until a case fills its current cells).
using Factor = std::optional<double>;
using FactorPerRuleSet = BoundedArray<Factor, 0, maxLoadCode>;
/// psi(L, K): per rule set L (0..6) and load category K (0..9).
class FactorPerCategory {
  public:
    Factor& operator()(int ruleSet, int category) { return rows_(ruleSet)(category); }
    const Factor& operator()(int ruleSet, int category) const { return rows_(ruleSet)(category); }
    const auto& operator()(int ruleSet) const { return rows_(ruleSet); }
    bool operator==(const FactorPerCategory&) const = default;

  private:
    BoundedArray<BoundedArray<Factor, 0, maxLoadCategory>, 0, maxLoadCode> rows_;
};

/// The one design case of the program. Lengths in m, distributed loads in kN/m², line loads in kN/m. The
/// record checks no value; an index outside an array raises run-time error 9.
struct DesignCase {
    // Geometry and distributed loads. Support i stands at the right end of span i; supports 0 and nfack are
    // the end supports and are held at width 0.
    std::int16_t nfack = 0; ///< number of spans, 1..10 (a file may hold up to 15)
    SpanArray spv;          ///< span length, m
    SpanArray ptjl;         ///< slab thickness, m
    SpanArray upl;          ///< support width, m
    SpanArray plast;        ///< permanent load, kN/m²
    SpanArray flast;        ///< variable load, kN/m²
    float konsv = 0;        ///< left cantilever, m; 0 = none
    float konsh = 0;        ///< right cantilever, m; 0 = none

    // Load rules and factors.
    std::int16_t loadCode = 0; ///< load rule set; 1 the Swedish rules, 0 has no presets
    BoundedArray<std::int16_t, 0, maxLoadCode> safetyClass; ///< chosen class option of each rule set
    std::int16_t lokt = 0;                                  ///< load category, row of the psi tables
    FactorPerRuleSet lambdaG;                               ///< partial factor, permanent load
    FactorPerRuleSet ksi;                                   ///< reduction factor for the permanent load
    FactorPerRuleSet lambdaQ;                               ///< partial factor, variable load
    FactorPerCategory psi0;                                 ///< combination factor
    FactorPerCategory psi1;                                 ///< frequent value factor
    FactorPerCategory psi2;                                 ///< quasi-permanent value factor
    std::int16_t lastkomb = 0;                              ///< load combination option
    std::int16_t brukskomb = 0;                             ///< serviceability combination option

    // Concrete, reinforcement, fire, deformation. Numbers of list fields are list position + 1.
    std::int16_t btg = 0;           ///< concrete class
    std::int16_t aok = 0;           ///< steel grade, top reinforcement
    std::int16_t dok = 0;           ///< bar diameter, top reinforcement
    std::int16_t kavko = 0;         ///< curtailment of the top reinforcement; any value but 0 is "yes"
    std::int16_t ktack = 0;         ///< cover to the top reinforcement, mm
    std::int16_t auk = 0;           ///< steel grade, bottom reinforcement
    std::int16_t duk = 0;           ///< bar diameter, bottom reinforcement
    std::int16_t duarm = 0;         ///< underside to centroid of the bottom reinforcement, mm
    std::int16_t brandk = 0;        ///< fire class
    std::int16_t brandb = 0;        ///< fire calculation method option
    std::int16_t kutak = 0;         ///< ceiling option
    std::int16_t overhojning = 0;   ///< camber, mm
    std::int16_t initiell = 0;      ///< initial deflection limit, n of span/n
    std::int16_t tillkommande = 0;  ///< additional deflection limit, n of span/n
    std::int16_t reservedValue = 0; ///< carried from the file read to the file written

    // Line loads, elements 1..nllast in use; the others are kept and saved as they are.
    std::int16_t nllast = 0; ///< number of line loads, 0..5
    LineLoadIntegers llfnr;  ///< span that carries line load i
    LineLoadReals avst;      ///< its distance from the span's left support, m
    LineLoadReals lllast;    ///< its magnitude, kN/m

    // Free line loads: only in the sketch, never in a file.
    std::int16_t nllastf = 0;
    LineLoadIntegers llfnrf;
    LineLoadReals avstf;
    LineLoadReals lllastf;

    bool operator==(const DesignCase&) const = default;
};

/// What the program knows of the document beside its content. All texts are UTF-8.
struct DocumentState {
    std::string currentFileName; ///< case name without extension
    std::string savedFileName;   ///< file name with extension, as saved
    bool dataChanged = false;    ///< there are changes that are not saved
    bool caseSaved = false;      ///< the case was opened from or saved to a file that the user chose
};

} // namespace varno
