#pragma once

#include "base/file.h"
#include "base/numbers.h"
#include "model/design_case.h"

namespace varno {

// The moment curve file that the calculation engine leaves in the current directory.
//
//     file  = n curve curve                 1 + 44 n items; what follows is not read
//     curve = n * span                      spans from left to right
//     span  = dx M(0) M(1) ... M(20)        dx in m, M in kNm/m
//
// Items stand between commas and line ends, wherever these are. What one might not expect:
//   - decimals need a point: "1,5" is the two items 1 and 5, and everything behind it moves by one;
//   - an empty line is an item, 0, and so is one that is not a number;
//   - n is the file's own: it need not be the number of spans of the case;
//   - an n of 0 or below is a file without curves.

inline constexpr const char* momentFileName = "momk.dat";
inline constexpr int lastMoment = 20; ///< the moments of a span are 0..lastMoment

/// Reads a moment curve file item by item.
class MomentFile {
  public:
    /// Reads the number of spans. \throws RunTimeError 52 for a file that did not open, 62 for an empty one,
    /// 6 for a number that is no 16-bit one, 9 for more spans than a case has room for.
    explicit MomentFile(File& file) : file_(file) {
        aboutFile(file.path(), FileAction::reading, [&] {
            spans_ = toInteger(VARNO1::parseNumber(file.readField()));
            if (spans_ > SpanArray::last) throw RunTimeError(errSubscriptOutOfRange);
        });
    }

    int spans() const { return spans_; }
    /// The next item. \throws RunTimeError 62 at the end of the file, 6 beyond the singles.
    float number() {
        return aboutFile(file_.path(), FileAction::reading,
                         [&] { return toSingle(VARNO1::parseNumber(file_.readField())); });
    }
    void skip() { file_.readField(); }

  private:
    File& file_;
    int spans_ = 0;
};

} // namespace varno
