#include "model/plausibility.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "model/record_fields.h"
#include "model/reference_tables.h"

namespace varno {

namespace {

using Kind = Finding::Kind;

// The shortest text, as a Swede reads it: what is told is the number as it is stored.
std::string shown(float value) {
    std::string text = std::isfinite(value) ? generalForm(value) : "?";
    if (const auto point = text.find('.'); point != std::string::npos) text[point] = ',';
    return text;
}

std::string inSpan(int span) {
    return "fack " + std::to_string(span);
}

// A set of them, and what one of it is called.
struct LineLoads {
    const char* name;
    std::int16_t DesignCase::*count;
    LineLoadIntegers DesignCase::*span;
    LineLoadReals DesignCase::*distance;
};
constexpr LineLoads lineLoads{"Linjelast", &DesignCase::nllast, &DesignCase::llfnr, &DesignCase::avst};
constexpr LineLoads freeLineLoads{"Fri linjelast", &DesignCase::nllastf, &DesignCase::llfnrf,
                                  &DesignCase::avstf};

class Look {
  public:
    explicit Look(const DesignCase& designCase)
        : case_(designCase), spans_(std::clamp<int>(designCase.nfack, 0, SpanArray::last)) {}

    std::vector<Finding> findings() {
        for (int span = 1; span <= spans_; ++span) {
            lookAtSpan(span);
            lookAtSupport(span);
        }
        if (spans_ > 0) {
            lookAtCantilever(&DesignCase::konsv, "Vänster", 1);
            lookAtCantilever(&DesignCase::konsh, "Höger", spans_);
        }
        for (const LineLoads& loads : {lineLoads, freeLineLoads}) {
            const int count = std::min<int>(case_.*loads.count, maxLineLoads);
            for (int load = 1; load <= count; ++load)
                lookAtLineLoad(loads, load);
        }
        return std::move(findings_);
    }

  private:
    template <typename Type>
    void add(Kind kind, Type DesignCase::*field, int index, const std::string& text) {
        findings_.push_back({kind, recordFieldName(field), index, text});
    }

    void lookAtSpan(int span) {
        if (!(case_.spv(span) > 0)) {
            add(Kind::spanLength, &DesignCase::spv, span,
                "Spännvidden i " + inSpan(span) + " är " + shown(case_.spv(span)) + " m.");
        }
        if (case_.plast(span) == 0) {
            add(Kind::permanentLoad, &DesignCase::plast, span,
                "Permanent last saknas i " + inSpan(span) + ".");
        }
        lookAtVariableLoad(span);
    }

    // The yardstick is `loadFactorTable`, the loads that choosing a category writes into the spans and locks. They drift
    // apart where the rule set is changed afterwards, which leaves the loads alone, where a span is added, which comes
    // with 2 kN/m² whatever the category, and in a file. Category 0 is the user's own load; rule set 0 has no loads.
    void lookAtVariableLoad(int span) {
        const int ruleSet = case_.loadCode;
        const int category = case_.lokt;
        if (ruleSet < 1 || ruleSet > maxLoadCode || category < 1 || category > maxLoadCategory) return;
        const float prescribed = loadFactorTable(ruleSet, category);
        if (case_.flast(span) == prescribed) return;
        add(Kind::variableLoad, &DesignCase::flast, span,
            "Variabel last i " + inSpan(span) + " är " + shown(case_.flast(span)) + " kN/m2; lastkategori " +
                trimBlanks(loadCategories[static_cast<std::size_t>(category)]) + " har " + shown(prescribed) +
                " kN/m2.");
    }

    // The end supports have no width.
    void lookAtSupport(int support) {
        if (support == spans_ || case_.upl(support) > 0) return;
        add(Kind::supportWidth, &DesignCase::upl, support,
            "Upplagsbredden vid stöd " + std::to_string(support) + " är " + shown(case_.upl(support)) +
                " m.");
    }

    void lookAtCantilever(float DesignCase::*field, const std::string& side, int span) {
        const float length = case_.*field;
        if (!(length > 0 && length > case_.spv(span))) return;
        add(Kind::cantilever, field, 0,
            side + " konsol, " + shown(length) + " m, är längre än " + inSpan(span) + ", " +
                shown(case_.spv(span)) + " m.");
    }

    void lookAtLineLoad(const LineLoads& loads, int load) {
        const int span = (case_.*loads.span)(load);
        const std::string name = std::string(loads.name) + " " + std::to_string(load);
        if (span < 1 || span > spans_) {
            add(Kind::lineLoadSpan, loads.span, load,
                name + " står i " + inSpan(span) + ", men plattan har " + std::to_string(spans_) + " fack.");
            return;
        }
        // A load on a cantilever is entered at a distance outside the span next to it.
        const float before = span == 1 ? std::max(case_.konsv, 0.0f) : 0.0f;
        const float behind = span == spans_ ? std::max(case_.konsh, 0.0f) : 0.0f;
        const float distance = (case_.*loads.distance)(load);
        if (distance >= -before && distance - case_.spv(span) <= behind) return;
        add(Kind::lineLoadPlace, loads.distance, load,
            name + " står utanför " + inSpan(span) + ": avståndet är " + shown(distance) +
                " m och spännvidden " + shown(case_.spv(span)) + " m.");
    }

    const DesignCase& case_;
    const int spans_;
    std::vector<Finding> findings_;
};

} // namespace

std::string_view nameOf(Finding::Kind kind) {
    constexpr std::array<std::string_view, 7> names{"spanLength",   "supportWidth", "permanentLoad",
                                                    "variableLoad", "cantilever",   "lineLoadSpan",
                                                    "lineLoadPlace"};
    return names.at(static_cast<std::size_t>(kind));
}

std::vector<Finding> implausible(const DesignCase& designCase) {
    return Look(designCase).findings();
}

} // namespace varno
