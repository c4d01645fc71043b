#pragma once

#include <gtest/gtest.h>

#include "driver/prints.h"
#include "driver/program.h"
#include "soon.h"

namespace varno::gui {

/// The program with the saved case BOSTAD, and the test printer.
class Printing : public ::testing::Test {
  protected:
    /// \param font the result font, the printer's own when empty
    explicit Printing(const std::string& font = "") : program(withFont(font)) {
        program.passStartUp();
        program.open("bostad.ind");
    }

    /// Gives the case a result, UTF-8 lines, and prints it.
    Print printed(const std::vector<std::string>& lines) {
        writeResult(lines);
        program.command(idPrintResult);
        return prints.next();
    }
    void writeResult(const std::vector<std::string>& lines, const std::string& name = "BOSTAD.res") const {
        Bytes bytes;
        for (const std::string& line : lines)
            bytes += encodeWindows1252(line) + "\r\n";
        scene.write(name, bytes);
    }
    /// Nothing has been sent to the printer since: what comes out next was asked for only now.
    void expectNothingPrinted() {
        const Print next = printed({"nästa"});
        ASSERT_EQ(next.pages.size(), 1u);
        EXPECT_EQ(next.pages[0].lines.back(), "nästa");
        EXPECT_EQ(next.pages[0].lines.size(), 2u);
    }

    Prints prints;
    Scene scene;
    Program program;

  private:
    const Scene& withFont(const std::string& font) const {
        if (!font.empty()) scene.write("Varnfnt.ini", font + "\r\n");
        return scene;
    }
};

/// "rad 1" to "rad `count`", each with Swedish letters.
inline std::vector<std::string> numberedLines(int count) {
    std::vector<std::string> lines;
    for (int i = 1; i <= count; ++i)
        lines.push_back("rad " + std::to_string(i) + " på ÅÄÖåäö");
    return lines;
}

/// The page without its header.
inline std::vector<std::string> body(const PrintedPage& page) {
    return {page.lines.begin() + 1, page.lines.end()};
}

// From the edges of the paper, points.
inline constexpr double filingEdge = 20 * 72 / 25.4;
inline constexpr double textEdge = 15 * 72 / 25.4;

/// The header, the lines, and all of it between the margins.
inline void expectPage(const PrintedPage& page, int number, const std::vector<std::string>& lines) {
    ASSERT_FALSE(page.lines.empty());
    const std::string header = "sid " + std::to_string(number);
    EXPECT_TRUE(page.lines[0].ends_with(header) &&
                page.lines[0].find_first_not_of(' ') == page.lines[0].size() - header.size())
        << page.lines[0];
    EXPECT_EQ(body(page), lines);
    for (const PrintedWord& word : page.words) {
        // The boxes are those of the letters' cells, rounded to the printer's pixels.
        const bool inside = word.left > filingEdge - 0.5 && word.top > textEdge - 0.5 &&
                            word.right < page.width - textEdge + 0.5 &&
                            word.bottom < page.height - textEdge + 0.5;
        EXPECT_TRUE(inside) << word.text << " reaches " << word.left << "," << word.top << " to "
                            << word.right << "," << word.bottom;
    }
}

} // namespace varno::gui
