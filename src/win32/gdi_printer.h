#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "drawing/paper.h"
#include "drawing/printer.h"
#include "win32/gdi_canvas.h"
#include "win32/printer_fonts.h"
#include "win32/unique.h"

namespace varno::win32 {

/// The program's printer: the default one until another is chosen in the set-up. It owns the current document for the
/// whole run and ends it at the latest when it is destroyed.
class GdiPrinter : public Printer {
  public:
    GdiPrinter() = default;
    ~GdiPrinter() override;
    GdiPrinter(const GdiPrinter&) = delete;
    GdiPrinter& operator=(const GdiPrinter&) = delete;

    bool available() const override { return dc_ != nullptr || createDc() != nullptr; }
    std::vector<std::string> fonts() const override { return printerFonts(); }
    /// The platform's set-up dialog: printer, orientation and copies. What is chosen applies to the next document.
    void setUp(HWND owner);

    void setFontName(const std::string& face) override { face_ = face; }
    void printLine(const std::string& text) override;
    int page() override;
    void newPage() override;
    void endDocument() override;
    Canvas& canvas() override;

  private:
    struct GlobalFreer {
        using pointer = HGLOBAL;
        void operator()(HGLOBAL memory) const { GlobalFree(memory); }
    };
    using UniqueGlobal = std::unique_ptr<HGLOBAL, GlobalFreer>;

    UniqueDc createDc() const;
    bool showSetUp(HWND owner);
    void startDocument();
    void forgetDocument();
    [[noreturn]] void fail();
    void startPage();
    void endPage();
    TextRange across() const;
    TextRange down() const;
    void chooseFont();
    void printOneLine(const std::wstring& line);
    int deviceCaps(int what) const { return GetDeviceCaps(dc_.get(), what); }

    UniqueGlobal mode_;  ///< DEVMODE of the set-up
    UniqueGlobal names_; ///< DEVNAMES of the set-up
    std::string face_;

    // The current document.
    UniqueDc dc_;
    std::unique_ptr<GdiCanvas> canvas_;
    UniqueFont font_;
    std::string fontFace_;
    int page_ = 1;
    int lineHeight_ = 0;
    int y_ = 0;
    bool pageOpen_ = false;
    bool drawn_ = false; ///< the open page has a drawing
};

} // namespace varno::win32
