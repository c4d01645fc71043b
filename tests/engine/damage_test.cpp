// Damaged inputs, thousands of them, in the manner of a fuzzer but repeatable: whatever stands in
// "~indata~.tmp", the engine ends with one of its exit codes and leaves files that keep their promises.
#include "engine/run.h"

#include "tests/engine/support.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace varno::engine {
namespace {

constexpr const char* input = "~indata~.tmp";

class Damage {
  public:
    explicit Damage(unsigned seed) : random_(seed) {}

    std::string damaged() {
        auto v = test::equalSpans(1 + std::min(below(10), below(10)), 5.5, 3, 2);
        v.konsv = below(2);
        v.nllast = below(6);
        v.loads.assign(5, {1, 1, 5});
        auto file = test::caseFile(v);
        if (below(3) != 0) hurtLine(file);
        auto text = file.text(below(2) != 0 ? "\r\n" : "\n");
        for (int i = below(3); i > 0; --i)
            hurtBytes(text);
        return text;
    }

  private:
    int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

    void hurtLine(test::CaseFile& file) {
        static const char* const texts[] = {"",      "-1",   "0",      "1e308",  "-1E308",
                                            "99999", "nan",  "1e-300", "10",     "5",
                                            "\"\"",  ",,,,", "1,5",    "-0.000", "9999999999999999999",
                                            "1e-5",  "^"};
        // Line 1 stays: without a name there is nothing to look at.
        auto& line = file.line(2 + below(36));
        const char* text = texts[static_cast<std::size_t>(below(static_cast<int>(std::size(texts))))];
        switch (below(3)) {
        case 0:
            line = text;
            break;
        case 1:
            line.insert(static_cast<std::size_t>(below(static_cast<int>(line.size()) + 1)), text);
            break;
        default:
            file.lines.erase(file.lines.begin() + 1 + below(36));
        }
    }

    void hurtBytes(std::string& text) {
        // Beyond the name's line, for the same reason.
        const auto at = 6 + static_cast<std::size_t>(below(static_cast<int>(text.size()) - 6));
        switch (below(4)) {
        case 0:
            text[at] = static_cast<char>(below(256));
            break;
        case 1:
            text.erase(at, static_cast<std::size_t>(1 + below(20)));
            break;
        case 2:
            text.insert(at, static_cast<std::size_t>(1 + below(20)), static_cast<char>(below(256)));
            break;
        default:
            if (below(4) == 0) text.resize(at);
        }
        if (text.size() < 12) text.resize(12, '\n');
    }

    std::mt19937 random_;
};

void expectKeptPromises(ExitCode code) {
    const auto result = test::read("HUS1.res");
    ASSERT_TRUE(result);
    std::size_t onPage = 0;
    for (const auto& line : test::crLfLines(*result)) {
        EXPECT_LE(line.size(), 78U) << line;
        onPage = line == "^" ? 0 : onPage + 1;
        EXPECT_LE(onPage, 70U);
    }
    const auto moments = test::read("momk.dat");
    EXPECT_EQ(moments.has_value(), code == calculated);
    EXPECT_EQ(result->find("FEL. ") != std::string::npos, code == senseless);
    if (!moments) return;
    EXPECT_EQ(moments->find_first_not_of("0123456789.,-\r\n"), std::string::npos);
    const auto ends = std::count(moments->begin(), moments->end(), ',') +
                      std::count(moments->begin(), moments->end(), '\n');
    EXPECT_EQ(ends, 1 + 44 * std::stoi(*moments));
}

TEST(EngineDamage, NothingInTheFileBringsTheEngineDown) {
    const test::WorkFolder folder;
    Damage damage{20};
    int good = 0, bad = 0;
    for (int i = 0; i < 4000; ++i) {
        const auto bytes = damage.damaged();
        test::write(input, bytes);
        const auto code = run(systemFileCalls(), "2026-11-21 20:35");
        ASSERT_TRUE(code == calculated || code == senseless) << code << "\n" << bytes;
        ASSERT_NO_FATAL_FAILURE(expectKeptPromises(code)) << bytes;
        (code == calculated ? good : bad)++;
    }
    // Both kinds must come up, or the damage is too mild or too harsh to show anything.
    EXPECT_GT(good, 400);
    EXPECT_GT(bad, 400);
}

TEST(EngineDamage, BytesAtRandomHaveAnExitCode) {
    const test::WorkFolder folder;
    std::mt19937 random{21};
    for (int i = 0; i < 2000; ++i) {
        std::string bytes(random() % 400, ' ');
        for (auto& c : bytes)
            c = random() % 3 == 0 ? static_cast<char>(random() % 256) : "0123456789.\r\n"[random() % 13];
        test::write(input, bytes);
        const auto code = run(systemFileCalls(), "2026-11-21 20:35");
        EXPECT_TRUE(code >= calculated && code <= notWritten);
        EXPECT_NE(code, calculated);
    }
}

TEST(EngineDamage, AFileMuchTooLargeIsSenseless) {
    const test::WorkFolder folder;
    test::write(input, "HUS1\r\n" + std::string(3 << 20, '\n'));
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), senseless);
}

} // namespace
} // namespace varno::engine
