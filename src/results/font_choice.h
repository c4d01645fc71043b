#pragma once

#include <string>
#include <vector>

#include "base/open_file.h"
#include "drawing/printer.h"
#include "files/file_dialog.h"
#include "results/result_viewer.h"

namespace varno {

/// The name of the file that keeps the result font. It is written into the directory last shown by the
/// file-name dialog and read at start-up from the current directory, so the choice is found again only when
/// the two are the same.
inline constexpr const char* fontFileName = "Varnfnt.ini";

/// The window "TYPSNITT" with its three lists.
class FontChooserView {
  public:
    virtual ~FontChooserView() = default;
    virtual void showInstalled(const std::vector<std::string>& faces) = 0;
    /// The one entry of "Lagrat fontval", drawn in its own font.
    virtual void showStored(const std::string& face) = 0;
    /// The one entry of "Visas just nu".
    virtual void showCurrent(const std::string& face) = 0;
    /// Shows the window, modally, until `close`.
    virtual void run() = 0;
    virtual void close() = 0;
};

/// The rules of the font chooser. `resultFontName` is the program's setting and changes with every click.
class FontChoice {
  public:
    FontChoice(std::string& resultFontName, FileOpener& files, const Printer& printer, FileDialog& dialog,
               ResultViewer& viewer, FontChooserView& view)
        : resultFontName_(resultFontName), files_(files), printer_(printer), dialog_(dialog), viewer_(viewer),
          view_(view) {}

    /// "Redigera": the chooser, modally.
    void edit();
    void clicked(const std::string& face);
    /// Stores the choice and closes. \throws RunTimeError 52 when the file could not be opened; the chooser
    /// then stays.
    void accepted();
    /// Back to the stored choice.
    void cancelled();

  private:
    std::vector<std::string> offered() const;

    std::string& resultFontName_;
    FileOpener& files_;
    const Printer& printer_;
    FileDialog& dialog_;
    ResultViewer& viewer_;
    FontChooserView& view_;
    std::string stored_;
};

} // namespace varno
