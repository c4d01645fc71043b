#include "diagram/moment_reading.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "diagram/diagram_scale.h"
#include "input/sketch.h"

namespace varno {

namespace {

std::string number(double value, std::string_view pattern, const NumberLocale& locale) {
    return std::isfinite(value) ? formatNumber(value, pattern, locale) : "?";
}

} // namespace

MomentReading::MomentReading(const DesignCase& designCase, const CurveValues& values, double sketchScale,
                             float momentMax)
    : spans_(values.spans()), scale_(sketchScale),
      momentScale_(momentMax > 0 ? highestMoment / static_cast<double>(momentMax) : 0) {
    if (spans_ == 0) return;
    double place = designCase.konsv;
    for (int span = 1; span <= spans_; ++span)
        addSpan(designCase, values, span, place);
    // In a cantilever the moment falls in a straight line to 0 at the free end.
    if (designCase.konsv > shortestCantilever) {
        const Sample support = samples_.front();
        const Sample freeEnd{0, 0, designCase.konsv, 0, 0, false};
        samples_.insert(samples_.begin(),
                        {freeEnd, {support.place, 0, 0, support.largest, support.smallest, false}});
    }
    if (designCase.konsh > shortestCantilever) {
        const Sample support = samples_.back();
        samples_.push_back({support.place, spans_ + 1, 0, support.largest, support.smallest, false});
        samples_.push_back({support.place + static_cast<double>(designCase.konsh), spans_ + 1,
                            designCase.konsh, 0, 0, false});
    }
}

void MomentReading::addSpan(const DesignCase& designCase, const CurveValues& values, int span,
                            double& place) {
    const auto index = static_cast<std::size_t>(span - 1);
    const SpanMoments& first = values.curves[0][index];
    const SpanMoments& second = values.curves[1][index];
    const auto add = [&](double inSpan, std::size_t k, bool ofFile) {
        const auto [smallest, largest] = std::minmax<double>({first.moments[k], second.moments[k]});
        samples_.push_back({place + inSpan, span, inSpan, largest, smallest, ofFile});
    };
    const double behindSupport = designCase.upl(span - 1);
    if (behindSupport > 0) add(0, 0, false);
    for (int k = 0; k <= lastMoment; ++k)
        add(pointPlace(designCase, span, first, k), static_cast<std::size_t>(k), true);
    place += pointPlace(designCase, span, first, lastMoment);
}

std::string MomentReading::placeText(int span, double inSpan, const NumberLocale& locale) const {
    const std::string metres = number(inSpan, "#0.00", locale) + " m";
    if (span == 0) return "Konsol vänster, " + metres + " från stödet";
    if (span > spans_) return "Konsol höger, " + metres + " från stödet";
    return "Fack " + std::to_string(span) + ", x = " + metres;
}

std::string MomentReading::at(double x, const NumberLocale& locale) const {
    if (scale_ <= 0) return {};
    const double place = (x - slabStripStart) / scale_;
    for (std::size_t i = 1; i < samples_.size(); ++i) {
        const Sample& left = samples_[i - 1];
        const Sample& right = samples_[i];
        if (left.span != right.span || !(place >= left.place && place <= right.place)) continue;
        const double length = right.place - left.place;
        const double share = length > 0 ? (place - left.place) / length : 0;
        const auto between = [share](double from, double to) { return from + (to - from) * share; };
        const auto moment = [&](double value) { return number(value, "#0.00", locale) + " kNm/m"; };
        return placeText(left.span, between(left.inSpan, right.inSpan), locale) + ": största moment " +
               moment(between(left.largest, right.largest)) + ", minsta moment " +
               moment(between(left.smallest, right.smallest));
    }
    return {};
}

Point MomentReading::onPicture(double place, double moment) const {
    return {slabStripStart + place * scale_, momentBaseline + moment * momentScale_};
}

std::vector<PictureText> MomentReading::peaks(const NumberLocale& locale) const {
    std::vector<PictureText> texts;
    constexpr double nothing = 0.005; // is shown as 0
    const auto add = [&](double place, double moment, bool above) {
        texts.push_back({onPicture(place, moment), number(moment, "#0.00", locale), above});
    };
    for (int support = 0; support <= spans_; ++support) {
        const Sample* lowest = nullptr;
        for (const Sample& sample : samples_) {
            const bool behind = sample.span == support && support > 0;
            const bool before = sample.span == support + 1 && sample.span <= spans_;
            if (!behind && !before) continue;
            // The last of the span on its left, the first of the one on its right.
            const Sample* const next = &sample + 1;
            const bool last = next == samples_.data() + samples_.size() || next->span != sample.span;
            const bool first = &sample == samples_.data() || (&sample - 1)->span != sample.span;
            if ((behind && !last) || (before && !first)) continue;
            if (lowest == nullptr || sample.smallest < lowest->smallest) lowest = &sample;
        }
        if (lowest != nullptr && lowest->smallest < -nothing) add(lowest->place, lowest->smallest, true);
    }
    for (int span = 1; span <= spans_; ++span) {
        const Sample* highest = nullptr;
        for (const Sample& sample : samples_) {
            if (sample.span == span && (highest == nullptr || sample.largest > highest->largest))
                highest = &sample;
        }
        if (highest != nullptr && highest->largest > nothing) add(highest->place, highest->largest, false);
    }
    if (!texts.empty()) texts.push_back({{diagramWidth - 500, diagramHeight - 300}, "kNm/m", false});
    return texts;
}

std::string MomentReading::table(const NumberLocale& locale) const {
    std::string rows = "Fack\tx (m)\tStörsta moment (kNm/m)\tMinsta moment (kNm/m)\r\n";
    for (const Sample& sample : samples_) {
        if (!sample.ofFile) continue;
        rows += std::to_string(sample.span) + "\t" + number(sample.inSpan, "#0.000", locale) + "\t" +
                number(sample.largest, "#0.00", locale) + "\t" + number(sample.smallest, "#0.00", locale) +
                "\r\n";
    }
    return rows;
}

} // namespace varno
