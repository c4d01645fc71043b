#include "driver/paper_picture.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "driver/scene.h"
#include "driver/wait.h"

namespace varno::gui {

PaperPicture::PaperPicture(const std::string& path) {
    const Bytes bytes = readFile(path);
    std::istringstream head(bytes.substr(0, 64));
    std::string kind;
    int brightest = 0;
    head >> kind >> width_ >> height_ >> brightest;
    const auto size = static_cast<std::size_t>(width_ * height_);
    const auto begin = static_cast<std::size_t>(head.tellg()) + 1;
    if (kind != "P6" || brightest != 255 || bytes.size() != begin + 3 * size) {
        throw GuiError(path + " is no picture");
    }
    const auto part = [&](std::size_t i) { return static_cast<BYTE>(bytes[begin + i]); };
    pixels_.reserve(size);
    for (std::size_t i = 0; i < size; ++i)
        pixels_.push_back(RGB(part(3 * i), part(3 * i + 1), part(3 * i + 2)));
}

bool PaperPicture::has(COLORREF colour, double x, double y, int reach) const {
    const int column = static_cast<int>(std::lround(x));
    const int row = static_cast<int>(std::lround(y));
    for (int v = std::max(0, row - reach); v <= std::min(height_ - 1, row + reach); ++v) {
        for (int u = std::max(0, column - reach); u <= std::min(width_ - 1, column + reach); ++u) {
            if (at(u, v) == colour) return true;
        }
    }
    return false;
}

int PaperPicture::count(COLORREF colour) const {
    return static_cast<int>(std::count(pixels_.begin(), pixels_.end(), colour));
}

RECT PaperPicture::inked() const {
    RECT box{width_, height_, 0, 0};
    for (LONG y = 0; y < height_; ++y) {
        for (LONG x = 0; x < width_; ++x) {
            if (at(x, y) == RGB(255, 255, 255)) continue;
            box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                   std::max(box.bottom, y + 1)};
        }
    }
    return box.right == 0 ? RECT{} : box;
}

} // namespace varno::gui
