#include "tool/moment_chart.h"

#include <algorithm>
#include <limits>

#include "input/field_table.h"
#include "tool/case_sheet.h"
#include "tool/html.h"

namespace varno::tool {

namespace {

// The picture in its own units, wide as the text of a page.
constexpr double left = 30;
constexpr double right = 970;
constexpr double highest = 130;            // of the largest moment
constexpr double labelHeight = 16;         // of a line of text
constexpr double roomForSpan = 96;         // between two supports, for a word between their numbers
constexpr float shortestCantilever = 0.1f; // m; one this short is not drawn

struct Place {
    double x;
    double moment;
};

double slabEnd(const DesignCase& c) {
    return supportPlace(c, c.nfack + 1) + static_cast<double>(c.konsh);
}

// A curve from the left end of the slab to its right end.
std::vector<Place> along(const DesignCase& c, const std::vector<SpanMoments>& curve) {
    std::vector<Place> places;
    if (c.konsv > shortestCantilever) places.push_back({0, 0});
    for (int span = 1; span <= c.nfack; ++span) {
        const SpanMoments& moments = curve[static_cast<std::size_t>(span - 1)];
        const double support = supportPlace(c, span);
        places.push_back({support, moments.moments.front()});
        for (int k = 0; k <= lastMoment; ++k)
            places.push_back(
                {support + pointPlace(c, span, moments, k), moments.moments[static_cast<std::size_t>(k)]});
    }
    if (c.konsh > shortestCantilever) places.push_back({slabEnd(c), 0});
    return places;
}

std::string number(double value) {
    return formatNumber(value, "#0.0");
}

class Chart {
  public:
    Chart(const DesignCase& designCase, const CurveValues& values) : case_(designCase), values_(values) {
        double up = 0;
        double down = 0;
        for (const auto& curve : values.curves) {
            for (const Place& place : along(case_, curve)) {
                up = std::max(up, -place.moment);
                down = std::max(down, place.moment);
            }
        }
        const double largest = std::max(up, down);
        momentScale_ = largest > 0 ? highest / largest : 0;
        base_ = up * momentScale_ + 2 * labelHeight;
        height_ = base_ + down * momentScale_ + 3 * labelHeight + 8;
    }

    std::string svg() {
        addSupports();
        addCurve(values_.curves[0], "c1");
        addCurve(values_.curves[1], "c2");
        line(left, base_, right, base_, "axis");
        addPeaks();
        return "<svg xmlns=\"http://www.w3.org/2000/svg\" class=\"moments\" viewBox=\"0 0 1000 " +
               number(height_) + "\" role=\"img\" aria-label=\"Momentdiagram\">\n" + body_ + "</svg>\n";
    }

  private:
    double x(double metres) const { return left + (right - left) * metres / slabEnd(case_); }
    double y(double moment) const { return base_ + moment * momentScale_; }

    void line(double x1, double y1, double x2, double y2, const char* kind) {
        body_ += "<path class=\"" + std::string(kind) + "\" d=\"M" + number(x1) + " " + number(y1) + " L" +
                 number(x2) + " " + number(y2) + "\"/>\n";
    }
    void text(double atX, double atY, const std::string& words) {
        body_ += "<text x=\"" + number(atX) + "\" y=\"" + number(atY) + "\">" + escaped(words) + "</text>\n";
    }

    void addCurve(const std::vector<SpanMoments>& curve, const std::string& name) {
        std::string path;
        const std::vector<Place> places = along(case_, curve);
        for (const Place& place : places)
            path += (path.empty() ? "M" : " L") + number(x(place.x)) + " " + number(y(place.moment));
        const std::string area = "M" + number(x(places.front().x)) + " " + number(base_) + " L" +
                                 path.substr(1) + " L" + number(x(places.back().x)) + " " + number(base_);
        body_ += "<path class=\"area " + name + "\" d=\"" + area + " Z\"/>\n";
        body_ += "<path class=\"curve " + name + "\" d=\"" + path + "\"/>\n";
    }

    void addSupports() {
        const double bottom = height_ - 8;
        for (int support = 0; support <= case_.nfack; ++support) {
            const double at = x(supportPlace(case_, support + 1));
            line(at, labelHeight, at, bottom - labelHeight, "support");
            text(at, bottom, std::to_string(support));
            if (support == 0) continue;
            const double before = x(supportPlace(case_, support));
            if (at - before > roomForSpan)
                text((at + before) / 2, bottom, std::string(spanHeading) + " " + std::to_string(support));
        }
    }

    void addPeaks() {
        for (const Peak& peak : supportPeaks(case_, values_)) {
            if (peak.moment < 0) text(x(peak.x), y(peak.moment) - 5, label(peak));
        }
        for (const Peak& peak : spanPeaks(case_, values_)) {
            if (peak.moment > 0) text(x(peak.x), y(peak.moment) + labelHeight, label(peak));
        }
    }
    static std::string label(const Peak& peak) { return formatNumber(peak.moment, "#0.0", swedish); }

    const DesignCase& case_;
    const CurveValues& values_;
    double momentScale_ = 0;
    double base_ = 0;
    double height_ = 0;
    std::string body_;
};

} // namespace

std::vector<Peak> spanPeaks(const DesignCase& c, const CurveValues& values) {
    std::vector<Peak> peaks;
    for (int span = 1; span <= values.spans(); ++span) {
        Peak peak{-std::numeric_limits<float>::infinity()};
        for (const auto& curve : values.curves) {
            const SpanMoments& moments = curve[static_cast<std::size_t>(span - 1)];
            const auto* const largest = std::ranges::max_element(moments.moments);
            if (*largest <= peak.moment) continue;
            const double inSpan =
                pointPlace(c, span, moments, static_cast<int>(largest - moments.moments.begin()));
            peak = {*largest, supportPlace(c, span) + inSpan, inSpan};
        }
        peaks.push_back(peak);
    }
    return peaks;
}

std::vector<Peak> supportPeaks(const DesignCase& c, const CurveValues& values) {
    std::vector<Peak> peaks;
    for (int support = 0; support <= values.spans(); ++support) {
        Peak peak{std::numeric_limits<float>::infinity(), supportPlace(c, support + 1)};
        const auto at = static_cast<std::size_t>(support);
        for (const auto& curve : values.curves) {
            if (support > 0) peak.moment = std::min(peak.moment, curve[at - 1].moments.back());
            if (support < values.spans()) peak.moment = std::min(peak.moment, curve[at].moments.front());
        }
        peaks.push_back(peak);
    }
    return peaks;
}

std::string momentChart(const DesignCase& designCase, const CurveValues& values) {
    return Chart(designCase, values).svg();
}

} // namespace varno::tool
