#pragma once

#include <string>

#include "base/open_file.h"
#include "base/run_time_error.h"
#include "controls/main_view.h"
#include "shell/document.h"

namespace varno {

/// The program's own version number, compared with the one in `varno.ver`.
inline constexpr double programVersion = 7.1;

/// Settings of the whole run.
struct Settings {
    std::string workFolder;     ///< holds varno.def and varnowb.exe; no trailing backslash
    std::string resultFontName; ///< font face of the result viewer
};

/// What start-up shows, beside the document's own windows.
class StartUpView {
  public:
    virtual ~StartUpView() = default;
    virtual void showMainWindow() = 0;
    /// The version notice (`Form10`), modally; true when "Visa inte detta nästa gång" was ticked at "OK".
    virtual bool showVersionNotice() = 0;
    /// The disclaimer (`Form9`), modally.
    virtual void showDisclaimer() = 0;
    virtual void showInputForm() = 0;
    /// The font face that the printer starts with.
    virtual std::string printerFontName() = 0;
    virtual void setResultFont(const std::string& face) = 0;
    /// Shows a run-time error that start-up goes on after.
    virtual void report(const RunTimeError& error) = 0;
};

/// Runs once, before any command. \throws RunTimeError: `varno.ini` and `varno.def` belong to the
/// installation, and without them the program ends.
void startUp(Settings& settings, Document& document, FileOpener& files, MainView& window, StartUpView& view);

} // namespace varno
