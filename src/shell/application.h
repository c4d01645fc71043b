#pragma once

#include <deque>
#include <memory>

#include "diagram/moment_diagram.h"
#include "files/file_info_window.h"
#include "files/leftovers.h"
#include "help/help_viewer.h"
#include "input/input_form.h"
#include "input/input_form_window.h"
#include "input/sketch.h"
#include "input/sketch_picture.h"
#include "lineloads/line_load_window.h"
#include "results/calculation_run.h"
#include "results/result_printing.h"
#include "shell/document.h"
#include "shell/main_window.h"
#include "shell/prompt_window.h"
#include "shell/rescue_window.h"
#include "shell/start_up.h"
#include "win32/crash_guard.h"
#include "win32/gdi_printer.h"
#include "win32/help.h"

namespace varno {

/// The program: owns the one design case, the document state, the settings and every window, and hands
/// references down. It wires events to rules and holds no rule of its own.
class Application : private win32::WindowHost, private MainEvents, private DocumentView, private StartUpView {
  public:
    Application();
    ~Application() override;

    /// Runs start-up and then the program; gives its exit code.
    int run();

  private:
    // win32::WindowHost
    void report(const RunTimeError& error) override;
    bool translate(MSG& message) override;

    // MainEvents
    void command(int id) override;
    void endTyping() override;
    void activated() override;
    void flagClicked(int flag) override;
    void flagMenu(POINT place) override;
    void loadPictureMenu(POINT place) override;
    bool closing() override;
    void dpiChanged(int dpi) override;
    void clientResized(int width, int height) override;
    void showRunTimeError() override;
    void helpRequested(const HELPINFO& request) override;

    // DocumentView
    SaveAnswer askToSave(const std::string& caption, const std::string& text, bool cancelOffered) override;
    void endProgram() override;
    void caseOpened() override;

    // StartUpView
    void showMainWindow() override;
    bool showVersionNotice() override;
    void showDisclaimer() override;
    void showInputForm() override;
    std::string printerFontName() override;
    void setResultFont(const std::string& face) override;

    win32::WindowHost& host() { return *this; }
    void runCommand(int id);
    bool translateFlagKey(const MSG& message);
    bool translateHelpKey(const MSG& message);
    void calculate();
    void showResult();
    /// Offers the cases that a program left in the file dialog's folder when it was ended while saving them.
    void offerLeftovers();
    void showImportant();
    void setUpPrinter();
    void deleteFiles(const char* pattern);
    void showMoments();
    /// The windows that need their rules as those need them.
    struct Results;
    struct Moments;
    /// A line load editor with its window, made on first use.
    struct LineLoads;
    void openLineLoads(std::unique_ptr<LineLoads>& editor, const LineLoadSet& set);
    void offerRescued();
    InputContext inputContext();

    NumberLocale locale_;
    DesignCase case_;
    DocumentState state_;
    Settings settings_;
    SketchPicture picture_;
    bool ended_ = false;
    std::deque<RunTimeError> reported_; ///< not shown yet

    MessageBoxes& boxes_ = systemMessageBoxes();
    Folders& folders_ = systemFolders();
    ProcessStarter& processes_ = systemProcesses();
    FileOpener files_;
    win32::WindowsHelp helpSystem_;
    HelpViewer help_{helpSystem_, boxes_};
    FileInfoWindow fileInfo_;
    FileDialog fileDialog_;
    Leftovers leftovers_;

    MainWindow main_;
    InputFormWindow form_;
    SlabSketch sketch_;
    CaseFormFiller filler_;
    InputForm input_;
    Document document_;
    WindowsRescueLocks rescueLocks_;
    WindowsRescueClock rescueClock_;
    Rescue rescue_{document_, systemFileCalls(), folders_, rescueLocks_, boxes_, rescueClock_};
    std::unique_ptr<RescueWindow> rescueWindow_;
    win32::CrashGuard crashGuard_{[this] { rescue_.atOnce(); }};
    win32::GdiPrinter printer_;
    ResultPrinting printing_;
    MomentDiagram diagram_;
    std::unique_ptr<Results> results_;
    std::unique_ptr<DisclaimerWindow> important_;
    std::unique_ptr<Moments> moments_;
    std::unique_ptr<LineLoads> lineLoads_;
    std::unique_ptr<LineLoads> freeLoads_;
};

} // namespace varno
