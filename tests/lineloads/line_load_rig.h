#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "input/input_rig.h"
#include "lineloads/line_load_editor.h"

namespace varno::testing {

/// A line load window remembered instead of shown. Its focus behaves as a real one's: the box that loses it
/// is left before the call returns.
class FakeLineLoadWindow : public LineLoadView {
  public:
    std::string text(LineLoadControl control) const override;
    void setText(LineLoadControl control, const std::string& shown) override;
    void setRowVisible(int row, bool visible) override {
        visibleRows.at(static_cast<std::size_t>(row)) = visible;
    }
    void focus(LineLoadControl control) override;
    void enter(LineLoadControl control) override {
        focus(control);
        entered = control;
    }
    void returnTo(LineLoadControl control) override { returnedTo = control; }
    /// As the user does it: a change also when the text reads the same.
    void type(LineLoadControl control, const std::string& typed);
    void show() override { ++shown; }
    void close() override { ++closed; }

    /// The rows that are seen, for example "1 2".
    std::string rows() const;

    std::function<void(LineLoadControl)> onLeave;
    std::function<void(LineLoadControl)> onEnter;
    std::function<void(LineLoadControl)> onChange;
    std::optional<LineLoadControl> returnedTo;
    std::optional<LineLoadControl> entered;
    std::array<bool, 6> visibleRows{true, true, true, true, true, true};
    LineLoadControl focused{LineLoadBox::nllast};
    int shown = 0;
    int closed = 0;

  private:
    std::map<LineLoadControl, std::string> texts_;
};

/// An editor over a case of three spans of 5 m, with the sketch behind it. The set holds two loads, and old
/// values in the rows behind them.
class LineLoadRig {
  public:
    explicit LineLoadRig(const LineLoadSet& which = caseLineLoads, const NumberLocale& locale = {});

    void setRow(int row, std::int16_t span, float distance, float load);
    /// Shows the window and forgets what that asked for.
    void open();
    void type(LineLoadControl control, const std::string& text);
    /// Types and leaves the box.
    void edit(LineLoadControl control, const std::string& text);
    void visit(LineLoadControl control);

    std::string text(LineLoadBox box, int index = 0) const { return view.text({box, index}); }
    /// "span/distance/load" of a row as shown.
    std::string shownRow(int row) const;
    std::int16_t& count() { return designCase.*set.count; }
    std::int16_t& span(int row) { return (designCase.*set.span)(row); }
    float& distance(int row) { return (designCase.*set.distance)(row); }
    float& load(int row) { return (designCase.*set.load)(row); }
    int refreshes() const { return static_cast<int>(sketch.asked.size()); }

    const LineLoadSet& set;
    DesignCase designCase;
    DocumentState document;
    FakeMainWindow window;
    SketchPicture picture;
    SlabSketch slab{designCase, picture.loadPicture, picture.slabStrip, picture};
    WatchedSketch sketch{slab};
    FakeForm form;
    FakeLineLoadWindow view;
    CaseFormFiller filler{designCase, form, window, {}};
    FakeBeside beside;
    EditSteps steps{designCase, document, form, window, filler, beside};
    LineLoadEditor editor;
};

inline constexpr LineLoadControl loadCountBox{LineLoadBox::nllast};
constexpr LineLoadControl spanBox(int row) {
    return {LineLoadBox::llfnr, row};
}
constexpr LineLoadControl distanceBox(int row) {
    return {LineLoadBox::avst, row};
}
constexpr LineLoadControl loadBox(int row) {
    return {LineLoadBox::lllast, row};
}
constexpr LineLoadControl multiplierBox(int k) {
    return {LineLoadBox::multiplier, k};
}

inline const NumberLocale swedishSigns{.decimal = ",", .thousands = "\u00A0"};

} // namespace varno::testing
