// Drives the program in the current folder through a typical run and has every window on the way
// photographed. The exit code is zero only when every step went as it should.
#include <windows.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "driver/keyboard.h"
#include "driver/program.h"
#include "driver/wait.h"
#include "tour_camera.h"
#include "tour_paper.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

std::string currentFolder() {
    wchar_t path[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, path);
    return win32::narrow(path);
}

class Tour {
  public:
    void run() {
        startUp();
        loadRules();
        input();
        paper_.lineLoads();
        saveAs();
        calculate();
        chooseFont();
        showAgain();
        paper_.printAndDraw();
        exit();
        paper_.takePlot();
    }

  private:
    void require(bool wanted, const std::string& what) const {
        if (!wanted) throw GuiError("not so: " + what);
    }
    void requireSoon(const std::function<bool()>& wanted, const std::string& what) const {
        require(program_.until(wanted), what);
    }
    bool has(const char* file) const { return fileExists(folder_ + "\\" + file); }

    void picture(const std::string& name, const Control& window, const std::vector<Control>& controls) {
        camera_.take(name, window, controls);
    }
    void pictureOfMain(const std::string& name, const std::vector<varno::Control>& fields) {
        std::vector<Control> shown{program_.main().item(idToolbar), program_.main().item(idLoadPicture),
                                   program_.main().item(idSlabStrip)};
        for (const varno::Control field : fields)
            shown.push_back(program_.field(field));
        picture(name, program_.main(), shown);
    }
    void pictureOfFiles(const std::string& name, const Control& dialog) {
        picture(name, dialog,
                {dialog.item(idFileName), dialog.item(idDirectoryList), dialog.item(idFileList),
                 dialog.item(idOkButton)});
    }
    void press(const Control& window, int button) const {
        window.item(button).click();
        program_.waitGone(window);
    }
    // Tab until the focus is there.
    void tabTo(varno::Control control) const {
        const Control wanted = program_.field(control);
        for (int presses = 0; presses < 80 && program_.focused() != wanted; ++presses) {
            const Control before = program_.focused();
            keyboard::press(VK_TAB);
            requireSoon([&] { return program_.focused() != before; }, "Tab moves the focus");
        }
        require(program_.focused() == wanted, "the field is reached by Tab");
    }
    void typeInto(varno::Control control, const std::string& text) const {
        tabTo(control);
        // Tab selects what the field holds, so that typing replaces it.
        keyboard::type(text);
        requireSoon([&] { return program_.field(control).text() == text; },
                    "the field takes \"" + text + "\"");
    }

    void startUp();
    void loadRules();
    void input();
    void saveAs();
    void calculate();
    void chooseFont();
    void showAgain();
    void exit();

    static StartOptions inFolder(const std::string& folder) {
        StartOptions options;
        options.currentFolder = folder;
        options.program = folder + "\\varno.exe";
        return options;
    }

    const std::string folder_ = currentFolder();
    Program program_{inFolder(folder_)};
    Camera camera_{program_, folder_};
    PaperTour paper_{program_, folder_, camera_};
};

void Tour::startUp() {
    const Control notice = program_.window(noticeClass);
    picture("nyheter", notice, {notice.item(idHideNotice), notice.item(idOkButton)});
    notice.item(idHideNotice).click();
    requireSoon([&] { return notice.item(idHideNotice).checked(); }, "the box is ticked");
    press(notice, idOkButton);
    const Control disclaimer = program_.window(disclaimerClass);
    require(readFile(folder_ + "\\varno.ver") == "\x33\x33\xE3\x40", "the notice is dismissed");
    picture("viktigt", disclaimer, {disclaimer.item(idOkButton)});
    program_.passStartUp();
    require(program_.caption() == "NAMNLÖS.IND", "the default case is shown");
    pictureOfMain("huvudfonster", {{Field::rubrik}, {Field::spv, 1}, {Field::flast, 1}, {Field::konsv}});
}

// Once round the flags, and a load category that fixes the loads; both end where they began.
void Tour::loadRules() {
    constexpr int first = 2;
    const auto flag = [this](int number) { return program_.window(mainClass).item(idFlag + number); };
    int shown = first;
    do {
        require(flag(shown).visible(), "the flag of the rule set is shown");
        flag(shown).clickInto();
        shown = shown % 6 + 1;
        requireSoon([&] { return flag(shown).visible(); }, "the next flag comes");
        const auto seen = [&](const char* name) { picture(name, program_.main(), {flag(shown)}); };
        if (shown == 1) seen("svenska-regler");
        if (shown == 3) seen("danska-regler");
    } while (shown != first);

    const Control category = program_.field({Field::lokt});
    category.choose("B-Kontor   ");
    requireSoon([&] { return !program_.field({Field::flast, 1}).enabled(); }, "the category fixes the loads");
    pictureOfMain("lastkategori", {{Field::lokt}, {Field::flast, 1}});
    category.choose("Valfri last");
    requireSoon(
        [&] {
            return program_.field({Field::flast, 1}).enabled();
        },
        "the loads are the user's own again");
    program_.field({Field::rubrik}).clickInto();
    requireSoon([&] { return program_.focused() == program_.field({Field::rubrik}); },
                "the title has the focus");
    // As Tab would have selected it.
    program_.field({Field::rubrik}).selectAll();
}

