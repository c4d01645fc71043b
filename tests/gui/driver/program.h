#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controls/control_ids.h"
#include "driver/control.h"
#include "driver/scene.h"
#include "input/form_view.h"
#include "win32/unique.h"

namespace varno::gui {

// The window classes of the program.
inline constexpr const char* mainClass = "VarnoMain";
inline constexpr const char* formClass = "VarnoInputForm";
inline constexpr const char* noticeClass = "VarnoForm10";
inline constexpr const char* disclaimerClass = "VarnoForm9";
inline constexpr const char* fileDialogClass = "VarnoFileInfo";
inline constexpr const char* savePromptClass = "VarnoSavePrompt";
inline constexpr const char* viewerClass = "VarnoForm6";
inline constexpr const char* fontChooserClass = "VarnoTypsn";
inline constexpr const char* messageBoxClass = "#32770";
inline constexpr const char* popupMenuClass = "#32768";

struct StartOptions {
    std::string currentFolder; ///< the scene's own when empty
    std::string program;       ///< its path; the one that was built when empty
    std::string arguments;     ///< of the command line, as they are typed
    int dpi = 0;               ///< the resolution that the program is told; 0: the screen's
    std::string localData;     ///< the user's local application data; empty: a fresh folder, gone afterwards
};

/// A menu line read back from a window, with its depth below the menu bar.
struct MenuLine {
    int depth;
    std::string caption; ///< "-" for a separator
    int id;              ///< 0 for a separator or a menu
    bool enabled;
    bool checked = false;
    bool operator==(const MenuLine&) const = default;
};

struct ToolbarButton {
    int id;
    std::string tip;
    bool enabled;
};

struct Message {
    std::string title;
    std::string text;
    bool operator==(const Message&) const = default;
};

/// A folder of its own, made in the system's folder for temporary files.
class OwnFolder {
  public:
    OwnFolder();
    ~OwnFolder();
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;
    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

/// The running `varno.exe`. Its end ends the process too, whatever state it is in.
class Program {
  public:
    explicit Program(const Scene& scene, const StartOptions& options = {});
    explicit Program(const StartOptions& options);
    /// One that was started in another way and shows a window. \param process its ID
    explicit Program(DWORD process);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Past the notice, if it comes, and the disclaimer, to the main window with the case in it. `asked`: a question
    /// is expected to lie over it.
    void passStartUp(bool asked = false);

    HANDLE process() const { return process_.get(); }
    bool running() const;
    /// Waits for the end. \throws GuiError when it does not end.
    DWORD exitCode();

    /// The visible window of a class, if any.
    std::optional<Control> find(const std::string& className) const;
    bool shows(const std::string& className) const { return find(className).has_value(); }
    /// Waits for it. \throws GuiError when it does not come.
    Control window(const std::string& className) const;
    void waitGone(const Control& window) const;
    bool until(const std::function<bool()>& done) const;

    Control main() const { return window(mainClass); }
    Control form() const;
    Control field(varno::Control control) const { return form().item(controlId(control)); }
    Control field(Field field, int index = 0) const { return this->field(varno::Control{field, index}); }
    std::string caption() const { return main().text(); }
    /// The control that has the keyboard focus.
    Control focused() const;

    /// Gives a menu command; it may open a modal window, so nothing is waited for.
    void command(int id) const { main().post(WM_COMMAND, static_cast<WPARAM>(id)); }
    /// Puts a text into a field of the form as a user does: clicks into it, selects all, types. The field
    /// keeps the focus.
    void typeInto(varno::Control control, const std::string& text) const;

    /// Waits for a message box and closes it with one of its buttons.
    Message answer(int button = IDOK) const;
    Message message() const; ///< the same, left open
    /// The same of a run-time error: its title and its last line, which holds number and English text.
    Message answerError() const;

    /// The file-name dialog: waits for it, types the name, presses "OK".
    void chooseFile(const std::string& name) const;
    void open(const std::string& name) const;
    void saveAs(const std::string& name) const;

    /// "Kör...", and away from the result that then comes.
    void calculate() const;

    std::vector<MenuLine> menuOf(const Control& window) const;
    /// Waits for a context menu and reads it. Its IDs are numbers of its own and left out.
    std::vector<MenuLine> popupMenu() const;
    /// Walks to a row of the open menu with the arrow keys and chooses it. \param place of the row, separators counted
    void chooseInPopupMenu(int place) const;
    bool inMenu() const; ///< a menu has the keys
    /// F10, and with the arrow keys to an item of a menu of the menu bar.
    void chooseInMenuBar(int menu, int place) const;
    /// With Esc, as often as it takes.
    void leaveMenus() const;
    /// Presses these keys in the context menu, one at a time, and waits until it is gone.
    void keysInPopupMenu(std::initializer_list<WORD> keys) const;
    /// Files are let go of over a control: Windows tells the window above it that takes them. \throws GuiError when
    /// none does.
    void drop(const std::vector<std::string>& paths, const Control& onto) const;
    bool diagramEnabled() const;
    std::vector<ToolbarButton> toolbarButtons() const;
    void clickToolbar(int id) const;
    void rightClickToolbar(int id) const;
    RECT toolbarButtonPlace(int id) const; ///< in the toolbar
    RECT menuBarPlace(int menu) const;     ///< on the screen
    LOGFONTW fontOf(const Control& control) const { return fontsOf({control}).front(); }
    std::vector<LOGFONTW> fontsOf(const std::vector<Control>& controls) const;
    std::string currentDirectory() const;

  private:
    void settle(const std::function<bool()>& done, const std::string& failure) const;
    POINT middleOfToolbarButton(int id) const;
    void readMenu(DWORD menu, int depth, std::vector<MenuLine>& lines) const;
    DWORD user(const char* function, const std::vector<DWORD>& arguments) const;
    int highlightedRow(DWORD menu) const;

    OwnFolder local_;
    win32::UniqueHandle process_;
    DWORD id_ = 0;
    DWORD thread_ = 0;
};

} // namespace varno::gui
