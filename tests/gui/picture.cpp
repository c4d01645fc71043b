#include "picture.h"

#include <algorithm>
#include <iterator>

#include "driver/wait.h"
#include "win32/unique.h"

namespace varno::gui {

Picture Picture::ofScreen(HWND window) {
    RECT box{};
    GetWindowRect(window, &box);
    Picture picture;
    picture.width_ = box.right - box.left;
    picture.height_ = box.bottom - box.top;

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width_;
    info.bmiHeader.biHeight = -picture.height_;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const win32::WindowDc screen(nullptr);
    const win32::UniqueDc memory(CreateCompatibleDC(screen.get()));
    void* bits = nullptr;
    const win32::UniqueBitmap bitmap(
        CreateDIBSection(screen.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    bool read = false;
    {
        const win32::Selected selected(memory.get(), bitmap.get());
        read = BitBlt(memory.get(), 0, 0, picture.width_, picture.height_, screen.get(), box.left, box.top,
                      SRCCOPY);
        GdiFlush();
    }
    if (!read) throw GuiError("the screen cannot be read");

    const auto* rgb = static_cast<const RGBQUAD*>(bits);
    const auto count = static_cast<std::size_t>(picture.width_) * static_cast<std::size_t>(picture.height_);
    std::transform(rgb, rgb + count, std::back_inserter(picture.pixels_),
                   [](const RGBQUAD& p) { return RGB(p.rgbRed, p.rgbGreen, p.rgbBlue); });
    return picture;
}

COLORREF Picture::at(int x, int y) const {
    return pixels_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                      static_cast<std::size_t>(x));
}

std::vector<int> Picture::columns(int y, COLORREF colour) const {
    std::vector<int> found;
    for (int x = 0; x < width_; ++x) {
        if (at(x, y) == colour) found.push_back(x);
    }
    return found;
}

std::vector<int> Picture::rows(int x, COLORREF colour) const {
    std::vector<int> found;
    for (int y = 0; y < height_; ++y) {
        if (at(x, y) == colour) found.push_back(y);
    }
    return found;
}

int Picture::count(COLORREF colour) const {
    return static_cast<int>(std::count(pixels_.begin(), pixels_.end(), colour));
}

} // namespace varno::gui
