#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <type_traits>

#include "controls/field.h"

namespace varno {

/// A load rule set, with its flag and its safety or reliability classes.
struct RuleSet {
    int number; ///< `loadCode`, from 1
    const char* name;
    int flag;         ///< its picture `Flagga`; a click on it leads to the set of the next one
    Field classGroup; ///< its class options
    const char* groupName;
    const char* frame; ///< caption of the frame around them
    std::array<const char*, 3> classes;
    int classWritten; ///< the element of `safetyClass` that a click writes; 0: a click does nothing
    const char* helpTopic;
};

namespace ruleSetTexts {
inline constexpr const char* safety = "Säkerhetsklass";
inline constexpr std::array plain{"1", "2", "3"};
inline constexpr std::array reliability{"RC1", "RC2", "RC3"};
} // namespace ruleSetTexts

// Meant as they stand: a click in shklpl writes the element of shkldk, and shkleu has no click action.
// clang-format off
inline constexpr auto ruleSets = [] {
    using namespace ruleSetTexts;
    return std::array{
        RuleSet{1, "Svenska byggregler (BKR)", 1, Field::shkl, "shkl", safety, plain, 1, "falt-shkl"},
        RuleSet{2, "Eurokod, Polen", 5, Field::shklpl, "shklpl", safety, reliability, 5, "falt-shklpl"},
        RuleSet{3, "Eurokod, Sverige", 2, Field::pkl, "pkl", "Pålitlighetsklass", plain, 3, "falt-pkl"},
        RuleSet{4, "Eurokod, Finland", 4, Field::shklfi, "shklfi", safety, reliability, 4, "falt-shklfi"},
        RuleSet{5, "Eurokod, Danmark", 3, Field::shkldk, "shkldk", "Konstruktionssklasse", plain, 5, "falt-shkldk"},
        RuleSet{6, "Eurokod, allmänt", 6, Field::shkleu, "shkleu", safety, reliability, 0, "falt-shkleu"},
    };
}();
// clang-format on

inline constexpr int swedishRules = 1;
/// A flag each, and the neutral picture of a case without rules.
inline constexpr int flagCount = static_cast<int>(ruleSets.size()) + 1;

/// The row with this value in a column, null when there is none: a case may be without load rules.
template <typename Value>
constexpr const RuleSet* ruleSetWith(Value RuleSet::*column, std::type_identity_t<Value> value) {
    const auto* const row = std::ranges::find(ruleSets, value, column);
    return row == ruleSets.end() ? nullptr : row;
}

/// The rule set that a flag shows, for the label beside it and for screen readers.
constexpr const char* flagName(int flag) {
    const RuleSet* const rules = ruleSetWith(&RuleSet::flag, flag);
    return rules == nullptr ? "Inget regelverk valt" : rules->name;
}

/// What a click on a flag does: each leads to the next, and the last to the first.
inline std::string flagTip(int flag) {
    const RuleSet* const next = ruleSetWith(&RuleSet::flag, flag + 1);
    return std::string(flagName(flag)) + "\nEtt klick byter till " +
           (next == nullptr ? ruleSets.front().name : next->name) +
           ".\nHögerklick: byt till svenska byggregler (BKR).";
}

/// The caption of the frame around the loads.
constexpr const char* loadFrameCaption(int ruleSet) {
    return ruleSet == swedishRules ? "Laster enl. BKR" : "Laster enl. Eurokod";
}

} // namespace varno
