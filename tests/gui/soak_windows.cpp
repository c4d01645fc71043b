// What comes up before somebody who uses the program at random, and how it is answered.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/run_time_error.h"
#include "driver/process.h"
#include "driver/wait.h"
#include "soak.h"

namespace varno::gui {

namespace {

constexpr const char* deletionClass = "VarnoDelFile";
constexpr const char* confirmationClass = "VarnoVeri";
constexpr const char* deletionHelpClass = "VarnoHelp";

// Of the platform's printer set-up.
constexpr int portrait = 0x420;
constexpr int landscape = 0x421;

// A command that never comes to its end asks more often than this.
constexpr int mostQuestions = 80;

const std::set<std::string> askingClasses{messageBoxClass,  savePromptClass, fileDialogClass,
                                          fontChooserClass, deletionClass,   confirmationClass,
                                          deletionHelpClass};
const std::set<std::string> otherClasses{mainClass,       lineLoadClass, freeLineLoadClass,
                                         "VarnoMomkurva", viewerClass,   disclaimerClass,
                                         "VarnoRescue",   "ComboLBox",   "tooltips_class32"};

bool has(const Control& window, int id) {
    return GetDlgItem(window.handle(), id) != nullptr;
}

// The number at the end of the message of a run-time error.
int errorNumber(const std::string& text) {
    const std::string line = text.substr(text.rfind('\n') + 1);
    const auto end = line.find_last_of("0123456789");
    if (end == std::string::npos) return 0;
    const auto before = line.find_last_not_of("0123456789", end);
    return std::stoi(line.substr(before == std::string::npos ? 0 : before + 1));
}

bool isKnown(int number) {
    constexpr std::array numbers{
        errOverflow,       errSubscriptOutOfRange, errDivisionByZero,    errBadFileNameOrNumber,
        errFileNotFound,   errInputPastEnd,        errDeviceUnavailable, errPermissionDenied,
        errPathFileAccess, errPathNotFound};
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

// In one line.
std::string beginOf(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text.size() < 120 ? text : text.substr(0, 120) + "...";
}

} // namespace

void SoakWalk::note(const std::string& what) {
    trail_.push_back(what);
    if (trail_.size() > 400) trail_.pop_front();
}

bool SoakWalk::told(const std::string& part) const {
    return std::any_of(said_.begin(), said_.end(),
                       [&](const std::string& text) { return text.find(part) != std::string::npos; });
}

void SoakWalk::answer() {
    while (true) {
        const ULONGLONG begin = GetTickCount64();
        settle();
        slowest_ = std::max(slowest_, GetTickCount64() - begin);
        const auto window = asking();
        if (!window) return;
        if (++questions_ > mostQuestions) {
            throw GuiError("the windows come without end: " + window->className() + " " + window->text());
        }
        answerWindow(*window);
    }
}

// The window that the user has to answer first. Modal windows disable the one they belong to.
std::optional<Control> SoakWalk::asking() const {
    std::optional<Control> first;
    const bool settled = program().until([&] {
        first.reset();
        for (const Control& window : visibleWindows(program().process())) {
            const std::string name = window.className();
            const bool asks = askingClasses.contains(name);
            if (!asks && !otherClasses.contains(name)) {
                throw GuiError("an unknown window came up: " + name + " \"" + window.text() + "\"");
            }
            if (asks && window.enabled() && !first) first = window;
        }
        return first || main().enabled();
    });
    if (!program().running()) throw GuiError("the program has ended");
    if (!settled) throw GuiError("the main window stays disabled");
    return first;
}

void SoakWalk::answerWindow(const Control& window) {
    const std::string name = window.className();
    if (name == messageBoxClass) return answerBox(window);
    if (name == savePromptClass) return answerPrompt(window);
    if (name == fileDialogClass) return answerFileDialog(window);
    if (name == fontChooserClass) return answerFonts(window);
    if (name == deletionClass) return answerDeletion(window);
    const bool yes = oneIn(2);
    note(name + (yes ? ": yes" : ": no"));
    window
        .item(name == confirmationClass && yes ? idYesButton
              : name == deletionHelpClass      ? idOkButton
                                               : idCancelButton)
        .click();
}

void SoakWalk::answerBox(const Control& box) {
    if (has(box, landscape)) {
        box.item(oneIn(2) ? landscape : portrait).click();
        box.item(oneIn(2) ? IDOK : IDCANCEL).click();
        return;
    }
    const Message said = program().message();
    std::vector<int> buttons;
    for (const int button : {IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO}) {
        if (has(box, button)) buttons.push_back(button);
    }
    if (buttons.empty() || said.text.empty())
        throw GuiError("a box without words: " + said.title + said.text);
    if (said.text.find("Run-time error") != std::string::npos) {
        EXPECT_TRUE(isKnown(errorNumber(said.text))) << said.text;
    }
    const int button = anyOf(buttons);
    ++boxes_;
    said_.push_back(said.text);
    if (button != IDOK && button != IDYES) refused_ = true;
    note("box \"" + beginOf(said.text) + "\": " + std::to_string(button));
    box.item(button).click();
}

void SoakWalk::answerPrompt(const Control& prompt) {
    std::vector<int> buttons{idYesButton, idNoButton};
    if (prompt.item(idCancelButton).visible()) buttons.push_back(idCancelButton);
    const int button = exitAnswer_ ? *exitAnswer_ : anyOf(buttons);
    if (button == idCancelButton) refused_ = true;
    note("prompt " + prompt.text() + ": " + std::to_string(button));
    prompt.item(button).click();
}

void SoakWalk::answerFileDialog(const Control& dialog) {
    folder_ = dialog.item(idPathLabel).text();
    if (questions_ > mostQuestions / 2 || oneIn(8)) {
        note("file dialog: cancelled in " + folder_);
        refused_ = true;
        dialog.item(idCancelButton).click();
        return;
    }
    const Control files = dialog.item(idFileList);
    const auto rows = static_cast<int>(files.send(LB_GETCOUNT));
    if (rows > 0 && oneIn(3)) {
        files.choose(pick(0, rows - 1));
        settle();
    } else {
        dialog.item(idFileName).setText(typedFileName(dialog.text() == "Spara som.."));
    }
    const std::string name = dialog.item(idFileName).text();
    typed_ = dialog.text() == "Spara som.." ? "" : name;
    note("file dialog: " + name + " in " + folder_);
    dialog.item(idOkButton).click();
}

void SoakWalk::answerDeletion(const Control& window) {
    const Control list = window.item(idFileList);
    const auto rows = static_cast<int>(list.send(LB_GETCOUNT));
    if (rows > 0 && oneIn(2)) list.send(LB_SETSEL, oneIn(4) ? FALSE : TRUE, pick(0, rows - 1));
    if (oneIn(3)) window.item(idConfirm).click();
    const int button = questions_ > mostQuestions / 2 || oneIn(3) ? int{idCancelButton}
                       : oneIn(4)                                 ? int{idDeletionHelp}
                                                                  : int{idDelete};
    note("deletion: " + std::to_string(button));
    window.item(button).click();
}

void SoakWalk::answerFonts(const Control& window) {
    const Control fonts = window.item(idInstalledFonts);
    const auto rows = static_cast<int>(fonts.send(LB_GETCOUNT));
    if (rows > 0) fonts.choose(pick(0, rows - 1));
    if (oneIn(3)) return;
    note("fonts: left");
    window.item(oneIn(2) ? idOkButton : idCancelButton).click();
}

} // namespace varno::gui
