#pragma once

#include <map>
#include <string>

#include "controls/rule_sets.h"
#include "input/input_rig.h"
#include "support/walk.h"

namespace varno::testing {

/// A user who does anything the form lets one do, in any order, reproducibly. After each event the walk
/// checks what must always hold; the first breach is kept in `breach`.
class EditWalk {
  public:
    EditWalk(unsigned seed, const NumberLocale& locale);

    void run(int events);

    InputRig rig;
    std::string breach;
    std::map<int, int> errors; ///< how often each run-time error came
    std::map<std::string, int> done;

  private:
    int pick(int first, int last) { return dice_.pick(first, last); }
    void step();
    void typeSomewhere();
    void moveFocus();
    void chooseRow();
    void clickOption();
    void editLineLoads();
    Control anyBox();
    bool canEnter(Control control) const;
    template <typename Action>
    void guarded(Action&& action);
    void leave(Control control);

    void check();
    void checkVisibility();
    void checkBox(const TextField& row, int index);
    bool agrees(const TextField& row, int index, const std::string& text) const;
    void checkLists();
    void checkSavedFile();
    void expect(bool holds, const std::string& what);

    NumberLocale locale_;
    Dice dice_;
    int index_ = 0;
    std::string last_;
};

} // namespace varno::testing
