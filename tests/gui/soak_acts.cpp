// What somebody who uses the whole program at random does.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "driver/other_program.h"
#include "driver/wait.h"
#include "shell/menu_table.h"
#include "soak.h"

namespace varno::gui {

SoakWalk::SoakWalk(unsigned seed) : FormWalk(seed) {
    opensCases_ = true;
    restart();
    folder_ = scene().folder();
    replenish();
}

const std::vector<SoakWalk::Act>& SoakWalk::acts() {
    static const std::vector<Act> all{
        {"number typed", 300, &SoakWalk::typeNumber},
        {"long text", 25, &SoakWalk::typeLong},
        {"title", 30, &SoakWalk::typeTitle},
        {"focus", 110, &SoakWalk::moveFocus},
        {"span count", 80, &SoakWalk::spinSomehow},
        {"flag", 40, &SoakWalk::clickFlag},
        {"list", 60, &SoakWalk::chooseRow},
        {"option", 60, &SoakWalk::clickOption},
        {"line loads", 50, &SoakWalk::lineLoads},
        {"free line loads", 40, &SoakWalk::freeLineLoads},
        {"save", 60, &SoakWalk::save},
        {"save as", 30, &SoakWalk::saveAs},
        {"open", 40, &SoakWalk::open},
        {"new", 8, &SoakWalk::newCase},
        {"delete", 10, &SoakWalk::remove},
        {"calculate", 30, &SoakWalk::calculate},
        {"result", 15, &SoakWalk::result},
        {"diagram", 20, &SoakWalk::diagram},
        {"print", 1, &SoakWalk::print},
        {"printer set-up", 2, &SoakWalk::setUpPrinter},
        {"resize", 15, &SoakWalk::resize},
        {"minimise", 5, &SoakWalk::minimise},
        {"close", 8, &SoakWalk::closeUnsaved},
        {"other program", 4, &SoakWalk::visitOther},
        {"important", 4, &SoakWalk::important},
    };
    return all;
}

void SoakWalk::takeAct(const Act& act) {
    ++actions_;
    ++done_[act.name];
    note(std::to_string(actions_) + " " + act.name);
    said_.clear();
    refused_ = false;
    questions_ = 0;
    (this->*act.take)();
    answer();
    if (!strange_ && oneIn(3)) check();
}

void SoakWalk::tour() {
    for (const Act& act : acts()) {
        if (!HasFailure()) takeAct(act);
    }
}

void SoakWalk::step() {
    // Soon back from a case that is none.
    if (strange_ && oneIn(6)) return takeAct({"new", 0, &SoakWalk::newCase});
    int total = 0;
    for (const Act& act : acts())
        total += act.weight;
    int left = pick(1, total);
    for (const Act& act : acts()) {
        left -= act.weight;
        if (left <= 0) return takeAct(act);
    }
}

// The form

void SoakWalk::typeNumber() {
    typeSomewhere();
}

void SoakWalk::typeLong() {
    const Control focus = program().focused();
    const bool inForm = IsChild(form().handle(), focus.handle()) && focus.className() == "Edit";
    const Control box = inForm ? focus : field(Field::konsv);
    const std::string text = anyOf(testing::longTexts);
    if (oneIn(2)) {
        typeInto(box, text);
    } else {
        pasteInto(box, text);
    }
}

void SoakWalk::typeTitle() {
    const std::string title = anyOf(testing::typedTitles);
    if (oneIn(3)) {
        pasteInto(field(Field::rubrik), title);
    } else {
        typeInto(field(Field::rubrik), title);
    }
}

void SoakWalk::lineLoads() {
    workOn(idLineLoads, lineLoadClass, false);
}

void SoakWalk::freeLineLoads() {
    workOn(idFreeLineLoads, freeLineLoadClass, true);
}

void SoakWalk::workOn(int command, const char* editorClass, bool multipliers) {
    auto window = program().find(editorClass);
    if (!window) {
        give(command);
        window = program().find(editorClass);
        if (!window) return; // a case that no editor can show
    }
    const Editor editor(*window);
    if (oneIn(6)) {
        window->post(oneIn(2) ? WM_CLOSE : WM_COMMAND, oneIn(2) ? 0 : idLayout);
    } else if (oneIn(3)) {
        const RECT spin = editor.spin().place();
        editor.spin().clickAt(5, oneIn(3) ? spin.bottom - spin.top - 4 : 4);
    } else {
        constexpr std::array columns{LineLoadBox::llfnr, LineLoadBox::avst, LineLoadBox::lllast};
        const Control box = multipliers && oneIn(4) ? editor.box(LineLoadBox::multiplier, pick(1, 4))
                                                    : editor.box(anyOf(columns), pick(1, 5));
        if (!box.visible()) return;
        typeInto(box, dice_.text());
        if (!oneIn(4)) box.key(oneIn(2) ? VK_TAB : VK_RETURN);
    }
}

// Files

// A menu item, or a button of the toolbar where there is one.
void SoakWalk::give(int command) {
    const bool onToolbar = std::any_of(toolbarKeys.begin(), toolbarKeys.end(),
                                       [&](const ToolbarKey& key) { return key.id == command; });
    if (onToolbar && oneIn(3)) {
        program().clickToolbar(command);
    } else {
        program().command(command);
    }
    answer();
}

void SoakWalk::save() {
    saving(idSave);
}

void SoakWalk::saveAs() {
    saving(idSaveAs);
}

void SoakWalk::open() {
    opening(idOpen);
}

void SoakWalk::newCase() {
    give(idNew);
    if (!refused_ && said_.empty()) strange_ = false;
}

void SoakWalk::remove() {
    replenish();
    give(pick(idDeleteResults, idDeleteBoth));
}

// Results

void SoakWalk::calculate() {
    if (oneIn(2)) {
        saving(idSave);
        said_.clear();
    }
    give(idRun);
}

void SoakWalk::result() {
    auto viewer = program().find(viewerClass);
    if (!viewer) {
        give(idShowResult);
        viewer = program().find(viewerClass);
        if (!viewer) return;
    }
    switch (pick(0, 3)) {
    case 0:
        viewer->post(WM_COMMAND, idEditFont);
        break;
    case 1:
        viewer->item(idFileTextBox).key(VK_NEXT);
        break;
    default:
        viewer->item(idReturn).click();
    }
}

void SoakWalk::diagram() {
    const auto window = program().find("VarnoMomkurva");
    if (window && oneIn(20)) {
        window->item(idPlot).click();
    } else if (window && oneIn(2)) {
        window->post(WM_COMMAND, idReturn);
    } else if (mainItem(idToolbar).send(TB_ISBUTTONENABLED, idMoment) != 0) {
        give(idMoment);
    }
}

void SoakWalk::print() {
    give(idPrintResult);
    if (said_.empty()) ++printJobs_;
    // A file that is chosen may be no text at all, so nobody counts on it.
    if (oneIn(3)) give(idPrint);
}

void SoakWalk::setUpPrinter() {
    give(idPrinterSetup);
}

// Windows

void SoakWalk::resize() {
    SetWindowPos(main().handle(), nullptr, pick(-50, 200), pick(-20, 200), pick(100, 1400), pick(80, 900),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    if (oneIn(3)) {
        answer();
        main().post(WM_SYSCOMMAND, oneIn(2) ? SC_MAXIMIZE : SC_RESTORE);
    }
}

void SoakWalk::minimise() {
    main().post(WM_SYSCOMMAND, SC_MINIMIZE);
    answer();
    main().post(WM_SYSCOMMAND, SC_RESTORE);
}

// Leaving one of these fields marks the case, whatever was done there.
void SoakWalk::markChanged() {
    field(Field::initiell).clickInto();
    answer();
    leaveField();
}

void SoakWalk::closeUnsaved() {
    markChanged();
    exitAnswer_ = idCancelButton;
    main().post(oneIn(2) ? WM_CLOSE : WM_COMMAND, idExit);
    answer();
    exitAnswer_.reset();
    EXPECT_TRUE(program().running());
}

void SoakWalk::endProgram() {
    markChanged();
    program().command(idExit);
    program().window(savePromptClass).item(idNoButton).click();
    EXPECT_TRUE(waitUntil([] { return !program().running(); }));
    DWORD code = 1;
    GetExitCodeProcess(program().process(), &code);
    EXPECT_EQ(code, 0u);
}

void SoakWalk::visitOther() {
    const OtherProgram other;
    other.activate();
    SetForegroundWindow(main().handle());
}

void SoakWalk::important() {
    give(idImportant);
    if (const auto window = program().find(disclaimerClass)) window->item(idOkButton).click();
}

} // namespace varno::gui
