#include "win32/smooth_drawing.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace varno::win32 {

namespace {

struct Bits {
    UniqueBitmap bitmap;
    std::uint32_t* pixels = nullptr;
};

Bits makeBits(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    Bits bits;
    bits.bitmap.reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    bits.pixels = static_cast<std::uint32_t*>(pixels);
    return bits;
}

struct Pixel {
    int red;
    int green;
    int blue;
};

// The picture on a background, averaged down from its drawn size.
std::vector<Pixel> average(int width, int height, COLORREF background, const SmoothPaint& paint) {
    const int bigWidth = width * smoothScale;
    const int bigHeight = height * smoothScale;
    const Bits bits = makeBits(bigWidth, bigHeight);
    std::vector<Pixel> out(static_cast<std::size_t>(width * height));
    if (bits.pixels == nullptr) return out;
    {
        const UniqueDc dc(CreateCompatibleDC(nullptr));
        const Selected selected(dc.get(), bits.bitmap.get());
        const UniqueBrush brush(CreateSolidBrush(background));
        const RECT all{0, 0, bigWidth, bigHeight};
        FillRect(dc.get(), &all, brush.get());
        paint(dc.get(), bigWidth, bigHeight);
        GdiFlush();
    }
    constexpr int samples = smoothScale * smoothScale;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Pixel sum{0, 0, 0};
            for (int sample = 0; sample < samples; ++sample) {
                const int row = y * smoothScale + sample / smoothScale;
                const int column = x * smoothScale + sample % smoothScale;
                const std::uint32_t pixel = bits.pixels[row * bigWidth + column];
                sum.red += static_cast<int>((pixel >> 16) & 0xFF);
                sum.green += static_cast<int>((pixel >> 8) & 0xFF);
                sum.blue += static_cast<int>(pixel & 0xFF);
            }
            out[static_cast<std::size_t>(y * width + x)] = {sum.red / samples, sum.green / samples,
                                                            sum.blue / samples};
        }
    }
    return out;
}

std::uint32_t argb(int alpha, int red, int green, int blue) {
    const auto byte = [](int value) { return static_cast<std::uint32_t>(std::clamp(value, 0, 255)); };
    return byte(alpha) << 24 | byte(red) << 16 | byte(green) << 8 | byte(blue);
}

} // namespace

void drawSmooth(HDC dc, const RECT& box, COLORREF background, const SmoothPaint& paint) {
    const int width = box.right - box.left;
    const int height = box.bottom - box.top;
    if (width <= 0 || height <= 0) return;
    const std::vector<Pixel> pixels = average(width, height, background, paint);
    const Bits bits = makeBits(width, height);
    if (bits.pixels == nullptr) return;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        bits.pixels[i] = argb(255, pixels[i].red, pixels[i].green, pixels[i].blue);
    }
    const UniqueDc memory(CreateCompatibleDC(dc));
    const Selected selected(memory.get(), bits.bitmap.get());
    BitBlt(dc, box.left, box.top, width, height, memory.get(), 0, 0, SRCCOPY);
}

UniqueBitmap smoothBitmap(int width, int height, const SmoothPaint& paint, bool faded) {
    // Drawn on black and on white: where the two differ the picture is transparent, by as much as they
    // differ.
    const std::vector<Pixel> onBlack = average(width, height, RGB(0, 0, 0), paint);
    const std::vector<Pixel> onWhite = average(width, height, RGB(255, 255, 255), paint);
    Bits bits = makeBits(width, height);
    if (bits.pixels == nullptr) return nullptr;
    for (std::size_t i = 0; i < onBlack.size(); ++i) {
        const int alpha = 255 - (onWhite[i].green - onBlack[i].green);
        const auto straight = [alpha](int value) { return alpha > 0 ? value * 255 / alpha : 0; };
        const Pixel pixel{straight(onBlack[i].red), straight(onBlack[i].green), straight(onBlack[i].blue)};
        if (faded) {
            const int grey = (pixel.red * 30 + pixel.green * 59 + pixel.blue * 11) / 100;
            bits.pixels[i] = argb(alpha * 2 / 5, grey, grey, grey);
        } else {
            bits.pixels[i] = argb(alpha, pixel.red, pixel.green, pixel.blue);
        }
    }
    return std::move(bits.bitmap);
}

UniqueIcon smoothIcon(int size, const SmoothPaint& paint) {
    const UniqueBitmap bitmap = smoothBitmap(size, size, paint, false);
    if (!bitmap) return nullptr;
    const UniqueBitmap mask(CreateBitmap(size, size, 1, 1, nullptr));
    {
        const UniqueDc dc(CreateCompatibleDC(nullptr));
        const Selected selected(dc.get(), mask.get());
        PatBlt(dc.get(), 0, 0, size, size, BLACKNESS);
    }
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmColor = bitmap.get();
    info.hbmMask = mask.get();
    return UniqueIcon(CreateIconIndirect(&info));
}

} // namespace varno::win32
