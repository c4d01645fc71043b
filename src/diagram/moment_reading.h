#pragma once

#include <string>
#include <vector>

#include "base/numbers.h"
#include "diagram/curve_values.h"
#include "drawing/annotated_picture.h"

namespace varno {

/// The two curves of the moment diagram as numbers: what they say at a place of the slab, their peaks, and all of their
/// points. The spans are laid out as the diagram draws them. Of the two curves the larger and the smaller value is
/// told, whichever curve it stands in.
class MomentReading {
  public:
    MomentReading() = default;
    /// \param momentMax the largest moment, by which the diagram is scaled
    MomentReading(const DesignCase& designCase, const CurveValues& values, double sketchScale, float momentMax);

    /// At an x of the picture, in twips: "Fack 2, x = 3,25 m: ..."; empty beside the slab.
    std::string at(double x, const NumberLocale& locale) const;
    /// The smallest moment over each support, the largest in each span, and their unit.
    std::vector<PictureText> peaks(const NumberLocale& locale) const;
    /// Every point of the file, a row each, with tabs between, for a spreadsheet.
    std::string table(const NumberLocale& locale) const;

  private:
    // Between two samples of a span the curves are straight.
    struct Sample {
        double place;  // m from the left end of the slab
        int span;      // 0 and the number behind the last: the cantilevers
        double inSpan; // m from the left support, in a cantilever from its support
        double largest;
        double smallest;
        bool ofFile = true;
    };
    void addSpan(const DesignCase& designCase, const CurveValues& values, int span, double& place);
    std::string placeText(int span, double inSpan, const NumberLocale& locale) const;
    Point onPicture(double place, double moment) const;

    std::vector<Sample> samples_;
    int spans_ = 0;
    double scale_ = 0;       // twips per metre
    double momentScale_ = 0; // twips per kNm/m
};

} // namespace varno
