#include "driver/picture.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "driver/scene.h"
#include "driver/wait.h"
#include "win32/unique.h"

namespace varno::gui {

namespace {

bool alike(const Pixel& a, const Pixel& b, int tolerance) {
    return std::abs(a.red - b.red) <= tolerance && std::abs(a.green - b.green) <= tolerance &&
           std::abs(a.blue - b.blue) <= tolerance;
}

} // namespace

Pixel Picture::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) {
        throw GuiError("the picture has no pixel " + std::to_string(x) + "," + std::to_string(y));
    }
    return pixels[static_cast<std::size_t>(y * width + x)];
}

bool Picture::has(const Pixel& colour, int x, int y, int reach, int tolerance) const {
    for (int v = std::max(0, y - reach); v <= std::min(height - 1, y + reach); ++v) {
        for (int u = std::max(0, x - reach); u <= std::min(width - 1, x + reach); ++u) {
            if (alike(at(u, v), colour, tolerance)) return true;
        }
    }
    return false;
}

int Picture::count(const Pixel& colour, int tolerance) const {
    return static_cast<int>(std::count_if(pixels.begin(), pixels.end(), [&](const Pixel& pixel) {
        return alike(pixel, colour, tolerance);
    }));
}

Picture readPpm(const std::string& path) {
    const Bytes bytes = readFile(path);
    std::istringstream head(bytes.substr(0, 64));
    std::string kind;
    int most = 0;
    Picture picture;
    head >> kind >> picture.width >> picture.height >> most;
    const auto size = static_cast<std::size_t>(picture.width * picture.height);
    const auto begin = static_cast<std::size_t>(head.tellg()) + 1;
    if (kind != "P6" || most != 255 || bytes.size() != begin + 3 * size) throw GuiError(path + " is no picture");
    const auto part = [&](std::size_t i) { return static_cast<unsigned char>(bytes[begin + i]); };
    picture.pixels.reserve(size);
    for (std::size_t i = 0; i < size; ++i)
        picture.pixels.push_back({part(3 * i), part(3 * i + 1), part(3 * i + 2)});
    return picture;
}

Picture shownBy(const Control& window) {
    RECT client{};
    GetClientRect(window.handle(), &client);
    POINT corner{0, 0};
    ClientToScreen(window.handle(), &corner);

    const win32::WindowDc screen(nullptr);
    const win32::UniqueDc memory(CreateCompatibleDC(screen.get()));
    const win32::UniqueBitmap bitmap(CreateCompatibleBitmap(screen.get(), client.right, client.bottom));
    const win32::Selected selected(memory.get(), bitmap.get());
    BitBlt(memory.get(), 0, 0, client.right, client.bottom, screen.get(), corner.x, corner.y, SRCCOPY);
    Picture picture{client.right, client.bottom, {}};
    for (int y = 0; y < client.bottom; ++y) {
        for (int x = 0; x < client.right; ++x) {
            const COLORREF colour = GetPixel(memory.get(), x, y);
            picture.pixels.push_back({GetRValue(colour), GetGValue(colour), GetBValue(colour)});
        }
    }
    return picture;
}

} // namespace varno::gui
