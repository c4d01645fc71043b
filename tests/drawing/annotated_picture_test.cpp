#include "drawing/annotated_picture.h"

#include <gtest/gtest.h>

namespace varno {
namespace {

TEST(AnnotatedPicture, IsAnSvgWithItsWords) {
    AnnotatedPicture picture{
        {}, 9600, 4800, {{{940, 1000}, "-8,00", true}, {{2000, 3000}, "A & <B>", false}}};
    picture.drawing.line({0, 0}, {100, 100}, red);
    const std::string svg = svgOf(picture);
    EXPECT_NE(svg.find("<path"), std::string::npos);
    EXPECT_NE(svg.find("x=\"940\" y=\"950\""), std::string::npos) << svg;
    EXPECT_NE(svg.find(">-8,00</text>"), std::string::npos);
    EXPECT_NE(svg.find("x=\"2000\" y=\"3230\""), std::string::npos) << svg;
    EXPECT_NE(svg.find(">A &amp; &lt;B></text>"), std::string::npos);
}

TEST(AnnotatedPicture, WordsAtAnEdgeStayInside) {
    const AnnotatedPicture picture{{}, 9600, 4800, {{{940, 20}, "uppe", true}, {{940, 4790}, "nere", false}}};
    const std::string svg = svgOf(picture);
    EXPECT_NE(svg.find("y=\"180\""), std::string::npos) << svg;
    EXPECT_NE(svg.find("y=\"4750\""), std::string::npos) << svg;
}

} // namespace
} // namespace varno
