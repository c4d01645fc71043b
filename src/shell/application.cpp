#include "shell/application.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "controls/control_ids.h"
#include "files/deletion_window.h"
#include "results/result_viewer.h"
#include "shell/help_contexts.h"
#include "win32/dpi.h"
#include "win32/given_files.h"
#include "win32/picture_files.h"
#include "win32/popup_menu.h"
#include "win32/screens.h"
#include "win32/strings.h"
#include "win32/user_locale.h"

namespace varno {

Application::Application()
    : locale_(win32::userNumberLocale()), files_(systemFileCalls(), boxes_), fileInfo_(*this),
      fileDialog_(folders_, systemFileCalls(), boxes_, fileInfo_, locale_),
      leftovers_(folders_, systemFileCalls()), main_(*this, picture_), form_(*this),
      sketch_(case_, picture_.loadPicture, picture_.slabStrip, picture_, [this] { sketchChanged(); }),
      filler_(case_, form_, main_, locale_), steps_(case_, state_, form_, main_, filler_, *this),
      input_({case_, state_, form_, main_, filler_, sketch_, steps_}),
      document_(case_, state_, filler_, form_, main_, files_, fileDialog_, boxes_, *this),
      printing_(files_, boxes_, main_, printer_, fileDialog_), diagram_(case_, sketch_) {
    main_.listen(*this);
    helpSystem_.setOwner(main_.handle());
}

Application::~Application() {
    help_.close();
}

int Application::run(const std::vector<std::string>& given) {
    const std::string own = rescueFolder();
    recent_.start(own);
    places_.start(own);
    try {
        startUp(settings_, document_, files_, main_, *this);
    } catch (const RunTimeError& error) {
        boxes_.showError(error);
        return 1;
    }
    offerLeftovers();
    offerRescued();
    if (!given.empty()) guarded([&] { openGiven(given); });
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        win32::dispatch(*this, message);
    return ended_ ? 0 : static_cast<int>(message.wParam);
}

void Application::offerLeftoversIn(const std::string& folder) {
    guarded([&] { askAboutLeftovers(leftovers_, boxes_, folder); });
}

void Application::offerRescued() {
    rescue_.start(rescueFolder(), rescueInstance());
    rescueWindow_ = std::make_unique<RescueWindow>(*this, rescue_);
    guarded([&] { rescue_.offer(); });
}

// Main window

void Application::command(int id) {
    // However a file command was given: what is being typed belongs to the case it works on.
    if (id >= idNew && id <= idExit) endTyping();
    runCommand(id);
    // A case that was saved or given up is not kept a moment longer.
    rescue_.look();
}

void Application::runCommand(int id) {
    switch (id) {
    case idNew:
        return document_.newCase(settings_.workFolder);
    case idOpen:
        offerLeftovers();
        return document_.open();
    case idSave:
        return document_.save();
    case idSaveAs:
        return document_.saveAs();
    case idPrint:
        return printing_.printChosen(state_);
    case idPrinterSetup:
        return setUpPrinter();
    case idExit:
        return document_.exit();
    case idLineLoads:
        return openLineLoads(lineLoads_, caseLineLoads);
    case idFreeLineLoads:
        return openLineLoads(freeLoads_, freeLineLoads);
    case idRun:
        return calculate();
    case idShowResult:
        return showResult();
    case idPrintResult:
        return printing_.printCurrent(state_, settings_.resultFontName);
    case idDeleteResults:
    case idDeleteInputs:
    case idDeleteBoth:
        return deleteFiles(deletionPatterns[static_cast<std::size_t>(id - idDeleteResults)]);
    case idMoment:
        return showMoments();
    case idImportant:
        return showImportant();
    default:
        return;
    }
}

void Application::activated() {
    if (IsWindowVisible(form_.handle())) input_.focusTitle();
}
void Application::flagClicked(int flag) {
    const bool keyboard = GetFocus() == main_.flagButton();
    input_.flagClicked(flag);
    // The flag that was pressed is hidden now; the next one takes its place for the next key.
    if (keyboard) SetFocus(main_.flagButton());
}

void Application::flagMenu(POINT place) {
    if (win32::chooseFromMenu(main_.handle(), place, {{"Byt till svenska byggregler (BKR)"}}) == 0)
        input_.switchToSwedishRules();
}

void Application::loadPictureMenu(POINT place) {
    switch (win32::chooseFromMenu(main_.handle(), place,
                                  {{"Fria linjelaster"}, {"-"}, {"Kopiera bild"}, {"Spara som bild..."}})) {
    case 0:
        return openLineLoads(freeLoads_, freeLineLoads);
    case 2:
        return win32::copyPicture(main_.handle(), main_.loadPictureDrawn());
    case 3:
        return win32::savePicture(main_.handle(), main_.loadPictureDrawn(), state_.currentFileName + "-last",
                                  systemFileCalls());
    default:
        return;
    }
}

void Application::openButtonMenu(POINT place) {
    const std::vector<std::string> paths = recent_.list();
    std::vector<win32::PopupItem> items;
    for (const std::string& caption : recentCaptions(paths))
        items.push_back({caption});
    if (items.empty()) items.push_back({noRecentCases, false, false});
    const int row = win32::chooseFromMenu(main_.handle(), place, items);
    if (row < 0) return;
    const std::string& path = paths[static_cast<std::size_t>(row)];
    recent_.dropMissing(path);
    openGiven({path});
}

void Application::openGiven(const std::vector<std::string>& paths) {
    endTyping();
    if (paths.size() == 1) offerLeftoversIn(folderOf(paths.front()));
    document_.openGiven(paths);
    rescue_.look();
}

bool Application::closing() {
    endTyping();
    document_.exit();
    return ended_;
}

void Application::sketchChanged() {
    main_.sketchChanged();
    tips_.showSketch(sketchTips(case_, sketch_, locale_));
}

void Application::statusDue() {
    // Start-up shows the main window before there is a case in it.
    if (!IsWindowVisible(form_.handle())) return;
    places_.look(placesNow());
    POINT pointer{};
    GetCursorPos(&pointer);
    const std::vector<Doubt> doubts = doubtsOf(case_);
    showDoubts(doubts);
    main_.showStatus(
        status_.words({document_.changed(), fileDialog_.directory(), sketch_.totalLength(),
                       form_.lockedAt(pointer), main_.onGreyDiagram(pointer), static_cast<int>(doubts.size()),
                       main_.onStatusState(pointer) ? doubtsInOneLine(doubts) : doubtAt(pointer)}));
    if (IsWindowVisible(results_->viewer.handle()))
        results_->viewer.setAge(status_.resultLine(results_->reader.shown()));
    if (moments_ && IsWindowVisible(moments_->window.handle()))
        moments_->window.setAge(status_.resultLine(moments_->commands.shown()));
}

void Application::showDoubts(const std::vector<Doubt>& doubts) {
    form_.showDoubts(doubts);
    for (const auto* const editor : {&lineLoads_, &freeLoads_}) {
        if (*editor) (*editor)->window.showDoubts((*editor)->rules.doubts());
    }
}

// Of the box that the pointer is on, whichever window it is in, or else of the one with the focus.
std::string Application::doubtAt(POINT pointer) const {
    std::vector<const win32::FormWindow*> windows{&form_};
    for (const auto* const editor : {&lineLoads_, &freeLoads_}) {
        if (*editor) windows.push_back(&(*editor)->window);
    }
    std::string focused;
    for (const win32::FormWindow* const window : windows) {
        std::string text = window->marks().at(window->handle(), pointer);
        if (!text.empty()) return text;
        focused += window->marks().ofFocus(window->handle());
    }
    return focused;
}

void Application::clientResized(int width, int height) {
    tips_.placeAgain();
    if (form_.exists()) form_.fill(width, height);
}

void Application::helpRequested(const HELPINFO& request) {
    const std::string topic = helpTopicOfRequest(request);
    if (!topic.empty()) help_.show(topic, settings_.workFolder);
}

// Results, files and line loads

void Application::calculate() {
    const auto before = lastResult();
    CalculationRun(files_, boxes_, processes_, main_, results_->reader)
        .run(state_, settings_.workFolder, settings_.resultFontName);
    // A run that was refused, and an engine that failed, leave the result as it was.
    if (lastResult() != before) status_.calculated(rescueClock_.dateAndTime());
}

std::optional<std::int64_t> Application::lastResult() {
    const std::string path = state_.currentFileName + ".res";
    try {
        if (files_.calls().exists(path)) return files_.calls().lastWritten(path);
    } catch (const RunTimeError&) {
        // One that cannot be asked for is none.
    }
    return std::nullopt;
}

void Application::showResult() {
    showResults(files_, boxes_, main_, results_->reader, state_, settings_.resultFontName);
}

void Application::showImportant() {
    if (!important_) important_ = std::make_unique<DisclaimerWindow>(*this, main_.handle());
    important_->bringForward();
}

void Application::setUpPrinter() {
    if (printerThere(printer_, boxes_)) printer_.setUp(main_.handle());
}

void Application::deleteFiles(const char* pattern) {
    DeletionWindow window(*this, main_.handle());
    FileDeletion deletion(folders_, systemFileCalls(), boxes_, window);
    window.listen(deletion);
    deletion.open(pattern, fileDialog_.directory());
}

void Application::showMoments() {
    if (!moments_) moments_ = std::make_unique<Moments>(*this);
    moments_->commands.moment();
}

void Application::openLineLoads(std::unique_ptr<LineLoads>& editor, const LineLoadSet& set) {
    const BusyPointer busy(main_);
    if (!editor) editor = std::make_unique<LineLoads>(*this, set);
    editor->rules.opened();
}

// Document

void Application::caseOpened() {
    status_.opened();
    steps_.start();
    showBeside();
}

void Application::showBeside() {
    if (lineLoads_) lineLoads_->rules.caseRead();
    if (freeLoads_) freeLoads_->rules.caseRead();
    sketch_.fullRefresh();
}

void Application::fileUsed(const std::string& path) {
    const std::string full = win32::pathOnDisk(path);
    recent_.add(full);
    win32::tellRecentDocument(full);
}

SaveAnswer Application::askToSave(const std::string& caption, const std::string& text, bool cancelOffered) {
    return varno::askToSave(*this, main_.handle(), caption, text, cancelOffered);
}

void Application::endProgram() {
    places_.keep(placesNow());
    rescue_.giveUp();
    ended_ = true;
    PostQuitMessage(0);
}

std::optional<WindowPlace> Application::keptPlace(const std::string& windowClass) {
    std::optional<WindowPlace> place = places_.of(windowClass);
    if (!place) return std::nullopt;
    const std::optional<Area> area = placeOnScreens(*place, win32::screens());
    if (!area) return std::nullopt;
    place->area = *area;
    return place;
}

WindowPlaces::Places Application::placesNow() const {
    WindowPlaces::Places places;
    const auto keep = [&](HWND window, int dpi) {
        places[win32::classOf(window)] = win32::placeOf(window, dpi);
    };
    keep(main_.handle(), main_.dpi());
    std::vector<const win32::FormWindow*> others{&results_->viewer};
    if (moments_) others.push_back(&moments_->window);
    if (lineLoads_) others.push_back(&lineLoads_->window);
    if (freeLoads_) others.push_back(&freeLoads_->window);
    for (const win32::FormWindow* window : others) {
        if (window->stands()) keep(window->handle(), window->dpi());
    }
    return places;
}

// Start-up

void Application::showMainWindow() {
    main_.show();
    // On the screen before what comes into it: the form alone has more controls than all other windows together.
    if (!form_.exists()) makeOtherWindows();
}

void Application::makeOtherWindows() {
    form_.create(main_.mdiClient());
    RECT room{};
    GetClientRect(main_.mdiClient(), &room);
    form_.fill(static_cast<int>(room.right), static_cast<int>(room.bottom));
    tips_.create(main_.handle());
    fileInfo_.create(main_.handle());
    fileInfo_.listen(fileDialog_);
    results_ = std::make_unique<Results>(*this);
}

void Application::showInputForm() {
    form_.listen(input_);
    ShowWindow(form_.handle(), SW_SHOW);
    form_.focus({Field::rubrik});
}

} // namespace varno
