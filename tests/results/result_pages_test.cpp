#include "results/result_text.h"

#include <gtest/gtest.h>

#include <random>

#include "support/memory_files.h"

namespace varno::testing {
namespace {

std::vector<Bytes> pagesOf(const Bytes& content) {
    MemoryFiles files;
    files.content["HUS1.res"] = content;
    File file(files, "HUS1.res", FileMode::input, 0, 1);
    return VARNO1::readResultPages(file);
}

Bytes lines(int from, int to) {
    Bytes text;
    for (int i = from; i <= to; ++i)
        text += "rad " + std::to_string(i) + "\r\n";
    return text;
}

// A page's text: every line preceded by CR LF.
Bytes page(int from, int to) {
    Bytes text = "\r\n" + lines(from, to);
    return text.substr(0, text.size() - 2);
}

using Pages = std::vector<Bytes>;

TEST(ResultPages, TakeSeventyLinesEach) {
    EXPECT_EQ(pagesOf(lines(1, 140)), (Pages{page(1, 70), page(71, 140)}));
    EXPECT_EQ(pagesOf(lines(1, 71)), (Pages{page(1, 70), page(71, 71)}));
}

TEST(ResultPages, SeventyLinesAreOnePage) {
    EXPECT_EQ(pagesOf(lines(1, 70)), Pages{page(1, 70)});
    const Bytes withoutEnd = lines(1, 70);
    EXPECT_EQ(pagesOf(withoutEnd.substr(0, withoutEnd.size() - 2)), Pages{page(1, 70)});
}

TEST(ResultPages, AFileWithoutLinesHasNone) {
    EXPECT_EQ(pagesOf(""), Pages{});
    EXPECT_EQ(pagesOf("\r\n"), Pages{"\r\n"});
}

TEST(ResultPages, ASignEndsThePageAfterItsLine) {
    EXPECT_EQ(pagesOf("ett\r\ntv\xE5\r\nslut^ h\xE4r\r\nfyra\r\n"),
              (Pages{"\r\nett\r\ntv\xE5\r\nslut^ h\xE4r", "\r\nfyra"}));
    EXPECT_EQ(pagesOf("^\r\n^\r\n"), (Pages{"\r\n^", "\r\n^"}));
    // The lines count afresh behind it.
    EXPECT_EQ(pagesOf("^\r\n" + lines(1, 70)), (Pages{"\r\n^", page(1, 70)}));
    // On the seventieth line it ends the page once.
    EXPECT_EQ(pagesOf(lines(1, 69) + "^\r\n" + lines(70, 70)), (Pages{page(1, 69) + "\r\n^", page(70, 70)}));
}

TEST(ResultPages, SixAreTheMost) {
    EXPECT_EQ(pagesOf(lines(1, 420)).size(), 6u);
    EXPECT_EQ(errorOf([] { pagesOf(lines(1, 421)); }), errSubscriptOutOfRange);
    EXPECT_EQ(pagesOf("^\n^\n^\n^\n^\n^\n").size(), 6u);
    EXPECT_EQ(errorOf([] { pagesOf("^\n^\n^\n^\n^\n^\n\n"); }), errSubscriptOutOfRange);
}

TEST(ResultPages, LettersAreRepairedPageByPage) {
    // Three on the first line, two lines: one is left. The next page does not repair it.
    EXPECT_EQ(pagesOf("\x86\x86\x86\r\n^\r\n\x86\x86\r\n.\r\n"),
              (Pages{"\r\n\xE5\xE5\x86\r\n^", "\r\n\xE5\xE5\r\n."}));
}

TEST(ResultPages, AFileThatDidNotOpenIsError52) {
    File file;
    EXPECT_EQ(errorOf([&] { VARNO1::readResultPages(file); }), errBadFileNameOrNumber);
}

// The rule as it is stated, step by step.
Pages pagesTheSlowWay(const std::vector<Bytes>& all) {
    Pages stored(7);
    std::size_t index = 1;
    int count = 0;
    Bytes text;
    for (std::size_t i = 0; i < all.size(); ++i) {
        ++count;
        text += "\r\n" + all[i];
        const bool sign = text.find('^') != Bytes::npos;
        text = VARNO1::fromOemLetters(text);
        if (i + 1 < all.size() && count < 70 && !sign) continue;
        stored.at(index++) = text;
        count = 0;
        text.clear();
    }
    return {stored.begin() + 1, stored.begin() + static_cast<std::ptrdiff_t>(index)};
}

TEST(ResultPages, AreWhatTheRuleSays) {
    std::mt19937 random(53);
    const Bytes alphabet = "\x86\x84\x94\x8F\x8E\x99\xE5 ab";
    int printable = 0;
    for (int round = 0; round < 300; ++round) {
        std::vector<Bytes> all(random() % 450);
        Bytes content;
        for (Bytes& line : all) {
            line.resize(random() % 6);
            for (char& c : line)
                c = alphabet[random() % alphabet.size()];
            if (random() % 90 == 0) line += '^';
            content += line + "\r\n";
        }
        Pages expected;
        try {
            expected = pagesTheSlowWay(all);
        } catch (const std::out_of_range&) {
            ASSERT_EQ(errorOf([&] { pagesOf(content); }), errSubscriptOutOfRange) << "round " << round;
            continue;
        }
        ASSERT_EQ(pagesOf(content), expected) << "round " << round;
        ++printable;
    }
    EXPECT_GT(printable, 100);
}

} // namespace
} // namespace varno::testing
