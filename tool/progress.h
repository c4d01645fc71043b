#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "tool/engine_host.h"

namespace varno::tool {

/// A bar on one line of a terminal: "[#####-----] 50 av 100, 2 misslyckade, 12 s kvar". On anything else it shows nothing.
class Progress {
  public:
    Progress(std::ostream& out, bool terminal, int total) : out_(out), terminal_(terminal), total_(total) {}
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Not more often than the eye follows.
    void show(int good, int failed, Milliseconds now);

  private:
    std::string text(int good, int failed, Milliseconds now) const;

    std::ostream& out_;
    const bool terminal_;
    const int total_;
    std::optional<Milliseconds> started_;
    Milliseconds shown_{0};
    std::size_t width_ = 0; ///< of what stands on the line
};

} // namespace varno::tool
