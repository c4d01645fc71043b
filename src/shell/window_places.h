#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/file_calls.h"
#include "controls/window_place.h"

namespace varno {

/// Where the user's windows were left, by their class, in a file of the user's. Where it cannot be read or written they
/// stand where they stand of themselves.
class WindowPlaces {
  public:
    using Places = std::map<std::string, WindowPlace>;

    explicit WindowPlaces(FileCalls& calls) : calls_(calls) {}

    /// Reads those of the last run. Without a folder nothing is kept.
    void start(const std::string& folder);
    std::optional<WindowPlace> of(const std::string& window) const;
    /// Called now and then with where the windows stand. One that was moved and let go of is kept at once: a program that
    /// is ended by force comes back there, too. One that stands where it was put of itself is not.
    void look(const Places& now);
    /// They are where the user leaves them.
    void keep(const Places& now);

  private:
    void save();

    FileCalls& calls_;
    std::string file_;
    Places places_;
    Places seen_;    ///< at the last look
    Places settled_; ///< what was last kept, or where a window was first seen
};

} // namespace varno
