#include "driver/program.h"

#include <algorithm>
#include <filesystem>

#include "driver/process.h"
#include "driver/remote.h"
#include "driver/wait.h"
#include "help/help_topics.h"
#include "shell/help_places.h"
#include "win32/strings.h"

namespace varno::gui {

using win32::narrow;
using win32::wide;

namespace {

// The program takes its environment from this process.
class Told {
  public:
    Told(const wchar_t* name, const std::wstring& value) : name_(name) {
        wchar_t before[MAX_PATH] = L"";
        if (GetEnvironmentVariableW(name, before, MAX_PATH) != 0) before_ = before;
        SetEnvironmentVariableW(name, value.empty() ? nullptr : value.c_str());
    }
    ~Told() { SetEnvironmentVariableW(name_, before_ ? before_->c_str() : nullptr); }
    Told(const Told&) = delete;
    Told& operator=(const Told&) = delete;

  private:
    const wchar_t* name_;
    std::optional<std::wstring> before_;
};

StartOptions inScene(const Scene& scene, StartOptions options) {
    if (options.currentFolder.empty()) options.currentFolder = scene.folder();
    return options;
}

} // namespace

OwnFolder::OwnFolder() {
    static int count = 0;
    wchar_t temporary[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, temporary);
    const std::wstring path = std::wstring(temporary) + L"varno-lokalt-" +
                              std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
    path_ = narrow(path);
}

OwnFolder::~OwnFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(wide(path_), ignored);
}

Program::Program(const Scene& scene, const StartOptions& options) : Program(inScene(scene, options)) {}

Program::Program(const StartOptions& options) {
    const Told dpi(L"VARNO_DPI", options.dpi != 0 ? std::to_wstring(options.dpi) : std::wstring());
    const Told local(L"LOCALAPPDATA", wide(options.localData.empty() ? local_.path() : options.localData));
    const std::wstring program =
        wide(options.program.empty() ? programsFolder() + "\\varno.exe" : options.program);
    std::wstring line = L"\"" + program + L"\" " + wide(options.arguments);
    const std::wstring current = wide(options.currentFolder);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, current.c_str(),
                        &start, &started)) {
        throw GuiError(narrow(program) + " cannot be started");
    }
    CloseHandle(started.hThread);
    process_.reset(started.hProcess);
    id_ = started.dwProcessId;
    thread_ = started.dwThreadId;
    // Its first window waits for the user, or it ended before it had one.
    if (WaitForInputIdle(process(), patience) == 0 && running()) prepareForCalls(process());
}

Program::Program(DWORD process) : process_(OpenProcess(PROCESS_ALL_ACCESS, FALSE, process)), id_(process) {
    if (!process_) throw GuiError("the program does not run");
    if (!until([&] { return !visibleWindows(this->process()).empty(); }))
        throw GuiError("the program shows nothing");
    thread_ = GetWindowThreadProcessId(visibleWindows(this->process()).front().handle(), nullptr);
    prepareForCalls(this->process());
}

Program::~Program() {
    if (running()) TerminateProcess(process(), 99);
    WaitForSingleObject(process(), patience);
}

bool Program::running() const {
    return WaitForSingleObject(process(), 0) == WAIT_TIMEOUT;
}

DWORD Program::exitCode() {
    if (WaitForSingleObject(process(), patience) != WAIT_OBJECT_0) throw GuiError("the program does not end");
    DWORD code = 0;
    GetExitCodeProcess(process(), &code);
    return code;
}

bool Program::until(const std::function<bool()>& done) const {
    return waitUntil(done, process());
}