void Tour::input() {
    typeInto({Field::rubrik}, "Hus 1 kvarteret Ängen");
    typeInto({Field::spv, 1}, "4,8");
    typeInto({Field::spv, 2}, "6,2");
    typeInto({Field::spv, 3}, "5,4");
    typeInto({Field::plast, 1}, "0,75");
    typeInto({Field::flast, 2}, "3,5");
    typeInto({Field::flast, 3}, "2,5");
    typeInto({Field::konsv}, "1,2");
    tabTo({Field::konsh});
    // The sign is the user's.
    requireSoon([&] { return program_.field(Field::konsv).text().ends_with("20"); }, "the field is tidied");
    pictureOfMain("indata",
                  {{Field::rubrik}, {Field::spv, 3}, {Field::plast, 1}, {Field::flast, 3}, {Field::konsv}});
}

void Tour::saveAs() {
    program_.command(idRun);
    require(program_.message().text == "Du måste spara Filen först !", "an unsaved case is refused");
    const Control message = program_.window(messageBoxClass);
    picture("spara-forst", message, {message.item(IDOK)});
    program_.answer();

    program_.command(idSaveAs);
    const Control dialog = program_.window(fileDialogClass);
    requireSoon([&] { return program_.focused() == dialog.item(idFileName); }, "the name has the focus");
    pictureOfFiles("spara-som", dialog);
    keyboard::type("hus1");
    requireSoon([&] { return dialog.item(idFileName).text() == "hus1"; }, "the name is typed");
    keyboard::press(VK_RETURN);
    requireSoon([&] { return program_.caption() == "HUS1.IND"; }, "the caption names the case");
    require(has("HUS1.IND"), "the case is saved");
    require(linesOf(readFile(folder_ + "\\HUS1.IND")).at(5) == "4.800  6.200  5.400  ",
            "the spans are saved");
}

void Tour::calculate() {
    program_.command(idRun);
    const Control viewer = program_.window(viewerClass);
    require(viewer.text() == "Utdata", "the result is shown");
    require(viewer.item(idFileTextBox).text().starts_with("\r\n"), "the text begins with an empty line");
    require(has("HUS1.res") && has("momk.dat") && has("~indata~.tmp"), "the engine has run");
    require(program_.diagramEnabled(), "the diagram can be drawn");
    picture("utdata", viewer, {viewer.item(idFileTextBox), viewer.item(idReturn)});
}

void Tour::chooseFont() {
    const Control viewer = program_.window(viewerClass);
    viewer.post(WM_COMMAND, idEditFont);
    const Control chooser = program_.window(fontChooserClass);
    require(chooser.text() == "TYPSNITT", "the font chooser is shown");
    const std::string stored = chooser.item(idStoredFont).rows().at(0);
    std::string face;
    for (const std::string& row : chooser.item(idInstalledFonts).rows()) {
        // A fixed pitch, as the result's tables need one.
        if (row != stored && (face.empty() || row.find("Courier") != std::string::npos)) face = row;
    }
    chooser.item(idInstalledFonts).choose(face);
    requireSoon([&] { return chooser.item(idCurrentFont).rows() == std::vector<std::string>{face}; },
                "the chosen font is named");
    picture("typsnitt", chooser,
            {chooser.item(idInstalledFonts), chooser.item(idStoredFont), chooser.item(idCurrentFont)});
    press(chooser, idOkButton);
    require(has("Varnfnt.ini"), "the font is stored");
    picture("utdata-i-valt-typsnitt", viewer, {viewer.item(idFileTextBox)});
    press(viewer, idReturn);
}

void Tour::showAgain() {
    program_.command(idOpen);
    const Control dialog = program_.window(fileDialogClass);
    require(dialog.text() == "Välj Indatafil", "the file dialog is shown");
    pictureOfFiles("valj-indatafil", dialog);
    press(dialog, idCancelButton);

    program_.command(idShowResult);
    const Control viewer = program_.window(viewerClass);
    picture("resultat-pa-skarm", viewer, {viewer.item(idFileTextBox), viewer.item(idReturn)});
    press(viewer, idReturn);

    program_.command(idImportant);
    const Control disclaimer = program_.window(disclaimerClass);
    require(program_.main().enabled(), "the window stands beside the program");
    picture("viktigt-fran-menyn", disclaimer, {disclaimer.item(idOkButton)});
    press(disclaimer, idOkButton);
}

void Tour::exit() {
    program_.typeInto({Field::rubrik}, "Hus 1 kvarteret Ängen och Åkern");
    program_.command(idExit);
    const Control prompt = program_.window(savePromptClass);
    require(prompt.item(idQuestion).text() == "Vill Du spara ändringarna i HUS1.IND ?", "the prompt asks");
    picture("avsluta", prompt,
            {prompt.item(idQuestion), prompt.item(idYesButton), prompt.item(idCancelButton)});
    press(prompt, idCancelButton);
    program_.command(idSave);
    program_.command(idExit);
    require(program_.exitCode() == 0, "the program ends well");
    require(!has("~indata~.tmp"), "the temporary file is gone");
}

} // namespace
} // namespace varno::gui

int main() {
    // Places are compared with the screen's, which a process that knows nothing of scaling is told wrongly.
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    try {
        varno::gui::Tour tour;
        try {
            tour.run();
        } catch (const std::exception& error) {
            std::fprintf(stderr, "the tour stopped: %s\n", error.what());
            // The windows as they stand are part of the message; after this the program is ended.
            varno::gui::writeFile("shot-request.txt", "failed\n");
            varno::gui::waitUntil([] { return !varno::gui::fileExists("shot-request.txt"); });
            return 1;
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "the tour did not start: %s\n", error.what());
        return 1;
    }
    return 0;
}
