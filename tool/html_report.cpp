#include "tool/html_report.h"

#include "input/field_table.h"
#include "input/sketch_picture.h"
#include "tool/case_sheet.h"
#include "tool/html.h"
#include "tool/moment_chart.h"

namespace varno::tool {

namespace {

constexpr const char* style = R"(
@page { size: A4; margin: 15mm; }
body { font: 10pt/1.35 "Segoe UI", "Liberation Sans", Arial, sans-serif; color: #000; max-width: 180mm; margin: 8mm auto; }
h1 { font-size: 15pt; margin: 0; }
h2 { font-size: 11pt; margin: 5mm 0 1mm; border-bottom: 0.3mm solid #888; break-after: avoid; }
p { margin: 1mm 0; }
.note { border-left: 1mm solid #800000; padding-left: 2mm; }
table { border-collapse: collapse; break-inside: avoid; }
th, td { padding: 0.2mm 3mm 0.2mm 0; text-align: left; font-weight: normal; vertical-align: top; }
.lines th { color: #444; }
.inputs { break-before: page; columns: 2; column-gap: 8mm; font-size: 9pt; }
.inputs .grid th, .inputs .grid td { padding-left: 2.5mm; }
.inputs section { break-inside: avoid; }
.inputs h2 { font-size: 10pt; margin-top: 3mm; }
.grid th, .grid td { text-align: right; white-space: pre; font-variant-numeric: tabular-nums; padding: 0.2mm 0 0.2mm 4mm; }
.grid th:first-child, .grid td:first-child { padding-left: 0; }
.grid thead th { white-space: normal; border-bottom: 0.2mm solid #888; color: #444; }
figure { margin: 1mm 0; break-inside: avoid; }
svg { width: 100%; height: auto; }
.moments text { font: 14px "Segoe UI", "Liberation Sans", Arial, sans-serif; text-anchor: middle; }
.moments path { fill: none; stroke: #000; stroke-width: 1.2; }
.moments .area { stroke: none; fill: #000; fill-opacity: 0.08; }
.moments .area.c2 { fill: #800000; }
.moments .curve.c2 { stroke: #800000; stroke-dasharray: 6 2; }
.moments .support { stroke: #999; stroke-width: 0.8; stroke-dasharray: 2 3; }
pre { font: 8.5pt/1.15 "Consolas", "Liberation Mono", monospace; margin: 0; }
.page { break-before: page; }
@media screen { .page { margin-top: 6mm; border-top: 0.3mm dashed #888; padding-top: 4mm; } }
)";

// A blank behind a number is as wide as a digit, so that the commas stand under each other.
std::string cellText(const std::string& cell) {
    std::string text = withoutTrailingBlanks(cell);
    for (std::size_t blanks = cell.size() - text.size(); blanks > 0; --blanks)
        text += "\u2007";
    return escaped(text);
}

class Page {
  public:
    explicit Page(const ReportContent& content) : content_(content) {}

    std::string html() {
        addHead();
        addSketch();
        addMoments();
        addInputs();
        addResult();
        return text_ + "</body>\n</html>\n";
    }

  private:
    void line(const std::string& html) { text_ += html + "\n"; }

    void addHead() {
        const std::string name = content_.caseFile.name + ".IND";
        const std::string title = withoutTrailingBlanks(content_.caseFile.title);
        line("<!DOCTYPE html>\n<html lang=\"sv\">\n<head>\n<meta charset=\"utf-8\">");
        line(element("title", name + (title.empty() ? "" : " – " + title)));
        line(std::string("<style>") + style + "</style>\n</head>\n<body>");
        line(element("h1", name));
        line(element("p", title));
        for (const std::string& note : content_.notes)
            line(element("p class=\"note\"", note));
    }

    void addSketch() {
        SketchPicture picture;
        const DesignCase& c = content_.caseFile.designCase;
        line(element("h2", "Skiss"));
        try {
            SlabSketch(c, picture.loadPicture, picture.slabStrip, picture).fullRefresh();
            line("<figure>\n" + svgOf(picture) + "</figure>");
        } catch (const RunTimeError&) {
            line(element("p class=\"note\"", "Skissen kan inte ritas: måtten är 0 eller orimliga."));
        }
    }

    void addMoments() {
        if (!content_.moments) return;
        const DesignCase& c = content_.caseFile.designCase;
        line(element("h2", "Moment (kNm/m)"));
        line("<figure>\n" + momentChart(c, *content_.moments) + "</figure>");
        line(element("p", std::string(momentSign) + " Kurva 1 är heldragen, kurva 2 streckad."));
        const std::vector<Peak> supports = supportPeaks(c, *content_.moments);
        const std::vector<Peak> spans = spanPeaks(c, *content_.moments);
        const auto shown = [](double value) { return formatNumber(value, "#0.00", swedish); };
        SheetTable table{{"Stöd", "Minsta moment", std::string(spanHeading), "Största moment", "Läge"},
                         {"", "kNm/m", "", "kNm/m", "m"}};
        for (std::size_t i = 0; i < supports.size(); ++i) {
            table.push_back({std::to_string(i), shown(supports[i].moment), "", "", ""});
            if (i == 0) continue;
            const Peak& span = spans[i - 1];
            table.back()[2] = std::to_string(i);
            table.back()[3] = shown(span.moment);
            table.back()[4] = shown(span.inSpan);
        }
        addTable(table);
        line(element(
            "p", "Läget räknas från fackets vänstra stöd. Värdena är momentkurvornas, 21 punkter per fack."));
    }

    void addInputs() {
        line("<div class=\"inputs\">");
        for (const SheetSection& section : caseSheet(content_.caseFile.designCase)) {
            line("<section>\n" + element("h2", section.heading));
            bool inLines = false;
            for (const auto& part : section.parts) {
                const auto* const one = std::get_if<SheetLine>(&part);
                if (inLines != (one != nullptr))
                    line(one != nullptr ? "<table class=\"lines\">" : "</table>");
                inLines = one != nullptr;
                if (one != nullptr)
                    line("<tr>" + element("th", one->caption) + element("td", one->value) + "</tr>");
                else
                    addTable(std::get<SheetTable>(part));
            }
            line(inLines ? "</table>\n</section>" : "</section>");
        }
        line("</div>");
    }

    void addTable(const SheetTable& table) {
        line("<table class=\"grid\">\n<thead>");
        for (std::size_t row = 0; row < table.size(); ++row) {
            if (row == 2) line("</thead>\n<tbody>");
            std::string cells;
            for (const std::string& cell : table[row])
                cells += row < 2 ? element("th", cell) : "<td>" + cellText(cell) + "</td>";
            line("<tr>" + cells + "</tr>");
        }
        line("</tbody>\n</table>");
    }

    void addResult() {
        for (const std::string& page : content_.resultPages) {
            line("<section class=\"page\">");
            line("<pre>" + escaped(page) + "</pre>\n</section>");
        }
    }

    const ReportContent& content_;
    std::string text_;
};

} // namespace

std::string htmlReport(const ReportContent& content) {
    return Page(content).html();
}

} // namespace varno::tool
