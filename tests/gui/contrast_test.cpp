// The colours that a user has chosen to see well by: everything is drawn in them, and every word can be read.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>

#include "driver/program.h"
#include "driver/remote.h"
#include "picture.h"
#include "soon.h"

namespace varno::gui {
namespace {

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF link = RGB(128, 128, 255);
constexpr COLORREF selection = RGB(0, 128, 128);

// As the black scheme of Windows has them.
constexpr std::array blackScheme{
    std::pair{COLOR_WINDOW, black},
    std::pair{COLOR_WINDOWTEXT, white},
    std::pair{COLOR_BTNFACE, black},
    std::pair{COLOR_BTNTEXT, white},
    std::pair{COLOR_BTNSHADOW, white},
    std::pair{COLOR_BTNHIGHLIGHT, white},
    std::pair{COLOR_3DLIGHT, white},
    std::pair{COLOR_3DDKSHADOW, white},
    std::pair{COLOR_WINDOWFRAME, white},
    std::pair{COLOR_GRAYTEXT, RGB(0, 255, 0)},
    std::pair{COLOR_HIGHLIGHT, selection},
    std::pair{COLOR_HIGHLIGHTTEXT, white},
    std::pair{COLOR_MENU, black},
    std::pair{COLOR_MENUBAR, black},
    std::pair{COLOR_MENUTEXT, white},
    std::pair{COLOR_INFOBK, black},
    std::pair{COLOR_INFOTEXT, white},
    std::pair{COLOR_HOTLIGHT, link},
    std::pair{COLOR_APPWORKSPACE, black},
    std::pair{COLOR_SCROLLBAR, black},
    std::pair{COLOR_ACTIVECAPTION, RGB(0, 0, 128)},
    std::pair{COLOR_CAPTIONTEXT, white},
};

struct Scheme {
    std::array<INT, blackScheme.size()> parts;
    std::array<COLORREF, blackScheme.size()> colours;
};

Scheme schemeOf(const auto& colourOf) {
    Scheme scheme{};
    for (std::size_t i = 0; i < blackScheme.size(); ++i) {
        scheme.parts[i] = blackScheme[i].first;
        scheme.colours[i] = colourOf(blackScheme[i]);
    }
    return scheme;
}

void set(const Scheme& scheme) {
    SetSysColors(static_cast<int>(scheme.parts.size()), scheme.parts.data(), scheme.colours.data());
}

// How well one colour is seen on another, 1 to 21; 4.5 is what text needs.
double contrast(COLORREF a, COLORREF b) {
    const auto part = [](BYTE value) {
        const double v = value / 255.0;
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    const auto light = [&](COLORREF c) {
        return 0.2126 * part(GetRValue(c)) + 0.7152 * part(GetGValue(c)) + 0.0722 * part(GetBValue(c));
    };
    return (std::max(light(a), light(b)) + 0.05) / (std::min(light(a), light(b)) + 0.05);
}

struct Seen {
    COLORREF ground;
    double contrast; ///< of what stands out most
};

// What a user sees of a part of a window: its ground is the colour that most of it has.
Seen lookAt(const Control& control, const RECT& part) {
    const Picture picture = Picture::ofScreen(control.handle());
    std::map<COLORREF, int> colours;
    for (int y = std::max<int>(0, part.top); y < std::min<int>(part.bottom, picture.height()); ++y) {
        for (int x = std::max<int>(0, part.left); x < std::min<int>(part.right, picture.width()); ++x)
            ++colours[picture.at(x, y)];
    }
    if (colours.empty()) return {};
    const COLORREF ground =
        std::ranges::max_element(colours, {}, [](const auto& colour) { return colour.second; })->first;
    double most = 1;
    for (const auto& [colour, count] : colours)
        most = std::max(most, contrast(colour, ground));
    return {ground, most};
}

// Where the letters of a control stand, without its border, its round or square mark, its arrow.
RECT lettersOf(const Control& control) {
    RECT box{};
    GetWindowRect(control.handle(), &box);
    const LONG width = box.right - box.left;
    const LONG height = box.bottom - box.top;
    const std::string kind = control.className();
    if (kind == "Edit") return {3, 3, width - 3, height - 3};
    if (kind == "ComboBox") return {4, 4, width - height, height - 4};
    if (kind != "Button") return {0, 0, width, height};
    const LONG style = GetWindowLongW(control.handle(), GWL_STYLE) & BS_TYPEMASK;
    if (style == BS_GROUPBOX) return {8, 0, width - 8, 14};
    if (style == BS_PUSHBUTTON || style == BS_DEFPUSHBUTTON) return {6, 6, width - 6, height - 6};
    return {20, 0, width, height};
}

bool hasWords(const Control& control) {
    const std::string kind = control.className();
    if (kind != "Edit" && kind != "ComboBox" && kind != "Button" && kind != "Static") return false;
    // A flag and the support buttons are pictures.
    const bool picture =
        kind == "Button" && (GetWindowLongW(control.handle(), GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW;
    return control.visible() && !picture && control.text().find_first_not_of(" \r\n") != std::string::npos;
}

std::vector<Control> wordsIn(const Control& window) {
    std::vector<Control> found;
    for (const Control& child : window.children()) {
        if (hasWords(child)) found.push_back(child);
        for (const Control& inner : wordsIn(child))
            found.push_back(inner);
    }
    return found;
}

class Contrast : public ::testing::Test {
  protected:
    Contrast() : before_(schemeOf([](const auto& part) { return GetSysColor(part.first); })) {
        // Such a scheme comes without the pictures that parts of windows are drawn with otherwise.
        RegGetValueW(HKEY_CURRENT_USER, themes, L"ThemeActive", RRF_RT_REG_SZ, nullptr, themed_, &size_);
        RegSetKeyValueW(HKEY_CURRENT_USER, themes, L"ThemeActive", REG_SZ, L"0", 2 * sizeof(wchar_t));
    }
    ~Contrast() override {
        program.reset();
        set(before_);
        if (*themed_ != L'\0')
            RegSetKeyValueW(HKEY_CURRENT_USER, themes, L"ThemeActive", REG_SZ, themed_, size_);
        else
            RegDeleteKeyValueW(HKEY_CURRENT_USER, themes, L"ThemeActive");
    }
    Contrast(const Contrast&) = delete;
    Contrast& operator=(const Contrast&) = delete;

    void start() {
        program = std::make_unique<Program>(scene);
        program->passStartUp();
        program->open("KONTOR.IND");
    }
    // Under Wine a program that runs learns of them only where it sets them itself.
    void chooseColours(const Scheme& scheme) const {
        RemoteMemory parts(program->process(), sizeof scheme.parts);
        RemoteMemory colours(program->process(), sizeof scheme.colours);
        parts.write(scheme.parts.data(), sizeof scheme.parts);
        colours.write(scheme.colours.data(), sizeof scheme.colours);
        callIn(program->process(), L"user32.dll", "SetSysColors",
               {static_cast<DWORD>(scheme.parts.size()), parts.address(), colours.address()});
    }
    void expectReadable(const Control& window, COLORREF ground) const {
        const std::vector<Control> words = wordsIn(window);
        EXPECT_FALSE(words.empty());
        for (const Control& control : words) {
            const RECT letters = lettersOf(control);
            // What is selected has a ground of its own.
            const auto drawn = [&] {
                const Seen seen = lookAt(control, letters);
                return seen.contrast >= 4.5 && (seen.ground == ground || seen.ground == selection);
            };
            program->until(drawn);
            const Seen seen = lookAt(control, letters);
            EXPECT_TRUE(drawn()) << control.className() << " \"" << control.text() << "\": on " << std::hex
                                 << seen.ground << " with a contrast of " << seen.contrast;
        }
    }
    void expectAllReadable() const {
        expectReadable(program->main(), black);
        const Picture sketch = Picture::ofScreen(program->main().item(idLoadPicture).handle());
        EXPECT_GT(sketch.count(black), sketch.count(white));
        EXPECT_GT(sketch.count(white), 300) << "the lines of the loads";
        EXPECT_GT(sketch.count(RGB(255, 0, 0)), 50) << "the line loads, lighter than on white";
        EXPECT_GT(lookAt(program->main().item(idToolbar), {0, 0, 300, 30}).contrast, 3);
    }
    void expectWindowsReadable() const {
        program->calculate();
        for (const auto& [command, name, kind] : {std::tuple{idShowResult, viewerClass, "Edit"},
                                                  {idMoment, "VarnoMomkurva", "picture"},
                                                  {idLineLoads, "VarnoLineLoads", "Edit"},
                                                  {idFreeLineLoads, "VarnoFreeLineLoads", "Edit"},
                                                  {idImportant, disclaimerClass, "Static"}}) {
            const ::testing::ScopedTrace trace(__FILE__, __LINE__, name);
            program->command(command);
            const Control window = program->window(name);
            expectReadable(window, black);
            window.post(WM_CLOSE);
            program->waitGone(window);
        }
    }

    static constexpr const wchar_t* themes = L"Software\\Microsoft\\Windows\\CurrentVersion\\ThemeManager";
    const Scheme chosen = schemeOf([](const auto& part) { return part.second; });
    Scene scene;
    std::unique_ptr<Program> program;

  private:
    const Scheme before_;
    wchar_t themed_[16] = L"";
    DWORD size_ = sizeof themed_;
};

TEST_F(Contrast, EveryWordCanBeReadInColoursOfTheUsersOwn) {
    set(chosen);
    start();
    expectAllReadable();
    expectWindowsReadable();
}

TEST_F(Contrast, ColoursChosenWhileTheProgramRunsAreTaken) {
    start();
    const Control title = program->field(Field::rubrik);
    expectSoon(*program, GetSysColor(COLOR_WINDOW), [&] { return lookAt(title, lettersOf(title)).ground; });
    chooseColours(chosen);
    expectAllReadable();
}

TEST_F(Contrast, AMarkIsSeenInColoursOfTheUsersOwn) {
    start();
    const Control box = program->field(Field::upl, 4);
    program->typeInto({Field::upl, 4}, "0");
    program->field(Field::rubrik).clickInto();
    const auto ground = [&] { return lookAt(box, lettersOf(box)).ground; };
    expectSoon(*program, RGB(255, 232, 163), ground);
    EXPECT_GE(lookAt(box, lettersOf(box)).contrast, 4.5);
    chooseColours(chosen);
    expectSoon(*program, link, ground);
    EXPECT_GE(lookAt(box, lettersOf(box)).contrast, 4.5);
    const Control state = program->main().item(idStatusState);
    expectSoon(*program, true, [&] { return state.text().ends_with("se över 1"); });
    EXPECT_GE(lookAt(state, lettersOf(state)).contrast, 4.5);
}

} // namespace
} // namespace varno::gui
