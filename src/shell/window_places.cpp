#include "shell/window_places.h"

#include <sstream>

#include "base/file.h"
#include "base/run_time_error.h"

namespace varno {

// file = row*; row = class x y width height dpi maximized, with blanks between. A row that is not like that is left out.

void WindowPlaces::start(const std::string& folder) {
    if (folder.empty()) return;
    file_ = folder + "\\fonster.txt";
    try {
        File file(calls_, file_, FileMode::input, 0, 1);
        while (!file.atEnd()) {
            std::istringstream row(file.readLine());
            std::string window;
            WindowPlace place;
            if (row >> window >> place.area.x >> place.area.y >> place.area.width >> place.area.height >>
                place.dpi >> place.maximized)
                places_[window] = place;
        }
    } catch (const RunTimeError&) {
        // The first run has none.
    }
}

std::optional<WindowPlace> WindowPlaces::of(const std::string& window) const {
    const auto found = places_.find(window);
    return found == places_.end() ? std::nullopt : std::optional(found->second);
}

void WindowPlaces::save() {
    if (file_.empty()) return;
    try {
        File file(calls_, file_, FileMode::output, 0, 1);
        for (const auto& [window, place] : places_) {
            std::ostringstream row;
            row << window << ' ' << place.area.x << ' ' << place.area.y << ' ' << place.area.width << ' '
                << place.area.height << ' ' << place.dpi << ' ' << place.maximized;
            file.printLine(row.str());
        }
        file.close();
    } catch (const RunTimeError&) {
        // They stand where they stood before the next time.
    }
}

} // namespace varno
