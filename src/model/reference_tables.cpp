#include "model/reference_tables.h"

namespace varno {

namespace {

using CategoryRow = std::array<double, maxLoadCategory + 1>;
constexpr CategoryRow allSeven{0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7};
constexpr CategoryRow psi1Row{0.5, 0.5, 0.5, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7};
constexpr CategoryRow psi2Row{0.3, 0.3, 0.3, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6};

struct RuleSetFactors {
    double lambdaG;
    double ksi;
    double lambdaQ;
    CategoryRow psi0 = allSeven;
    CategoryRow psi1 = psi1Row;
    CategoryRow psi2 = psi2Row;
};

// Rule sets 1 to 6. Set 4 keeps psi2 at 0.3 for the categories C1 to C5; set 5 has its own lower values
// throughout.
constexpr std::array<RuleSetFactors, maxLoadCode> ruleSetFactors{{
    {1.35, 0.89, 1.5},
    {1.35, 0.85, 1.5},
    {1.35, 0.89, 1.5},
    {1.35, 0.85, 1.5, allSeven, psi1Row, {0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.6, 0.6}},
    {1.2,
     1.0,
     1.5,
     {0.5, 0.5, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6},
     {0.3, 0.3, 0.4, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6, 0.6},
     {0.2, 0.2, 0.2, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5}},
    {1.35, 0.85, 1.5},
}};

// Rule sets 0 to 6, categories 0 to 9, kN/m².
constexpr float variableLoads[maxLoadCode + 1][maxLoadCategory + 1] = {
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {2.0f, 2.0f, 2.5f, 2.5f, 2.5f, 3.0f, 4.0f, 5.0f, 4.0f, 5.0f},
    {2.0f, 2.0f, 3.0f, 3.0f, 4.0f, 5.0f, 5.0f, 5.0f, 4.0f, 5.0f},
    {2.0f, 2.0f, 3.0f, 3.0f, 4.0f, 5.0f, 5.0f, 5.0f, 4.0f, 5.0f},
    {2.0f, 2.0f, 2.5f, 2.5f, 3.0f, 4.0f, 5.0f, 6.0f, 4.0f, 5.0f},
    {1.5f, 1.5f, 2.5f, 2.5f, 4.0f, 5.0f, 5.0f, 5.0f, 4.0f, 5.0f},
    {2.0f, 2.0f, 3.0f, 3.0f, 4.0f, 5.0f, 5.0f, 5.0f, 4.0f, 5.0f},
};

} // namespace

float loadFactorTable(int ruleSet, int category) {
    if (ruleSet < 0 || ruleSet > maxLoadCode || category < 0 || category > maxLoadCategory) {
        throw RunTimeError(errSubscriptOutOfRange);
    }
    return variableLoads[ruleSet][category];
}

void presetDesignCase(DesignCase& designCase) {
    for (int support = 0; support <= maxSpans; ++support) {
        designCase.upl(support) = support == 0 || support == maxSpans ? 0.0f : 0.1f;
    }
    for (int span = 1; span <= maxSpans; ++span) {
        designCase.spv(span) = 5.5f;
        designCase.ptjl(span) = 0.17f;
        designCase.flast(span) = 2.0f;
        designCase.plast(span) = 0.0f;
    }
    for (int ruleSet = 1; ruleSet <= maxLoadCode; ++ruleSet) {
        const RuleSetFactors& factors = ruleSetFactors[static_cast<std::size_t>(ruleSet - 1)];
        designCase.lambdaG(ruleSet) = factors.lambdaG;
        designCase.ksi(ruleSet) = factors.ksi;
        designCase.lambdaQ(ruleSet) = factors.lambdaQ;
        for (int category = 0; category <= maxLoadCategory; ++category) {
            const auto cell = static_cast<std::size_t>(category);
            designCase.psi0(ruleSet, category) = factors.psi0[cell];
            designCase.psi1(ruleSet, category) = factors.psi1[cell];
            designCase.psi2(ruleSet, category) = factors.psi2[cell];
        }
    }
}

} // namespace varno
