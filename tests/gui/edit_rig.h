#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <memory>
#include <string>

#include "driver/keyboard.h"
#include "driver/program.h"
#include "model/design_case.h"
#include "picture.h"
#include "soon.h"

namespace varno::gui {

/// A number text with a point as the form shows it: with the user's decimal sign.
std::string shown(std::string number);
/// A column line of the case file: left-aligned cells.
Bytes cells(std::initializer_list<const char*> numbers, std::size_t width = 7);

/// Tests that edit a case with keys and clicks. The tests of a suite share one running program, and each opens
/// a case of its own; after a failure the next test gets a new program.
class Editing : public ::testing::Test {
  public:
    static void TearDownTestSuite() { drop(); }

  protected:
    using Lines = std::map<std::size_t, Bytes>;

    Editing();
    void TearDown() override;
    /// A program that has read nothing but this default case.
    static void restart(const Lines& defaultCase = {}, int dpi = 96);

    static const Scene& scene() { return *scene_; }
    static const Program& program() { return *program_; }
    /// These windows live as long as the program, and some Windows take their time to find one by its number.
    static const Control& main() { return main_; }
    static const Control& form() { return form_; }
    static Control mainItem(int id) { return known(main_, mainItems_, id); }
    static Control formItem(int id) { return known(form_, formItems_, id); }
    static Control field(varno::Control control) { return formItem(controlId(control)); }
    static Control field(Field field, int index = 0) { return Editing::field(varno::Control{field, index}); }
    static std::string text(Field field, int index = 0) { return Editing::field(field, index).text(); }

    /// Opens a sample, some of its lines exchanged. What was not saved before is given up.
    static void open(const Lines& lines = {}, const std::string& sample = "varno.def");
    /// Saves the case under a new name and reads the file back.
    static DesignCase saved();
    /// Tries to calculate: an unsaved change shows in the refusal.
    static bool changed();

    static void clickInto(const Control& box);
    /// Clicks into a box and types with the keyboard over what it holds. The box keeps the focus.
    static void type(const Control& box, const std::string& text);
    /// Types and leaves the box with Tab.
    static void enter(const Control& box, const std::string& text);
    static void enter(Field field, int index, const std::string& text) {
        enter(Editing::field(field, index), text);
    }
    static void enter(Field field, const std::string& text) { enter(Editing::field(field), text); }
    /// A key that moves the focus.
    static void move(WORD key);
    static void tab() { move(VK_TAB); }
    /// Presses a half of a spin button: the upper one, or the lower one.
    static void spin(const Control& button, int step);
    static void spin(int step) { spin(field(Field::spin1), step); }
    static void spinTo(int step, const std::string& count);

    static void expectText(Field field, int index, const std::string& expected,
                           std::source_location place = std::source_location::current());
    static void expectText(Field field, const std::string& expected,
                           std::source_location place = std::source_location::current()) {
        expectText(field, 0, expected, place);
    }
    static void expectFocus(const Control& box, std::source_location place = std::source_location::current());

    /// Waits until everything posted so far is dealt with.
    static void settle();
    static Control loadPicture() { return mainItem(idLoadPicture); }
    static Control slabStrip() { return mainItem(idSlabStrip); }
    /// A picture area as it is on the screen now, painted.
    static Picture grab(const Control& area);

  private:
    static void start(int dpi = 96);
    static void drop();

    static inline std::unique_ptr<Scene> scene_;
    static inline std::unique_ptr<Program> program_;
    using Items = std::map<int, Control>;
    static Control known(const Control& parent, Items& items, int id);

    static inline Control main_;
    static inline Control form_;
    static inline Items mainItems_;
    static inline Items formItems_;
    static inline int cases_ = 0;
};

} // namespace varno::gui
