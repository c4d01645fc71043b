#include "tool/progress.h"

#include <algorithm>
#include <ostream>

#include "base/text.h"

namespace varno::tool {

namespace {

constexpr Milliseconds step{100};
constexpr int barWidth = 30;

std::string duration(Milliseconds time) {
    const long long seconds = (time.count() + 500) / 1000;
    if (seconds < 120) return std::to_string(seconds) + " s";
    if (seconds < 7200) return std::to_string((seconds + 30) / 60) + " min";
    return std::to_string((seconds + 1800) / 3600) + " h";
}

} // namespace

// The line is left to what is printed next.
Progress::~Progress() {
    if (width_ > 0) out_ << '\r' << std::string(width_, ' ') << '\r' << std::flush;
}

void Progress::show(int good, int failed, Milliseconds now) {
    if (!terminal_ || total_ == 0) return;
    if (!started_) started_ = now;
    if (width_ > 0 && now - shown_ < step) return;
    shown_ = now;
    const std::string line = text(good, failed, now);
    const std::size_t width = characterCount(line);
    out_ << '\r' << line << std::string(width_ > width ? width_ - width : 0, ' ') << std::flush;
    width_ = width;
}

std::string Progress::text(int good, int failed, Milliseconds now) const {
    const int done = good + failed;
    const auto filled = static_cast<std::size_t>(static_cast<long long>(barWidth) * done / total_);
    std::string line = "[" + std::string(filled, '#') + std::string(barWidth - filled, '-') + "] " +
                       std::to_string(done) + " av " + std::to_string(total_);
    if (failed > 0) line += ", " + std::to_string(failed) + " misslyckade";
    const Milliseconds passed = now - *started_;
    if (done > 0 && done < total_ && passed >= Milliseconds(1000))
        line += ", " + duration(passed * (total_ - done) / done) + " kvar";
    return line;
}

} // namespace varno::tool
