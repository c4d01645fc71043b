#pragma once

#include <memory>
#include <string>
#include <vector>

#include "diagram/diagram_commands.h"
#include "diagram/diagram_window.h"
#include "files/file_info_window.h"
#include "files/leftovers.h"
#include "help/help_viewer.h"
#include "input/input_form.h"
#include "input/input_form_window.h"
#include "input/sketch.h"
#include "input/sketch_picture.h"
#include "lineloads/line_load_window.h"
#include "results/calculation_run.h"
#include "results/font_chooser_window.h"
#include "results/result_printing.h"
#include "results/result_viewer_window.h"
#include "shell/document.h"
#include "shell/main_tips.h"
#include "shell/main_window.h"
#include "shell/messages_in_turn.h"
#include "shell/prompt_window.h"
#include "shell/recent_cases.h"
#include "shell/rescue_window.h"
#include "shell/start_up.h"
#include "shell/status_line.h"
#include "shell/window_places.h"
#include "win32/crash_guard.h"
#include "win32/gdi_printer.h"
#include "win32/help.h"
#include "win32/printer_fonts.h"

namespace varno {

/// The program: owns the one design case, the document state, the settings and every window, and hands
/// references down. It wires events to rules and holds no rule of its own.
class Application : public win32::WindowHost,
                    private MainEvents,
                    private DocumentView,
                    private CaseBeside,
                    private ErrorPost,
                    private StartUpView {
  public:
    Application();
    ~Application() override;

    /// Runs start-up, opens the case that is given and runs the program; gives its exit code.
    int run(const std::vector<std::string>& given);

  private:
    // win32::WindowHost
    void report(const RunTimeError& error) override { boxes_.report(error); }
    bool translate(MSG& message) override;
    std::optional<WindowPlace> keptPlace(const std::string& windowClass) override;

    // MainEvents
    void command(int id) override;
    void endTyping() override { form_.focus({Field::rubrik}); }
    void activated() override;
    void flagClicked(int flag) override;
    void flagMenu(POINT place) override;
    void loadPictureMenu(POINT place) override;
    void openButtonMenu(POINT place) override;
    void filesDropped(const std::vector<std::string>& paths) override { openGiven(paths); }
    bool closing() override;
    void dpiChanged(int dpi) override { form_.changeDpi(dpi); }
    void clientResized(int width, int height) override;
    void showRunTimeError() override { boxes_.showNext(); }
    void statusDue() override;
    void helpRequested(const HELPINFO& request) override;

    // DocumentView
    SaveAnswer askToSave(const std::string& caption, const std::string& text, bool cancelOffered) override;
    void endProgram() override;
    void caseOpened() override;
    void fileUsed(const std::string& path) override;

    // CaseBeside
    void showBeside() override;

    // ErrorPost
    void postRunTimeError() override { main_.postRunTimeError(); }

    // StartUpView
    void showMainWindow() override;
    bool showVersionNotice() override { return askVersionNotice(*this, main_.handle()); }
    void showDisclaimer() override { DisclaimerWindow(*this, main_.handle()).runModal(); }
    void showInputForm() override;
    std::string printerFontName() override { return win32::printerFontName(); }
    void setResultFont(const std::string& face) override { results_->viewer.setFont(face); }

    void runCommand(int id);
    void makeOtherWindows();
    void sketchChanged();
    void showDoubts(const std::vector<Doubt>& doubts);
    std::string doubtAt(POINT pointer) const;
    bool translateKeyBeside(const MSG& message);
    bool translateHelpKey(const MSG& message);
    bool translateStepKey(const MSG& message);
    bool translateRecentKey(const MSG& message);
    win32::FormWindow* editedIn(HWND root);
    void calculate();
    /// When the result file of the case was last written, if there is one.
    std::optional<std::int64_t> lastResult();
    void showResult();
    /// Offers the cases that a program left in the file dialog's folder when it was ended while saving them.
    void offerLeftovers() { offerLeftoversIn(fileDialog_.directory()); }
    void offerLeftoversIn(const std::string& folder);
    void openGiven(const std::vector<std::string>& paths);
    void showImportant();
    void setUpPrinter();
    void deleteFiles(const char* pattern);
    void showMoments();

    // The windows that need their rules as those need them. The moment diagram and the line load editors are made on
    // first use.
    struct Results {
        explicit Results(Application& app)
            : viewer(app, app.main_.handle()), chooser(app, viewer.handle()),
              reader(viewer, app.printing_, app.settings_.resultFontName),
              fonts(app.settings_.resultFontName, app.files_, app.printer_, app.fileDialog_, viewer,
                    chooser) {
            viewer.listen(fonts, reader);
            chooser.listen(fonts);
        }
        ResultViewerWindow viewer;
        FontChooserWindow chooser;
        ResultReader reader;
        FontChoice fonts;
    };
    struct Moments {
        explicit Moments(Application& app)
            : window(app, app.main_.handle()), commands(app.diagram_, app.state_, app.locale_, app.files_,
                                                        app.boxes_, app.main_, app.printer_, window) {
            window.listen(commands);
        }
        DiagramWindow window;
        DiagramCommands commands;
    };
    struct LineLoads {
        LineLoads(Application& app, const LineLoadSet& set)
            : window(app, app.main_.handle(), set),
              rules(set, {app.case_, app.state_, app.main_, app.sketch_, app.form_, window, app.steps_},
                    app.locale_) {
            window.listen(rules);
        }
        LineLoadWindow window;
        LineLoadEditor rules;
    };
    void openLineLoads(std::unique_ptr<LineLoads>& editor, const LineLoadSet& set);
    void offerRescued();
    WindowPlaces::Places placesNow() const;

    NumberLocale locale_;
    DesignCase case_;
    DocumentState state_;
    Settings settings_;
    SketchPicture picture_;
    bool ended_ = false;

    MessagesInTurn boxes_{systemMessageBoxes(), *this};
    Folders& folders_ = systemFolders();
    ProcessStarter& processes_ = systemProcesses();
    FileOpener files_;
    win32::WindowsHelp helpSystem_;
    HelpViewer help_{helpSystem_, boxes_};
    FileInfoWindow fileInfo_;
    FileDialog fileDialog_;
    Leftovers leftovers_;
    RecentCases recent_{systemFileCalls()};
    WindowPlaces places_{systemFileCalls()};

    MainWindow main_;
    MainTips tips_{*this};
    InputFormWindow form_;
    SlabSketch sketch_;
    CaseFormFiller filler_;
    EditSteps steps_;
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
    StatusLine status_{case_, state_, locale_};
    std::unique_ptr<Results> results_;
    std::unique_ptr<DisclaimerWindow> important_;
    std::unique_ptr<Moments> moments_;
    std::unique_ptr<LineLoads> lineLoads_;
    std::unique_ptr<LineLoads> freeLoads_;
};

} // namespace varno
