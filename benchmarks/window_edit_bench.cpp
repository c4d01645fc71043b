#include <windows.h>

#include "driver/program.h"
#include "driver/scene.h"
#include "painting.h"
#include "win32/strings.h"
#include "window_bench.h"

namespace varno::benchmarks {

namespace {

constexpr int edits = 1000;
constexpr int warmUp = 20;

std::string decimalSign() {
    wchar_t sign[8] = L"";
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, sign, 8);
    return win32::narrow(sign);
}

class SpanEdit {
  public:
    explicit SpanEdit(const gui::Program& program)
        : program_(program), first_(program.field(Field::spv, 1)),
          last_(program.field(Field::spv, 10)), pictures_{program.main().item(idLoadPicture),
                                                          program.main().item(idSlabStrip)},
          everything_(treeOf(program.main())) {}

    /// Types another length into span 1 as a user does, and ends with Tab. The milliseconds from the Tab on.
    double take(const std::string& text) const {
        first_.clickInto();
        waitAwake(first_, [this] { return program_.focused() == first_; });
        first_.post(EM_SETSEL, 0, -1);
        first_.type(text);
        waitAwake(first_, [&] { return first_.text() == text; });
        waitPainted(everything_);

        const Stopwatch watch;
        first_.key(VK_TAB);
        // Answered between two events: the one that carries the number on has come to its end then.
        waitAwake(last_, [&] { return last_.text() == text; });
        waitPainted(pictures_);
        return watch.elapsed();
    }

  private:
    const gui::Program& program_;
    gui::Control first_, last_;
    std::vector<gui::Control> pictures_, everything_;
};

} // namespace

void measureEdits(WindowFigures& figures) {
    const std::string name = "edit/" + std::to_string(GetDpiForSystem() * 100 / USER_DEFAULT_SCREEN_DPI);
    if (!figures.wanted(name)) return;
    const gui::Scene scene;
    gui::Program program(scene);
    program.passStartUp();
    program.open("TIOFACK.IND");
    const SpanEdit edit(program);
    const std::string lengths[] = {"4" + decimalSign() + "75", "5" + decimalSign() + "25"};
    for (int i = -warmUp; i < edits; ++i) {
        const double time = edit.take(lengths[i & 1]);
        if (i >= 0) figures.addTime(name, time);
    }
}

} // namespace varno::benchmarks
