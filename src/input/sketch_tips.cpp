#include "input/sketch_tips.h"

#include <algorithm>
#include <cmath>

#include "input/number_box.h"

namespace varno {

namespace {

constexpr double pictureEnd = sketchLength;

class TipWriter {
  public:
    TipWriter(const DesignCase& designCase, const SlabSketch& sketch, NumberLocale locale)
        : case_(designCase), sketch_(sketch), locale_(std::move(locale)),
          spans_(std::clamp<int>(designCase.nfack, 0, SpanArray::last)) {}

    SketchTips all() {
        if (spans_ == 0) return {};
        addPart(0, sketch_.supportX(0), "Konsol vänster: " + metres(case_.konsv));
        for (int span = 1; span <= spans_; ++span)
            addPart(sketch_.supportX(span - 1), sketch_.supportX(span), spanText(span));
        addPart(sketch_.supportX(spans_), pictureEnd, "Konsol höger: " + metres(case_.konsh));
        for (int support = 0; support <= spans_; ++support)
            tips_.supports.push_back("Stöd " + std::to_string(support) + ": upplagsbredd " +
                                     metres(case_.upl(support), "0.000"));
        return std::move(tips_);
    }

  private:
    std::string number(float value, std::string_view pattern) const {
        return std::isfinite(value) ? formatNumber(digitsOf(value), pattern, locale_) : "?";
    }
    std::string metres(float value, std::string_view pattern = "#0.00") const {
        return number(value, pattern) + " m";
    }
    std::string areaLoad(float value) const { return number(value, "#0.00") + " kN/m2"; }

    void addLineLoads(std::string& text, int span, const char* name, int count,
                      const LineLoadIntegers& places, const LineLoadReals& distances,
                      const LineLoadReals& loads) const {
        for (int i = 1; i <= std::min(count, maxLineLoads); ++i) {
            if (places(i) != span) continue;
            text += std::string("\n") + name + ": " + number(loads(i), "#0.00") + " kN/m, " +
                    metres(distances(i)) + " från vänster stöd";
        }
    }

    std::string spanText(int span) const {
        std::string text = "Fack " + std::to_string(span) + ": spännvidd " + metres(case_.spv(span)) +
                           ", plattjocklek " + metres(case_.ptjl(span), "0.000") + "\nPermanent last " +
                           areaLoad(case_.plast(span)) + ", variabel last " + areaLoad(case_.flast(span));
        addLineLoads(text, span, "Linjelast", case_.nllast, case_.llfnr, case_.avst, case_.lllast);
        addLineLoads(text, span, "Fri linjelast", case_.nllastf, case_.llfnrf, case_.avstf, case_.lllastf);
        return text + "\nHela plattan " + metres(sketch_.totalLength());
    }

    // A damaged case has supports anywhere.
    void addPart(double from, double to, const std::string& text) {
        const double left = std::max(0.0, from);
        const double right = std::min(pictureEnd, to);
        if (std::isfinite(from) && std::isfinite(to) && right - left >= 1)
            tips_.parts.push_back({left, right, text});
    }

    const DesignCase& case_;
    const SlabSketch& sketch_;
    NumberLocale locale_;
    int spans_;
    SketchTips tips_;
};

} // namespace

SketchTips sketchTips(const DesignCase& designCase, const SlabSketch& sketch, const NumberLocale& locale) {
    try {
        return TipWriter(designCase, sketch, locale).all();
    } catch (const RunTimeError&) {
        // A number too large to be written. The sketch is told of already, and this is asked for when it has ended.
        return {};
    }
}

} // namespace varno
