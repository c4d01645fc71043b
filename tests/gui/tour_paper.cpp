#include "tour_paper.h"

#include "driver/wait.h"
#include "lineloads/line_load_view.h"

namespace varno::gui {

namespace {

Control box(const Control& editor, LineLoadBox which, int row = 0) {
    return editor.item(idLineLoadField + 10 * static_cast<int>(which) + row);
}

} // namespace

PaperTour::PaperTour(const Program& program, std::string folder, Camera& camera)
    : program_(program), folder_(std::move(folder)), camera_(camera) {}

void PaperTour::require(bool wanted, const std::string& what) const {
    if (!wanted) throw GuiError("not so: " + what);
}

void PaperTour::requireSoon(const std::function<bool()>& wanted, const std::string& what) const {
    require(program_.until(wanted), what);
}

void PaperTour::press(const Control& window, int button) const {
    window.item(button).click();
    program_.waitGone(window);
}

void PaperTour::typeInto(const Control& field, const std::string& text) const {
    field.clickInto();
    requireSoon([&] { return program_.focused() == field; }, "a box takes the focus");
    field.selectAll();
    field.type(text);
    requireSoon([&] { return field.text() == text; }, "a box takes \"" + text + "\"");
}

// On every page, what is more than its number; and this many words in all.
void PaperTour::requireText(const Print& print, std::size_t words) const {
    std::size_t found = 0;
    for (const PrintedPage& page : print.pages) {
        require(page.lines.size() > 1 && page.words.size() > 2, "a printed page holds text");
        found += page.words.size();
    }
    require(found >= words, "the printed pages hold text");
}

void PaperTour::keep(const Print& print, const std::string& name) const {
    writeFile(folder_ + "\\" + name, readFile(print.pdf));
}

void PaperTour::lineLoads() {
    program_.command(idLineLoads);
    const Control editor = program_.window("VarnoLineLoads");
    const Control count = box(editor, LineLoadBox::nllast);
    const int before = std::stoi(count.text());
    editor.item(idLineLoadSpin).clickAt(5, 5);
    requireSoon([&] { return count.text() == std::to_string(before + 1); }, "there is one more line load");
    const int row = before + 1;
    typeInto(box(editor, LineLoadBox::llfnr, row), "2");
    typeInto(box(editor, LineLoadBox::avst, row), "2,5");
    typeInto(box(editor, LineLoadBox::lllast, row), "8,5");
    count.clickInto();
    requireSoon([&] { return box(editor, LineLoadBox::lllast, row).text() != "8,5"; }, "the load is tidied");
    camera_.take("linjelaster", editor,
                 {count, box(editor, LineLoadBox::llfnr, row), box(editor, LineLoadBox::lllast, row)});
    editor.post(WM_COMMAND, idLayout);
    program_.waitGone(editor);
}

void PaperTour::printAndDraw() {
    printResult();
    plotMoments();
    deleteFile();
}

void PaperTour::printResult() {
    program_.clickToolbar(idPrintResult);
    const Print print = prints_.next();
    requireText(print, 100);
    require(print.pages.at(0).lines.at(0).ends_with("sid 1"), "page 1 is numbered");
    keep(print, "result.pdf");
}

void PaperTour::plotMoments() {
    program_.command(idMoment);
    const Control diagram = program_.window("VarnoMomkurva");
    camera_.take("momentdiagram", diagram, {diagram.item(idDiagramPicture), diagram.item(idPlot)});
    diagram.item(idPlot).click();
    // A question is answered when the pass has run.
    diagram.item(idPlot).send(WM_NULL);
    require(!program_.shows(messageBoxClass), "the plot goes well");
    diagram.post(WM_COMMAND, idReturn);
    program_.waitGone(diagram);
}

void PaperTour::deleteFile() {
    writeFile(folder_ + "\\GAMMAL.RES", "gammalt resultat\r\n");
    program_.command(idDeleteResults);
    const Control window = program_.window("VarnoDelFile");
    const Control files = window.item(idFileList);
    files.send(LB_SETSEL, TRUE, 0);
    camera_.take("ta-bort-filer", window, {files, window.item(idDelete)});
    window.item(idDelete).click();
    const Control question = program_.window("VarnoVeri");
    require(question.item(idFileName).text() == "GAMMAL.RES", "the old result is asked for");
    camera_.take("bekrafta", question, {question.item(idFileName), question.item(idYesButton)});
    press(question, idYesButton);
    requireSoon([&] { return files.send(LB_GETCOUNT) == 1; }, "one result is left");
    require(!fileExists(folder_ + "\\GAMMAL.RES"), "the old one is deleted");
    press(window, idCancelButton);
}

void PaperTour::takePlot() {
    const Print print = prints_.next();
    // The plot carries no text; it fills a good part of the page's width.
    require(!print.pages.empty(), "the plot has a page");
    const RECT inked = print.pages[0].picture.inked();
    require(inked.right - inked.left > print.pages[0].picture.width() / 2, "the plot is seen on paper");
    require(print.pages.size() == 1 && print.pages[0].picture.count(RGB(0x80, 0, 0)) > 100,
            "the red curve is on paper");
    keep(print, "diagram.pdf");
}

} // namespace varno::gui
