#include "shell/window_places.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/file.h"
#include "base/run_time_error.h"

namespace varno {

// file = row*; row = class x y width height dpi maximized, with blanks between. A row that is not like that is left out.

namespace {

std::string_view takeWord(std::string_view& row) {
    row.remove_prefix(std::min(row.find_first_not_of(' '), row.size()));
    const std::string_view word = row.substr(0, row.find(' '));
    row.remove_prefix(word.size());
    return word;
}

bool takeNumber(std::string_view& row, int& number) {
    const std::string_view word = takeWord(row);
    return std::from_chars(word.data(), word.data() + word.size(), number).ec == std::errc();
}

} // namespace

void WindowPlaces::start(const std::string& folder) {
    if (folder.empty()) return;
    file_ = folder + "\\fonster.txt";
    try {
        File file(calls_, file_, FileMode::input, 0, 1);
        while (!file.atEnd()) {
            std::string_view row = file.readLine();
            const std::string_view window = takeWord(row);
            WindowPlace place;
            int maximized = 0;
            const bool whole = std::ranges::all_of(std::array{&place.area.x, &place.area.y, &place.area.width,
                                                              &place.area.height, &place.dpi, &maximized},
                                                   [&](int* number) { return takeNumber(row, *number); });
            place.maximized = maximized == 1;
            if (whole) places_[std::string(window)] = place;
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
            std::string row = window;
            for (const int number : {place.area.x, place.area.y, place.area.width, place.area.height,
                                     place.dpi, place.maximized ? 1 : 0})
                row += ' ' + std::to_string(number);
            file.printLine(row);
        }
        file.close();
    } catch (const RunTimeError&) {
        // They stand where they stood before the next time.
    }
}

} // namespace varno
