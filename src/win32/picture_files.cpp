#include "win32/picture_files.h"

#include <objidl.h>

#include <commdlg.h>
#include <gdiplus.h>

#include <algorithm>
#include <array>

#include "base/file.h"
#include "base/run_time_error.h"
#include "drawing/area.h"
#include "win32/clipboard.h"
#include "win32/dpi.h"
#include "win32/gdi_canvas.h"
#include "win32/late.h"
#include "win32/strings.h"
#include "win32/unique.h"

namespace varno::win32 {

namespace {

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr int fileDpi = 2 * USER_DEFAULT_SCREEN_DPI;

void draw(HDC dc, const AnnotatedPicture& picture, int dpi) {
    GdiCanvas canvas(dc, dpi, dpi, black);
    replay(picture.drawing, canvas);
    drawTexts(dc, picture, dpi, dpi, black, white);
}

UniqueBitmap bitmapOf(const AnnotatedPicture& picture, int dpi) {
    const WindowDc screen(nullptr);
    const int width = pixelsOf(picture.width, dpi);
    const int height = pixelsOf(picture.height, dpi);
    UniqueBitmap bitmap(CreateCompatibleBitmap(screen.get(), width, height));
    const UniqueDc memory(CreateCompatibleDC(screen.get()));
    const Selected selected(memory.get(), bitmap.get());
    const RECT all{0, 0, width, height};
    FillRect(memory.get(), &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    draw(memory.get(), picture, dpi);
    return bitmap;
}

HENHMETAFILE metafileOf(const AnnotatedPicture& picture) {
    const WindowDc screen(nullptr);
    constexpr int dpi = USER_DEFAULT_SCREEN_DPI;
    // Its frame is in hundredths of a millimetre of the screen as it says it is.
    const auto hundredths = [&](double twips, int millimetres, int pixels) {
        return MulDiv(pixelsOf(twips, dpi) * 100, GetDeviceCaps(screen.get(), millimetres),
                      GetDeviceCaps(screen.get(), pixels));
    };
    const RECT frame{0, 0, hundredths(picture.width, HORZSIZE, HORZRES),
                     hundredths(picture.height, VERTSIZE, VERTRES)};
    const HDC dc = CreateEnhMetaFileW(screen.get(), nullptr, &frame, nullptr);
    draw(dc, picture, dpi);
    return CloseEnhMetaFile(dc);
}

namespace gdiPlus = Gdiplus::DllExports;
constexpr const wchar_t* gdiPlusLibrary = L"gdiplus.dll";
constexpr const wchar_t* streamLibrary = L"ole32.dll";

// GDI+ for as long as it is needed.
class PlusSession {
  public:
    PlusSession() {
        const Gdiplus::GdiplusStartupInput input;
        Late<decltype(&Gdiplus::GdiplusStartup)>(gdiPlusLibrary, "GdiplusStartup")(&token_, &input, nullptr);
    }
    ~PlusSession() { shutdown_(token_); }
    PlusSession(const PlusSession&) = delete;
    PlusSession& operator=(const PlusSession&) = delete;

    /// Writes a bitmap with the resolution of `fileDpi` into a stream.
    bool save(HBITMAP drawn, IStream& stream, const CLSID& encoder) const {
        const Late<decltype(&gdiPlus::GdipCreateBitmapFromHBITMAP)> create(gdiPlusLibrary,
                                                                           "GdipCreateBitmapFromHBITMAP");
        const Late<decltype(&gdiPlus::GdipBitmapSetResolution)> resolve(gdiPlusLibrary,
                                                                        "GdipBitmapSetResolution");
        const Late<decltype(&gdiPlus::GdipSaveImageToStream)> write(gdiPlusLibrary, "GdipSaveImageToStream");
        const Late<decltype(&gdiPlus::GdipDisposeImage)> dispose(gdiPlusLibrary, "GdipDisposeImage");
        Gdiplus::GpBitmap* bitmap = nullptr;
        if (create(drawn, nullptr, &bitmap) != Gdiplus::Ok) return false;
        resolve(bitmap, fileDpi, fileDpi);
        const bool saved = write(bitmap, &stream, &encoder, nullptr) == Gdiplus::Ok;
        dispose(bitmap);
        return saved;
    }

  private:
    Late<decltype(&Gdiplus::GdiplusShutdown)> shutdown_{gdiPlusLibrary, "GdiplusShutdown"};
    ULONG_PTR token_ = 0;
};

// The file's size is set at the end: a stream's memory is larger than what was written to it.
Bytes bytesOf(IStream& stream) {
    STATSTG facts{};
    HGLOBAL memory = nullptr;
    const Late<decltype(&GetHGlobalFromStream)> memoryOf(streamLibrary, "GetHGlobalFromStream");
    if (stream.Stat(&facts, STATFLAG_NONAME) != S_OK || memoryOf(&stream, &memory) != S_OK) return {};
    Bytes bytes(static_cast<const char*>(GlobalLock(memory)),
                static_cast<std::size_t>(facts.cbSize.QuadPart));
    GlobalUnlock(memory);
    return bytes;
}

void writeWhole(FileCalls& calls, const std::string& path, const Bytes& bytes) {
    const std::string draft = path + draftEnding;
    aboutFile(path, FileAction::writing, [&] {
        calls.checkWritable(path);
        const auto file = calls.create(draft);
        file->write(bytes);
        file->flush();
        file->close();
        calls.replace(draft, path);
    });
}

struct Kind {
    const wchar_t* ending;
    Bytes (*make)(const AnnotatedPicture&);
};
constexpr std::array kinds{
    Kind{L"svg", [](const AnnotatedPicture& picture) -> Bytes { return svgOf(picture); }},
    Kind{L"emf", emfOf}, Kind{L"png", pngOf}};
constexpr wchar_t filter[] = L"SVG-bild (*.svg)\0*.svg\0EMF-bild (*.emf)\0*.emf\0PNG-bild (*.png)\0*.png\0";

} // namespace

void drawTexts(HDC dc, const AnnotatedPicture& picture, int dpi, int fontDpi, COLORREF foreground,
               COLORREF ground) {
    if (picture.texts.empty()) return;
    const UniqueFont font = systemFont(fontDpi);
    const Selected selected(dc, font.get());
    SetTextColor(dc, foreground);
    SetBkColor(dc, ground);
    SetBkMode(dc, OPAQUE);
    SetTextAlign(dc, TA_CENTER | TA_TOP);
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    const auto height = static_cast<int>(metrics.tmHeight);
    const int gap = std::max(2, height / 5);
    const int lowest = pixelsOf(picture.height, dpi) - height;
    for (const PictureText& text : picture.texts) {
        const int y = pixelsOf(text.place.y, dpi);
        const int top = text.above ? y - gap - height : y + gap;
        const std::wstring words = wide(text.text);
        TextOutW(dc, pixelsOf(text.place.x, dpi), std::clamp(top, 0, std::max(0, lowest)), words.c_str(),
                 static_cast<int>(words.size()));
    }
}

Bytes emfOf(const AnnotatedPicture& picture) {
    const HENHMETAFILE metafile = metafileOf(picture);
    Bytes bytes(GetEnhMetaFileBits(metafile, 0, nullptr), '\0');
    GetEnhMetaFileBits(metafile, static_cast<UINT>(bytes.size()), reinterpret_cast<BYTE*>(bytes.data()));
    DeleteEnhMetaFile(metafile);
    return bytes;
}

Bytes pngOf(const AnnotatedPicture& picture) {
    constexpr CLSID pngEncoder{0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    const UniqueBitmap drawn = bitmapOf(picture, fileDpi);
    const PlusSession session;
    IStream* stream = nullptr;
    const Late<decltype(&CreateStreamOnHGlobal)> makeStream(streamLibrary, "CreateStreamOnHGlobal");
    if (makeStream(nullptr, TRUE, &stream) != S_OK) throw RunTimeError(errOutOfMemory);
    Bytes bytes;
    if (session.save(drawn.get(), *stream, pngEncoder)) bytes = bytesOf(*stream);
    stream->Release();
    if (bytes.empty()) throw RunTimeError(errOutOfMemory);
    return bytes;
}

void copyPicture(HWND owner, const AnnotatedPicture& picture) {
    setClipboardPicture(owner, metafileOf(picture), bitmapOf(picture, fileDpi).release());
}

void savePicture(HWND owner, const AnnotatedPicture& picture, const std::string& name, FileCalls& calls) {
    std::array<wchar_t, 1024> path{};
    lstrcpynW(path.data(), wide(name).c_str(), static_cast<int>(path.size()));
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter;
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrDefExt = kinds[0].ending;
    dialog.lpstrTitle = L"Spara som bild";
    // The engine works in the process's current directory, which must stay what it is.
    dialog.Flags =
        OFN_EXPLORER | OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
    if (!Late<decltype(&GetSaveFileNameW)>(L"comdlg32.dll", "GetSaveFileNameW")(&dialog)) return;
    // What the name ends in counts, then the kind that was chosen.
    const std::wstring_view chosen(path.data());
    const Kind* kind =
        &kinds[std::min<std::size_t>(kinds.size(), std::max<DWORD>(1, dialog.nFilterIndex)) - 1];
    for (const Kind& one : kinds) {
        const std::wstring ending = std::wstring(L".") + one.ending;
        if (chosen.size() > 4 && lstrcmpiW(chosen.data() + chosen.size() - 4, ending.c_str()) == 0)
            kind = &one;
    }
    writeWhole(calls, narrow(chosen), kind->make(picture));
}

} // namespace varno::win32
