#include <gtest/gtest.h>

#include "model/case_history.h"

namespace varno {
namespace {

CaseStep stepOf(int spans) {
    CaseStep step;
    step.designCase.nfack = static_cast<std::int16_t>(spans);
    step.title = std::to_string(spans);
    return step;
}

int spansOf(const CaseStep* step) {
    return step == nullptr ? 0 : step->designCase.nfack;
}

TEST(CaseHistory, GoesBackAndForwardThroughEveryEdit) {
    CaseHistory history;
    history.start(stepOf(1));
    for (const int spans : {2, 3})
        history.note(stepOf(spans));
    EXPECT_EQ(spansOf(history.back()), 2);
    EXPECT_EQ(spansOf(history.back()), 1);
    EXPECT_EQ(history.back(), nullptr);
    EXPECT_EQ(spansOf(history.forward()), 2);
    EXPECT_EQ(spansOf(history.forward()), 3);
    EXPECT_EQ(history.forward(), nullptr);
}

TEST(CaseHistory, WhatChangedNothingIsNoStep) {
    CaseHistory history;
    history.start(stepOf(1));
    history.note(stepOf(2));
    history.note(stepOf(2));
    EXPECT_EQ(spansOf(history.back()), 1);
    history.note(stepOf(1));
    EXPECT_EQ(spansOf(history.forward()), 2) << "and it takes no step forward away";
}

TEST(CaseHistory, AnEditBehindAStepBackIsTheLastOne) {
    CaseHistory history;
    history.start(stepOf(1));
    for (const int spans : {2, 3})
        history.note(stepOf(spans));
    history.back();
    history.note(stepOf(4));
    EXPECT_EQ(history.forward(), nullptr);
    EXPECT_EQ(spansOf(history.back()), 2);
}

TEST(CaseHistory, AnotherCaseHasNothingBehindIt) {
    CaseHistory history;
    history.note(stepOf(1));
    history.note(stepOf(2));
    history.back();
    history.start(stepOf(7));
    EXPECT_EQ(history.back(), nullptr);
    EXPECT_EQ(history.forward(), nullptr);
}

TEST(CaseHistory, KeepsTheLastThousandEdits) {
    CaseHistory history;
    const int all = static_cast<int>(CaseHistory::mostSteps) + 50;
    for (int i = 0; i <= all; ++i)
        history.note(stepOf(i));
    int steps = 0;
    int oldest = 0;
    while (const CaseStep* step = history.back()) {
        ++steps;
        oldest = spansOf(step);
    }
    EXPECT_EQ(steps, static_cast<int>(CaseHistory::mostSteps));
    EXPECT_EQ(oldest, 50);
}

} // namespace
} // namespace varno
