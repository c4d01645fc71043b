#pragma once

#include <functional>
#include <string>
#include <vector>

#include "input/input_form.h"
#include "input/sketch.h"
#include "input/sketch_picture.h"
#include "model/reference_tables.h"
#include "support/fake_form.h"
#include "support/memory_files.h"

namespace varno::testing {

/// A form whose focus behaves as a real one's: the field that loses it is left, and the one that gets it entered,
/// before the call returns.
class FocusedForm : public FakeForm {
  public:
    void focus(Control control) override {
        const Control before = focused();
        FakeForm::focus(control);
        if (before == control) return;
        if (onLeave) onLeave(before);
        if (onEnter) onEnter(control);
    }
    std::function<void(Control)> onLeave;
    std::function<void(Control)> onEnter;
};

/// Counts the refreshes that the rules ask for, and passes them on.
class WatchedSketch : public SketchRefresh {
  public:
    explicit WatchedSketch(SketchRefresh& sketch) : sketch_(sketch) {}
    void fullRefresh() override {
        asked.emplace_back("full");
        sketch_.fullRefresh();
    }
    void geometryRefresh() override {
        asked.emplace_back("geometry");
        sketch_.geometryRefresh();
    }
    void lineLoadRefresh() override {
        asked.emplace_back("lineLoads");
        sketch_.lineLoadRefresh();
    }
    std::vector<std::string> asked;

  private:
    SketchRefresh& sketch_;
};

/// Counts what is asked of the windows beside the form.
class FakeBeside : public CaseBeside {
  public:
    void showBeside() override { ++shown; }
    int shown = 0;
};

/// The input form with everything around it, showing a case of `spans` spans of 5 m, 0.2 m thick, loads 1 and
/// 2 kN/m², inner supports 0.1 m, rule set 6 and load category 0.
class InputRig {
  public:
    explicit InputRig(int spans = 3, const NumberLocale& locale = {})
        : filler(designCase, form, window, locale),
          input({designCase, document, form, window, filler, sketch, steps}) {
        form.onChange = [this](Control control) { input.changed(control); };
        form.onLeave = [this](Control control) { input.lostFocus(control); };
        form.onEnter = [this](Control control) { input.entered(control); };
        presetDesignCase(designCase);
        designCase.nfack = static_cast<std::int16_t>(spans);
        for (int i = 1; i <= spans; ++i) {
            designCase.spv(i) = 5;
            designCase.ptjl(i) = 0.2f;
            designCase.plast(i) = 1;
        }
        designCase.upl(spans) = 0;
        designCase.loadCode = 6;
        designCase.safetyClass(6) = 1;
        designCase.lastkomb = designCase.brukskomb = designCase.brandb = designCase.kutak = 1;
        designCase.btg = designCase.aok = designCase.dok = designCase.auk = designCase.duk = 2;
        designCase.brandk = 1;
        designCase.ktack = 15;
        designCase.duarm = 42;
        designCase.overhojning = 20;
        designCase.initiell = designCase.tillkommande = 400;
        show();
    }

    /// Shows the record as opening a case does, and forgets what that marked.
    void show() {
        filler.showCase(text({Field::rubrik}));
        sketch.fullRefresh();
        form.focus({Field::rubrik});
        steps.start();
        calm();
    }
    void calm() {
        document.dataChanged = false;
        window.diagram = true;
        sketch.asked.clear();
        beside.shown = 0;
    }

    void type(Control control, const std::string& text) {
        form.focus(control);
        form.type(control, text);
    }
    void edit(Control control, const std::string& text) {
        type(control, text);
        form.focus({Field::rubrik});
    }
    /// Goes through a field without touching it.
    void visit(Control control) {
        form.focus(control);
        form.focus({Field::rubrik});
    }
    void choose(Field list, int row) {
        form.focus({list});
        form.selectRow(list, row);
        input.clicked({list});
    }

    std::string text(Control control) const { return form.text(control); }
    std::vector<std::string> texts(Field field, int first, int last) const {
        std::vector<std::string> all;
        for (int i = first; i <= last; ++i)
            all.push_back(text({field, i}));
        return all;
    }

    DesignCase designCase;
    DocumentState document;
    FocusedForm form;
    FakeMainWindow window;
    SketchPicture picture;
    SlabSketch slab{designCase, picture.loadPicture, picture.slabStrip, picture};
    WatchedSketch sketch{slab};
    CaseFormFiller filler;
    FakeBeside beside;
    EditSteps steps{designCase, document, form, window, filler, beside};
    InputForm input;
};

using Texts = std::vector<std::string>;

} // namespace varno::testing
