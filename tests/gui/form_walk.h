#pragma once

#include "input/field_table.h"
#include "line_load_rig.h"
#include "model/design_input_file.h"
#include "support/walk.h"

namespace varno::gui {

/// Somebody who does anything the input form lets one do, in any order. Everything goes in by posting, so that it is
/// dealt with in its order.
class FormWalk : public LineLoads {
  protected:
    explicit FormWalk(unsigned seed) : dice_(seed) {}

    int pick(int first, int last) { return dice_.pick(first, last); }
    bool oneIn(int times) { return pick(1, times) == 1; }
    template <typename Table>
    const auto& anyOf(const Table& table) {
        return dice_.anyOf(table);
    }

    void typeSomewhere();
    void moveFocus();
    void spinSomehow();
    void clickFlag();
    void chooseRow();
    void clickOption();
    /// Clicks into a box and gives it a text. A disabled box is left alone.
    void typeInto(const Control& box, const std::string& text);
    /// The same by the clipboard.
    void pasteInto(const Control& box, const std::string& text);
    /// Ends the typing as opening a menu does.
    void leaveField();

    /// Waits until what was done is dealt with, and answers every window that came up.
    virtual void answer() = 0;

    /// What holds whatever was done.
    void check() const;
    /// A case is what the form shows.
    void checkShown(const DesignCase& stored) const;

    static int spans();
    static int shownFlag();
    static int chosen(Field group);
    /// The number that a box shows.
    static double shownNumber(std::string text);

    testing::Dice dice_;
    bool opensCases_ = false; ///< not only the default case
    bool lossTold_ = false;   ///< the last save told that the file does not hold the whole case
    /// A case has brought numbers that no control stands for; the classes of the other rule sets stay when it goes.
    bool strangeNumbers_ = false;

  private:
    bool takeFocus(const Control& box);
    varno::Control anyBox();
    std::vector<varno::Control> options() const;
    void checkRules() const;
    void checkText(const TextField& row, int index, const DesignCase& stored) const;
    static void checkChoices(const DesignCase& stored);
};

} // namespace varno::gui