std::optional<Control> Program::find(const std::string& className) const {
    const auto all = visibleWindows(process());
    const auto found =
        std::ranges::find_if(all, [&](const Control& window) { return window.className() == className; });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

Control Program::window(const std::string& className) const {
    std::optional<Control> found;
    if (!until([&] { return (found = find(className)).has_value(); })) {
        throw GuiError("the program does not show the window " + className);
    }
    if (className.starts_with("Varno") && helpContext(helpTopicOfWindow(className)) == 0) {
        throw GuiError("there is no help on the window " + className);
    }
    return *found;
}

void Program::waitGone(const Control& window) const {
    if (!until([&] { return !window.visible(); })) throw GuiError("the window does not go");
}

Control Program::form() const {
    const Control client = main().item(idMdiClient);
    const HWND form = FindWindowExW(client.handle(), nullptr, wide(formClass).c_str(), nullptr);
    if (form == nullptr) throw GuiError("there is no input form");
    return Control(form);
}

void Program::passStartUp(bool asked) {
    while (true) {
        std::optional<Control> box;
        if (!until([&] { return (box = find(noticeClass)) || (box = find(disclaimerClass)); })) {
            throw GuiError("the program does not start");
        }
        const bool last = box->className() == disclaimerClass;
        box->item(idOkButton).click();
        waitGone(*box);
        if (last) break;
    }
    if (asked) return;
    if (!until([&] { return main().enabled() && !caption().empty() && focused() == field(Field::rubrik); })) {
        throw GuiError("start-up does not come to its end");
    }
}

Control Program::focused() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(thread_, &info);
    return Control(info.hwndFocus);
}

void Program::typeInto(varno::Control control, const std::string& text) const {
    const Control box = field(control);
    if (focused() != box) box.clickInto();
    if (!until([&] { return focused() == box; })) throw GuiError("a field does not take the focus");
    // Posted behind the click, which would undo the selection if it came after it: the focus may have been on
    // its way here without it.
    box.post(EM_SETSEL, 0, -1);
    // An empty text is the selection deleted.
    if (text.empty()) box.key(VK_DELETE);
    box.type(text);
    if (!until([&] { return box.text() == text; })) throw GuiError("a field does not take the text " + text);
}

Message Program::message() const {
    const Control box = window(messageBoxClass);
    Message message{box.text(), ""};
    for (const Control& part : box.children()) {
        if (part.className() == "Static" && message.text.empty()) message.text = part.text();
    }
    return message;
}

Message Program::answerError() const {
    Message said = answer();
    said.text.erase(0, said.text.rfind('\n') + 1);
    return said;
}

Message Program::answer(int button) const {
    const Message said = message();
    const Control box = window(messageBoxClass);
    box.item(button).click();
    // The next box may come at once, so this one is waited for and not its class.
    if (!until([&] { return !IsWindow(box.handle()) || !box.visible(); })) {
        throw GuiError("a message box does not go");
    }
    return said;
}

void Program::chooseFile(const std::string& name) const {
    const Control dialog = window(fileDialogClass);
    dialog.item(idFileName).setText(name);
    dialog.item(idOkButton).click();
}

// Waits until the file-name dialog is gone and `done`. A message instead is an error.
void Program::settle(const std::function<bool()>& done, const std::string& failure) const {
    const bool settled = until(
        [&] { return shows(messageBoxClass) || (!shows(fileDialogClass) && main().enabled() && done()); });
    // Answered when the command that showed the dialog is over, or has come to a message.
    main().send(WM_NULL);
    if (shows(messageBoxClass)) throw GuiError(failure + ": " + message().text);
    if (!settled) throw GuiError(failure);
}

void Program::open(const std::string& name) const {
    command(idOpen);
    chooseFile(name);
    settle([&] { return focused() == field(Field::rubrik); }, name + " is not opened");
}

void Program::calculate() const {
    command(idRun);
    const Control viewer = window(viewerClass);
    viewer.item(idReturn).click();
    waitGone(viewer);
}

void Program::saveAs(const std::string& name) const {
    command(idSaveAs);
    chooseFile(name);
    settle([] { return true; }, name + " is not saved");
}

} // namespace varno::gui
