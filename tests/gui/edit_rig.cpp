#include "edit_rig.h"

#include "driver/remote.h"
#include "driver/wait.h"
#include "saved_case.h"
#include "win32/strings.h"

namespace varno::gui {

namespace {

Bytes withLines(Bytes file, const std::map<std::size_t, Bytes>& lines) {
    for (const auto& [number, line] : lines)
        file = withLine(file, number, line);
    return file;
}

Bytes sampleText(const std::string& name) {
    return readFile(samplesFolder() + "\\" + name);
}

} // namespace

std::string shown(std::string number) {
    wchar_t sign[8] = L"";
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, sign, 8);
    const auto point = number.find('.');
    if (point != std::string::npos) number.replace(point, 1, win32::narrow(sign));
    return number;
}

Bytes cells(std::initializer_list<const char*> numbers, std::size_t width) {
    Bytes line;
    for (Bytes number : numbers) {
        number.resize(width, ' ');
        line += number;
    }
    return line;
}

Editing::Editing() {
    if (!program_) {
        scene_ = std::make_unique<Scene>();
        start();
    }
}

void Editing::TearDown() {
    if (HasFailure()) drop();
}

void Editing::start(int dpi) {
    StartOptions options;
    options.dpi = dpi;
    program_ = std::make_unique<Program>(*scene_, options);
    program_->passStartUp();
    main_ = program_->main();
    form_ = program_->form();
    mainItems_.clear();
    formItems_.clear();
}

void Editing::drop() {
    program_.reset();
    scene_.reset();
}

void Editing::restart(const Lines& defaultCase, int dpi) {
    program_.reset();
    scene_ = std::make_unique<Scene>();
    scene_->write("varno.def", withLines(sampleText("varno.def"), defaultCase));
    start(dpi);
}

Control Editing::known(const Control& parent, Items& items, int id) {
    const auto found = items.find(id);
    if (found != items.end()) return found->second;
    return items[id] = parent.item(id);
}

void Editing::open(const Lines& lines, const std::string& sample) {
    const std::string name = "FALL" + std::to_string(++cases_);
    scene().write(name + ".IND", withLines(withLine(sampleText(sample), 1, name), lines));
    program().command(idOpen);
    std::optional<Control> box;
    program().until(
        [&] { return (box = program().find(savePromptClass)) || program().shows(fileDialogClass); });
    if (box) box->item(idNoButton).click();
    program().chooseFile(name + ".IND");
    expectCaption(program(), name + ".IND");
    expectFocus(field(Field::rubrik));
}

DesignCase Editing::saved() {
    const std::string name = "SPAR" + std::to_string(++cases_);
    program().saveAs(name);
    expectCaption(program(), name + ".IND");
    return readSavedCase(scene().path(name + ".IND")).designCase;
}

bool Editing::changed() {
    program().command(idRun);
    std::optional<Control> viewer;
    program().until(
        [&] { return program().shows(messageBoxClass) || (viewer = program().find(viewerClass)); });
    if (!viewer) {
        EXPECT_EQ(program().answer(), (Message{"", "Du måste spara Filen först !"}));
        return true;
    }
    viewer->item(idReturn).click();
    program().waitGone(*viewer);
    expectFocus(field(Field::rubrik));
    return false;
}

void Editing::clickInto(const Control& box) {
    if (program().focused() == box) return;
    box.clickInto();
    if (!program().until([&] { return program().focused() == box; })) {
        throw GuiError("\"" + box.text() + "\" does not take the focus");
    }
}

void Editing::type(const Control& box, const std::string& text) {
    clickInto(box);
    settle();
    box.selectAll();
    if (text.empty()) keyboard::press(VK_DELETE);
    keyboard::type(text);
    if (!program().until([&] { return box.text() == text; })) {
        throw GuiError("\"" + box.text() + "\" does not become \"" + text + "\"");
    }
}

void Editing::enter(const Control& box, const std::string& text) {
    type(box, text);
    tab();
}

void Editing::move(WORD key) {
    const Control before = program().focused();
    keyboard::press(key);
    if (!program().until([&] { return program().focused() != before; })) {
        throw GuiError("the focus stays in \"" + before.text() + "\"");
    }
}

void Editing::spin(const Control& button, int step) {
    const RECT box = button.place();
    const int height = box.bottom - box.top;
    button.clickAt((box.right - box.left) / 2, step > 0 ? height / 4 : height * 3 / 4);
    settle();
}

void Editing::spinTo(int step, const std::string& count) {
    spin(step);
    expectText(Field::nfack, count);
}

void Editing::expectText(Field field, int index, const std::string& expected, std::source_location place) {
    expectSoon(
        program(), expected, [&] { return text(field, index); }, place);
}

void Editing::expectFocus(const Control& box, std::source_location place) {
    program().until([&] { return program().focused() == box; });
    const ::testing::ScopedTrace trace(place.file_name(), static_cast<int>(place.line()), "focus");
    EXPECT_EQ(program().focused().id(), box.id());
    EXPECT_EQ(program().focused(), box);
}

// The length that a locked box takes, which nobody types into, is posted and waited for; what was posted before it has
// been dealt with then. The second time, so has what that has posted: the message of a run-time error.
void Editing::settle() {
    const Control locked = field(Field::upl, 0);
    for (int i = 0; i < 2; ++i) {
        const LRESULT length = locked.send(EM_GETLIMITTEXT) == 100 ? 101 : 100;
        locked.post(EM_SETLIMITTEXT, static_cast<WPARAM>(length));
        if (!program().until([&] { return locked.send(EM_GETLIMITTEXT) == length; })) {
            throw GuiError("the program does not get to its messages");
        }
    }
}

Picture Editing::grab(const Control& area) {
    settle();
    callIn(program().process(), L"user32.dll", "UpdateWindow", {reinterpret_cast<DWORD>(area.handle())});
    settle();
    return Picture::ofScreen(area.handle());
}

} // namespace varno::gui
