#pragma once

#include <windows.h>

#include <shellapi.h>

#include <array>
#include <string>
#include <vector>

#include "controls/control_ids.h"
#include "controls/main_view.h"
#include "input/sketch_picture.h"
#include "shell/main_layout.h"
#include "shell/status_window.h"
#include "shell/toolbar_window.h"
#include "win32/dpi.h"
#include "win32/picture_window.h"
#include "win32/strings.h"
#include "win32/unique.h"
#include "win32/window.h"

namespace varno {

/// Takes what the user does in the main window.
class MainEvents {
  public:
    virtual ~MainEvents() = default;
    virtual void command(int id) = 0;
    /// The top-level menu "Arkiv" is opened, or a toolbar button pressed: the field being typed in loses the focus
    /// before any command runs.
    virtual void endTyping() = 0;
    /// The window became active after another window of the program, message boxes apart.
    virtual void activated() = 0;
    virtual void flagClicked(int flag) = 0;
    /// The flag's context menu was asked for at a place of the screen.
    virtual void flagMenu(POINT place) = 0;
    /// The same of the load picture.
    virtual void loadPictureMenu(POINT place) = 0;
    /// The same of the toolbar button "Öppna...".
    virtual void openButtonMenu(POINT place) = 0;
    /// Files were dropped on the window.
    virtual void filesDropped(const std::vector<std::string>& paths) = 0;
    /// The close box, or Windows ending; true when the program has ended.
    virtual bool closing() = 0;
    /// The child windows are to be laid out at this resolution.
    virtual void dpiChanged(int dpi) = 0;
    /// The MDI client has this size in pixels.
    virtual void clientResized(int width, int height) = 0;
    /// A few times a second: the status line is to be brought up to date.
    virtual void statusDue() = 0;
    /// The next of the run-time errors that were reported.
    virtual void showRunTimeError() = 0;
    /// F1 was pressed in an open menu or in a message box.
    virtual void helpRequested(const HELPINFO& request) = 0;
};

/// The main window: an MDI frame with menu, toolbar, the sketch (load picture, slab strip, support buttons),
/// the flag of the load rules, and below it the MDI client that the input form fills.
class MainWindow : public win32::Window, public MainView {
  public:
    MainWindow(win32::WindowHost& host, const SketchPicture& sketch);
    ~MainWindow() override;

    /// Creates the window, hidden; from now on its events are told.
    void listen(MainEvents& events);
    /// Shows it; the first time with as much room as the form needs, if the screen has it.
    void show();
    HWND mdiClient() const { return mdiClient_; }
    int dpi() const { return dpi_; }
    /// The flag that is shown: what stands beside the form for Tab.
    HWND flagButton() const { return GetDlgItem(handle(), idFlag + flag_); }
    HWND loadPicture() const { return loadPicture_.handle(); }
    AnnotatedPicture loadPictureDrawn() const {
        return loadPicture_.annotated(loadPictureWidth, loadPictureHeight);
    }
    /// Below the toolbar button "Öppna...", on the screen.
    POINT belowOpenButton() const;
    void showStatus(const StatusWords& words) { statusLabels_.show(words); }
    /// "Diagram" is grey, and the pointer, or a menu walked through with keys, is on it: its menu or its toolbar button.
    bool onGreyDiagram(POINT pointer) const;
    /// The pointer is where the status line tells the state, whatever it shows just now.
    bool onStatusState(POINT pointer) const { return statusLabels_.onState(pointer); }
    /// Paints the sketch and places the support buttons as they are now.
    void sketchChanged();
    /// Later, when the current event is over, MainEvents::showRunTimeError is called.
    void postRunTimeError();

    void setCaption(const std::string& caption) override { win32::setText(handle(), caption); }
    void setBusy(bool busy) override;
    void setDiagramEnabled(bool enabled) override;
    void showFlag(int flag) override;
    void focusFlag() override { SetFocus(flagButton()); }
    void focusLoadPicture() override { SetFocus(loadPicture()); }

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT defaultProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void createParts();
    HMENU buildMenu();
    void sizeChanged(SIZE client);
    void layOut();
    void setDpi(int dpi);
    SIZE frameFor(const Area& client) const;
    void placeSupportButtons();
    LRESULT onActivate(WPARAM wParam, LPARAM lParam);
    LRESULT onCommand(WPARAM wParam, LPARAM lParam);
    bool onContextMenu(HWND window, LPARAM place);
    void onDrop(HDROP drop);
    void sendHelpKey();

    MainEvents* events_ = nullptr;
    const SketchPicture& sketch_;
    win32::PictureWindow loadPicture_;
    win32::PictureWindow slabStrip_;
    static constexpr int supportCount = 16; // stod
    struct Support {
        HWND button = nullptr;
        Area place{};
        bool visible = false;
    };
    std::array<Support, supportCount> supports_;
    Toolbar toolbar_;
    HWND mdiClient_ = nullptr;
    HWND flagLabel_ = nullptr;
    HMENU fileMenu_ = nullptr;
    StatusLabels statusLabels_;
    bool menuOnDiagram_ = false;
    win32::UniqueFont font_;
    bool diagramEnabled_ = true;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    int sketchDpi_ = USER_DEFAULT_SCREEN_DPI;
    int flag_ = -1;
    bool shown_ = false;
    SIZE laidOut_{}; ///< the client area that the parts were placed for
    int busy_ = 0;
};

} // namespace varno
