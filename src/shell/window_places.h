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
    explicit WindowPlaces(FileCalls& calls) : calls_(calls) {}

    /// Reads those of the last run. Without a folder nothing is kept.
    void start(const std::string& folder);
    std::optional<WindowPlace> of(const std::string& window) const;
    void keep(const std::string& window, const WindowPlace& place) { places_[window] = place; }
    void save();

  private:
    FileCalls& calls_;
    std::string file_;
    std::map<std::string, WindowPlace> places_;
};

} // namespace varno
