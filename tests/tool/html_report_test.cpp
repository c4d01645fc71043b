#include <algorithm>

#include "diagram/moment_curves.h"
#include "tool/html.h"
#include "tool/moment_chart.h"
#include "tool/tool_runner.h"

namespace varno {

namespace {

constexpr const char* warning = "<p class=\"note\">";

std::size_t countOf(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

class HtmlReport : public testing::ToolRunner {
  protected:
    // Two spans of 6 m, the inner support 0.2 m wide, between a cantilever of 1 m and none.
    void SetUp() override {
        put("hus/A.IND", [](DesignCase& c) {
            c.nfack = 2;
            c.spv(1) = c.spv(2) = 6;
            c.upl(1) = 0.2f;
            c.upl(2) = 0;
            c.konsv = 1;
            c.konsh = 0;
            c.nllast = 0;
        });
        const testing::Curve upper{testing::CurveSpan(0.3).at(10, "12.5"),
                                   testing::CurveSpan(0.29).at(5, "20.04")};
        const testing::Curve lower{testing::CurveSpan(0.3, -1).at(20, "-30.5"),
                                   testing::CurveSpan(0.29, -2).at(0, "-31.25")};
        files.content["hus/momk.dat"] = testing::momentFileOf(upper, lower);
        files.content["hus/NAMNLÖS.res"] = "B\x84rlag <1> & 2\r\n^\r\nSida tv\x86\r\n";
    }
    const std::string& page() {
        EXPECT_EQ(run({"report", "hus/A.IND"}), 0) << err.str();
        text_ = out.str();
        return text_;
    }
    bool has(const std::string& part) const { return text_.find(part) != std::string::npos; }

    std::string text_;
};

TEST_F(HtmlReport, HoldsTheInputsThePicturesAndTheResult) {
    page();
    EXPECT_TRUE(text_.starts_with("<!DOCTYPE html>\n<html lang=\"sv\">\n")) << text_;
    EXPECT_TRUE(text_.ends_with("</body>\n</html>\n"));
    EXPECT_TRUE(has("<title>NAMNLÖS.IND – Bärlägg för Ångström</title>"));
    EXPECT_TRUE(has("<tr><th>Lastregler</th><td>Eurokod, Sverige</td></tr>"));
    EXPECT_TRUE(
        has("<tr><td>1</td><td>6,00\u2007</td><td>0,170</td><td>0,50\u2007</td><td>2,50\u2007</td></tr>"));
    EXPECT_EQ(countOf(text_, "<svg xmlns="), 2U) << "sketch and diagram";
    EXPECT_TRUE(has("Bärlag &lt;1&gt; &amp; 2</pre>")) << "without the sign that ends a page";
    EXPECT_TRUE(has("Sida två</pre>"));
    EXPECT_EQ(countOf(text_, "<section class=\"page\">"), 2U);
    EXPECT_FALSE(has(warning));
}

TEST_F(HtmlReport, NeedsNothingElse) {
    page();
    for (const char* reference : {"src=", "href=", "@import", "url(", "<script"})
        EXPECT_FALSE(has(reference)) << reference;
}

TEST_F(HtmlReport, SaysWhichWayTheMomentsAreDrawnAndWhatTheyAre) {
    page();
    EXPECT_TRUE(has("Positivt moment (drag i underkanten) är ritat nedåt"));
    EXPECT_TRUE(has("<tr><td>0</td><td>-1,00</td><td></td><td></td><td></td></tr>"));
    EXPECT_TRUE(has("<tr><td>1</td><td>-31,25</td><td>1</td><td>12,50</td><td>3,00</td></tr>")) << text_;
    EXPECT_TRUE(has("<tr><td>2</td><td>-2,00</td><td>2</td><td>20,04</td><td>1,65</td></tr>"));
    EXPECT_TRUE(has(">-31,3</text>"));
    EXPECT_TRUE(has(">20,0</text>"));
}

TEST_F(HtmlReport, OpensAndClosesEveryElement) {
    page();
    for (const std::string name : {"html", "head", "body", "div", "section", "table", "thead", "tbody", "tr",
                                   "th", "td", "h2", "p", "pre", "figure", "svg", "text"}) {
        EXPECT_EQ(countOf(text_, "<" + name + ">") + countOf(text_, "<" + name + " "),
                  countOf(text_, "</" + name + ">"))
            << name;
    }
}

TEST_F(HtmlReport, SaysWhatIsMissing) {
    files.content.erase("hus/momk.dat");
    files.content.erase("hus/NAMNLÖS.res");
    page();
    EXPECT_TRUE(has("<p class=\"note\">Momentdiagrammet saknas: hus/momk.dat finns inte.</p>"));
    EXPECT_TRUE(has("<p class=\"note\">Resultatet saknas: hus/NAMNLÖS.res finns inte.</p>"));
    EXPECT_EQ(countOf(text_, "<svg xmlns="), 1U);
}

TEST_F(HtmlReport, SaysWhatIsOlderThanTheInputs) {
    files.written["hus/A.IND"] = 5;
    files.written["hus/momk.dat"] = 5;
    files.written["hus/NAMNLÖS.res"] = 4;
    page();
    EXPECT_EQ(countOf(text_, warning), 1U);
    EXPECT_TRUE(has("Resultatet är äldre än indata (hus/NAMNLÖS.res)."));
}

TEST_F(HtmlReport, LeavesOutTheMomentsOfAnotherCase) {
    for (const testing::Curve& curve :
         {testing::Curve{testing::CurveSpan(0.3, 1)}, testing::Curve(2, testing::CurveSpan(0.31, 1))}) {
        files.content["hus/momk.dat"] = testing::momentFileOf(curve, curve);
        page();
        EXPECT_TRUE(has("Momentdiagrammet saknas: kurvorna i hus/momk.dat hör till andra fack än fallets."));
        EXPECT_EQ(countOf(text_, "<svg xmlns="), 1U);
    }
}

TEST_F(HtmlReport, TakesTheFilesThatItIsTold) {
    files.content["annat.dat"] = files.content["hus/momk.dat"];
    files.content["annat.res"] = "Annat\r\n";
    EXPECT_EQ(run({"report", "-", "--moments", "annat.dat", "--result", "annat.res", "--out", "R.html"},
                  files.content["hus/A.IND"]),
              0)
        << err.str();
    EXPECT_EQ(out.str(), "");
    text_ = files.content["R.html"];
    EXPECT_TRUE(has("Annat</pre>"));
    EXPECT_EQ(countOf(text_, "<svg xmlns="), 2U);
    EXPECT_EQ(run({"report", "hus/A.IND", "--result", "saknas.res", "--out", "S.html"}), 1);
    EXPECT_TRUE(err.str().starts_with("Filen saknas.res finns inte.\n")) << err.str();
    EXPECT_FALSE(files.content.contains("S.html"));
}

TEST_F(HtmlReport, OfACaseThatCannotBeDrawnSaysSo) {
    put("hus/A.IND", [](DesignCase& c) { c.llfnr(1) = 16; });
    page();
    EXPECT_TRUE(has("Skissen kan inte ritas"));
    EXPECT_TRUE(has("<th>Betongklass</th>"));
}

TEST_F(HtmlReport, NoTextBecomesMarkup) {
    CaseFile caseFile = testing::sampleCase();
    caseFile.title = "<b>\"A&B\"\x01";
    files.content["B.IND"] = testing::writtenCase(caseFile);
    EXPECT_EQ(run({"report", "B.IND"}), 0);
    EXPECT_NE(out.str().find("<p>&lt;b&gt;&quot;A&amp;B&quot; </p>"), std::string::npos) << out.str();
}

TEST(MomentChart, HasNoNumbersThatAreNone) {
    testing::DiagramRig rig(1);
    CurveValues values;
    values.curves[0].resize(1);
    values.curves[1].resize(1);
    const std::string chart = tool::momentChart(rig.designCase, values);
    EXPECT_EQ(chart.find("nan"), std::string::npos) << chart;
    EXPECT_EQ(chart.find("inf"), std::string::npos) << chart;
}

} // namespace

} // namespace varno
