#pragma once

#include <gtest/gtest.h>

#include <cstdio>

#include "driver/program.h"
#include "soon.h"

namespace varno::gui {

inline constexpr const char* diagramClass = "VarnoMomkurva";

/// The program with the calculated case KONTOR: five spans, a left cantilever of 1.2 m, none on the right, and
/// a slab of 30.7 m with its supports.
class Diagrams : public ::testing::Test {
  protected:
    static constexpr int spans = 5;
    static constexpr double perMetre = 8400 / 30.7; ///< twips
    static constexpr double firstSupport = 340 + 1.2 * perMetre;
    static constexpr double spacing = 5.4 / 20; ///< of the first span's points, m
    static constexpr double baseline = 2000;

    Diagrams() {
        program.passStartUp();
        program.open("kontor.ind");
        program.calculate();
    }

    /// A curve of `count` spans, of this moment everywhere but at the first point.
    static Bytes curve(int count, double first, double others) {
        Bytes text;
        for (int i = 0; i < count; ++i) {
            text += "\r\n" + number(spacing);
            for (int k = 0; k <= 20; ++k)
                text += "," + number(i == 0 && k == 0 ? first : others);
        }
        return text;
    }
    static Bytes curves(int count, double first, double others, double second) {
        return std::to_string(count) + curve(count, first, others) + curve(count, second, second) + "\r\n";
    }
    Control diagram() const {
        program.command(idMoment);
        return program.window(diagramClass);
    }
    void expectError(const std::string& text) const {
        EXPECT_EQ(program.answerError(), (Message{"Varno", text}));
        EXPECT_TRUE(program.main().enabled());
    }

    Scene scene;
    Program program{scene};

  private:
    static std::string number(double value) {
        char text[32];
        std::snprintf(text, sizeof text, "%.4f", value);
        return text;
    }
};

} // namespace varno::gui
