#pragma once

#include <optional>
#include <string>

#include "base/numbers.h"
#include "controls/field.h"
#include "model/design_case.h"
#include "results/result_viewer.h"

namespace varno {

/// What the line at the foot of the main window says. `reason` takes the place of the others while it has words.
struct StatusWords {
    std::string state;
    std::string folder;
    std::string length;
    std::string result;
    std::string reason;
    bool operator==(const StatusWords&) const = default;
};

/// What the words tell of, as it is now.
struct StatusFacts {
    bool changed = false;             ///< something is not saved
    std::string folder;               ///< where "Spara" writes
    float totalLength = 0;            ///< m
    std::optional<Control> lockedBox; ///< the locked box that the pointer or the focus is on
    bool greyDiagram = false;         ///< they are on "Diagram", and it is grey
    int doubts = 0;                   ///< values to look at twice
    std::string doubt;                ///< what there is to say of the one that they are on
};

/// The words of the status line. A result is older than the input as soon as what it was calculated from is another:
/// the title and the free line loads do not count.
class StatusLine {
  public:
    StatusLine(const DesignCase& designCase, const DocumentState& document, const NumberLocale& locale)
        : case_(designCase), document_(document), locale_(locale) {}

    /// The case was calculated. \param when "2026-11-21 15:40:07"
    void calculated(const std::string& when);
    /// Another case is open; nothing is known of its result.
    void opened();

    StatusWords words(const StatusFacts& facts) const;
    /// Which file a window shows, when it was calculated, and whether it is older than the input.
    std::string resultLine(const ShownResult& shown) const;

  private:
    struct Calculated {
        std::string when;
        DesignCase from;
    };
    std::string state(bool changed) const;
    std::string result() const;
    bool resultIsOld() const;
    std::string whyLocked(Control box) const;
    std::string whyGrey() const;

    const DesignCase& case_;
    const DocumentState& document_;
    const NumberLocale& locale_;
    std::optional<Calculated> calculated_;
    DesignCase opened_;
};

} // namespace varno
