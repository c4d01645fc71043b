#include "win32/gdi_printer.h"

#include <commdlg.h>
#include <winspool.h>

#include <utility>

#include "base/run_time_error.h"
#include "win32/dpi.h"
#include "win32/late.h"
#include "win32/printer_fonts.h"
#include "win32/strings.h"

namespace varno::win32 {

namespace {

// A result page: the header, an empty line and 70 lines of at most 80 characters.
constexpr const wchar_t* dialogs = L"comdlg32.dll";
constexpr int linesOnPage = 72;
constexpr int charactersOnLine = 80;
constexpr int largestFont = 100; // tenths of a point
constexpr int smallestFont = 40;

struct Unlocker {
    HGLOBAL memory;
    void operator()(void*) const { GlobalUnlock(memory); }
};
std::unique_ptr<void, Unlocker> locked(HGLOBAL memory) {
    return {memory != nullptr ? GlobalLock(memory) : nullptr, {memory}};
}

} // namespace

GdiPrinter::~GdiPrinter() {
    if (dc_ == nullptr) return;
    if (pageOpen_) EndPage(dc_.get());
    EndDoc(dc_.get());
}

UniqueDc GdiPrinter::createDc() const {
    const auto mode = locked(mode_.get());
    const auto names = locked(names_.get());
    if (names) {
        const auto* devNames = static_cast<const DEVNAMES*>(names.get());
        const auto* texts = static_cast<const wchar_t*>(names.get());
        UniqueDc chosen(CreateDCW(L"WINSPOOL", texts + devNames->wDeviceOffset, nullptr,
                                  static_cast<const DEVMODEW*>(mode.get())));
        // The printer that was chosen may have been removed since.
        if (chosen) return chosen;
    }
    const std::wstring name = defaultPrinterName();
    if (name.empty()) return nullptr;
    return UniqueDc(CreateDCW(L"WINSPOOL", name.c_str(), nullptr, nullptr));
}

void GdiPrinter::setUp(HWND owner) {
    if (showSetUp(owner) || Late<decltype(&CommDlgExtendedError)>(dialogs, "CommDlgExtendedError")() == 0)
        return;
    // The dialog does not come with a printer that has been removed since; it does with the default one.
    mode_.reset();
    names_.reset();
    showSetUp(owner);
}

bool GdiPrinter::showSetUp(HWND owner) {
    PRINTDLGW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.Flags = PD_PRINTSETUP;
    // What was chosen before stands in the dialog: its orientation and its number of copies.
    dialog.hDevMode = mode_.release();
    dialog.hDevNames = names_.release();
    const bool chosen = Late<decltype(&PrintDlgW)>(dialogs, "PrintDlgW")(&dialog) != FALSE;
    mode_.reset(dialog.hDevMode);
    names_.reset(dialog.hDevNames);
    return chosen;
}

void GdiPrinter::startDocument() {
    if (dc_ != nullptr) return;
    UniqueDc dc = createDc();
    DOCINFOW info{};
    info.cbSize = sizeof info;
    info.lpszDocName = L"Kalvora Tessaplan";
    if (dc == nullptr || StartDocW(dc.get(), &info) <= 0) throw RunTimeError(errPrinter);
    dc_ = std::move(dc);
    canvas_ =
        std::make_unique<GdiCanvas>(dc_.get(), deviceCaps(LOGPIXELSX), deviceCaps(LOGPIXELSX), RGB(0, 0, 0));
    fontFace_.clear();
}

// The page number is asked for before anything starts the next document.
void GdiPrinter::forgetDocument() {
    canvas_.reset();
    dc_.reset();
    page_ = 1;
    pageOpen_ = false;
}

// A document that a failing printer broke off would fail again at every later page.
void GdiPrinter::fail() {
    AbortDoc(dc_.get());
    forgetDocument();
    throw RunTimeError(errPrinter);
}

void GdiPrinter::startPage() {
    startDocument();
    if (pageOpen_) return;
    if (StartPage(dc_.get()) <= 0) fail();
    pageOpen_ = true;
    drawn_ = false;
    y_ = down().begin;
    SetBkMode(dc_.get(), TRANSPARENT);
}

void GdiPrinter::endPage() {
    if (!std::exchange(pageOpen_, false)) return;
    if (EndPage(dc_.get()) <= 0) fail();
}

void GdiPrinter::newPage() {
    startPage();
    endPage();
    ++page_;
}

int GdiPrinter::page() {
    // Text never runs over a drawing: it begins on the next page.
    if (pageOpen_ && drawn_) newPage();
    return page_;
}

TextRange GdiPrinter::across() const {
    return textRange(
        {deviceCaps(PHYSICALWIDTH), deviceCaps(PHYSICALOFFSETX), deviceCaps(HORZRES), deviceCaps(LOGPIXELSX)},
        filingMargin, textMargin);
}

TextRange GdiPrinter::down() const {
    return textRange({deviceCaps(PHYSICALHEIGHT), deviceCaps(PHYSICALOFFSETY), deviceCaps(VERTRES),
                      deviceCaps(LOGPIXELSY)},
                     textMargin, textMargin);
}

// The largest font of the face, up to 10 points, in which a whole result page fits between the margins.
void GdiPrinter::chooseFont() {
    if (face_.empty()) face_ = printerFontName();
    if (fontFace_ == face_) return;
    const std::wstring face = wide(face_);
    const int dpi = deviceCaps(LOGPIXELSY);
    for (int tenths = largestFont; tenths >= smallestFont; tenths -= 2) {
        font_ = fontOfHeight(face.c_str(), -MulDiv(tenths, dpi, 720));
        const Selected selected(dc_.get(), font_.get());
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc_.get(), &metrics);
        lineHeight_ = static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading);
        const bool high = lineHeight_ * linesOnPage > down().length();
        const bool broad = metrics.tmAveCharWidth * charactersOnLine > across().length();
        if (!high && !broad) break;
    }
    fontFace_ = face_;
}

void GdiPrinter::printOneLine(const std::wstring& line) {
    startPage();
    chooseFont();
    if (y_ + lineHeight_ > down().end) {
        newPage();
        startPage();
    }
    const Selected selected(dc_.get(), font_.get());
    TextOutW(dc_.get(), across().begin, y_, line.c_str(), static_cast<int>(line.size()));
    y_ += lineHeight_;
}

void GdiPrinter::printLine(const std::string& text) {
    if (pageOpen_ && drawn_) newPage();
    std::wstring rest = wide(text);
    while (true) {
        const auto end = rest.find(L"\r\n");
        printOneLine(rest.substr(0, end));
        if (end == std::wstring::npos) return;
        rest.erase(0, end + 2);
    }
}

void GdiPrinter::endDocument() {
    if (dc_ == nullptr) return;
    endPage();
    const bool ended = EndDoc(dc_.get()) > 0;
    forgetDocument();
    if (!ended) throw RunTimeError(errPrinter);
}

Canvas& GdiPrinter::canvas() {
    startPage();
    drawn_ = true;
    return *canvas_;
}

} // namespace varno::win32
