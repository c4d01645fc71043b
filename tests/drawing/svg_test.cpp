#include "drawing/svg_canvas.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "drawing/svg_check.h"

namespace varno {
namespace {

using varno::testing::svgFault;

std::string lineOf(const std::string& svg, std::size_t number) {
    std::size_t from = 0;
    while (number-- > 0)
        from = svg.find('\n', from) + 1;
    return svg.substr(from, svg.find('\n', from) - from);
}

TEST(SvgCanvas, TheDocumentHasItsSizeInMillimetresAndItsCoordinatesInTwips) {
    const SvgCanvas canvas(8410, 900);
    EXPECT_EQ(canvas.svg(),
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"148.34mm\" height=\"15.88mm\""
              " viewBox=\"0 0 8410 900\" fill=\"none\" shape-rendering=\"crispEdges\">\n</svg>\n");
}

TEST(SvgCanvas, LinesAreOneOrTwoPixelsWide) {
    SvgCanvas canvas(100, 100);
    canvas.line({0, 800}, {10.126, -0.001}, Colour::foreground());
    canvas.line({1, 2}, {3, 4}, green, 2);
    EXPECT_EQ(lineOf(canvas.svg(), 1),
              "<path d=\"M0 800 L10.13 0\" stroke=\"#000000\" stroke-width=\"15\"/>");
    EXPECT_EQ(lineOf(canvas.svg(), 2), "<path d=\"M1 2 L3 4\" stroke=\"#008000\" stroke-width=\"30\"/>");
}

TEST(SvgCanvas, BoxesAreFilledOrOutlined) {
    SvgCanvas canvas(100, 100);
    canvas.box({340, 75}, {8740, 50}, red, Fill::solid);
    canvas.box({0, 800}, {420, 0}, Colour::foreground());
    EXPECT_EQ(lineOf(canvas.svg(), 1), "<path d=\"M340 75 L8740 75 L8740 50 L340 50 Z\" fill=\"#800000\"/>");
    EXPECT_EQ(lineOf(canvas.svg(), 2),
              "<path d=\"M0 800 L420 800 L420 0 L0 0 Z\" stroke=\"#000000\" stroke-width=\"15\"/>");
}

TEST(SvgCanvas, AFlatBoxStillShows) {
    SvgCanvas canvas(100, 100);
    canvas.box({0, 800}, {420, 800}, red, Fill::solid);
    EXPECT_NE(canvas.svg().find("stroke=\"#800000\""), std::string::npos);
}

TEST(SvgCanvas, ADiscHasItsRimAndItsInside) {
    SvgCanvas canvas(100, 100);
    canvas.disc({940, 65}, 30, Colour::foreground(), brightWhite);
    EXPECT_EQ(lineOf(canvas.svg(), 1), "<circle cx=\"940\" cy=\"65\" r=\"30\" fill=\"#ffffff\""
                                       " stroke=\"#000000\" stroke-width=\"15\"/>");
}

TEST(SvgCanvas, ASurfaceWithinThePictureHasItsOwnCoordinatesAndEdges) {
    SvgCanvas canvas(100, 100);
    canvas.openSurface({325, 900}, {-15, 0}, 8440, 300);
    canvas.line({0, 0}, {1, 1}, red);
    canvas.closeSurface();
    EXPECT_EQ(lineOf(canvas.svg(), 1),
              "<svg x=\"325\" y=\"900\" width=\"8440\" height=\"300\" viewBox=\"-15 0 8440 300\">");
    EXPECT_EQ(lineOf(canvas.svg(), 3), "</svg>");
    EXPECT_EQ(svgFault(canvas.svg()), "");
}

TEST(SvgCanvas, ClearLeavesAnEmptyPicture) {
    SvgCanvas canvas(8410, 900);
    const std::string empty = canvas.svg();
    canvas.line({0, 0}, {1, 1}, red);
    ASSERT_NE(canvas.svg(), empty);
    canvas.clear();
    EXPECT_EQ(canvas.svg(), empty);
}

TEST(SvgCanvas, HugePlacesStayNumbers) {
    SvgCanvas canvas(100, 100);
    canvas.line({-1e308, 3e9}, {123456789.125, 1e300}, red);
    EXPECT_NE(canvas.svg().find("M-1E+308 3E+09 L"), std::string::npos) << canvas.svg();
    EXPECT_EQ(svgFault(canvas.svg()), "");
}

TEST(SvgCanvas, IsWellFormed) {
    SvgCanvas canvas(8410, 900);
    canvas.line({0, 0}, {1, 1}, red);
    canvas.box({0, 0}, {1, 1}, red);
    canvas.box({0, 0}, {1, 1}, green, Fill::solid);
    canvas.disc({0, 0}, 1, red, green);
    EXPECT_EQ(svgFault(canvas.svg()), "");
}

TEST(SvgCheck, FindsWhatIsWrong) {
    EXPECT_EQ(svgFault("<svg a=\"1\">\n<path d=\"M0\"/>\n</svg>\n"), "");
    EXPECT_NE(svgFault("<svg a=\"1\">\n<path d=\"M0\">\n</svg>\n"), "");
    EXPECT_NE(svgFault("<svg a=\"1\" a=\"2\"></svg>"), "");
    EXPECT_NE(svgFault("<svg a=1></svg>"), "");
    EXPECT_NE(svgFault("<svg><path d=\"nan\"/></svg>"), "");
    EXPECT_NE(svgFault("<svg></svg><svg></svg>"), "");
    EXPECT_NE(svgFault("<svg>"), "");
}

} // namespace
} // namespace varno
