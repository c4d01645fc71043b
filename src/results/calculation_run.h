#pragma once

#include <string>

#include "base/message_boxes.h"
#include "base/open_file.h"
#include "base/process_starter.h"
#include "controls/main_view.h"
#include "model/design_case.h"
#include "results/result_viewer.h"

namespace varno {

/// "Kör...": hands the saved case to the calculation engine and shows what it wrote.
class CalculationRun {
  public:
    CalculationRun(FileOpener& files, MessageBoxes& boxes, ProcessStarter& processes, MainView& window,
                   ResultViewer& viewer)
        : files_(files), boxes_(boxes), processes_(processes), window_(window), viewer_(viewer) {}

    /// An unsaved case is refused. Whether the engine succeeded is decided by its result file alone: its exit
    /// code is not looked at, and an older result of the same name is shown when the engine could not be
    /// started.
    void run(const DocumentState& document, const std::string& workFolder, const std::string& resultFontName);

  private:
    void copyInput(const std::string& caseName);

    FileOpener& files_;
    MessageBoxes& boxes_;
    ProcessStarter& processes_;
    MainView& window_;
    ResultViewer& viewer_;
};

/// The temporary copy of the case that the engine reads, in the current directory.
inline constexpr const char* temporaryInputFile = "~indata~.tmp";

/// The engine's path as a command line: quoted when it holds a blank, so that "C:\Program.exe" is never
/// started in place of a program under "C:\Program Files".
std::string engineCommandLine(const std::string& workFolder);

} // namespace varno
