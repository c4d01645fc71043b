#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controls/main_view.h"
#include "input/form_view.h"

namespace varno::testing {

/// The input form as the rules see it, remembered instead of shown. Setting a text or a row that differs
/// calls `onChange`, as the real controls do.
class FakeForm : public FormView {
  public:
    struct State {
        std::string text;
        std::string caption;
        bool visible = true;
        bool enabled = true;
    };

    std::string text(Control control) const override;
    void setText(Control control, const std::string& text) override;
    void setVisible(Control control, bool visible) override;
    void setEnabled(Control control, bool enabled) override;
    void setCaption(Control control, const std::string& caption) override;
    void showRows(Field list, std::span<const std::string_view> rows, int selected) override;
    int selectedRow(Field list) const override;
    void selectOption(Field group, int option) override;
    void showGroup(Field group, bool visible) override;
    void setChecked(Field box, bool checked) override;
    void focus(Control control) override;
    void enter(Control control) override;
    void returnTo(Control control) override { returnedTo = control; }
    void showHint(Control, const std::string& text) override { hint = text; }
    void hideHint() override { hint.clear(); }
    /// As the user does it: a change also when the text reads the same.
    void type(Control control, const std::string& text);
    void selectRow(Field list, int row);
    void clearList(Field list) { lists_[list] = {}; }
    void addRow(Field list, const std::string& row) { lists_[list].rows.push_back(row); }

    const State& state(Control control) const;
    const std::vector<std::string>& rows(Field list) const;
    int option(Field group) const;
    bool groupVisible(Field group) const;
    bool checked(Field box) const;
    Control focused() const { return focused_; }
    Control allSelected() const { return allSelected_; }

    std::function<void(Control)> onChange;
    std::optional<Control> returnedTo;
    std::string hint;

  private:
    using Key = std::pair<int, int>;
    struct List {
        std::vector<std::string> rows;
        int selected = -1;
    };
    static Key key(Control control) { return {static_cast<int>(control.field), control.index}; }
    void changed(Control control) const {
        if (onChange) onChange(control);
    }

    std::map<Key, State> states_;
    std::map<Field, List> lists_;
    std::map<Field, int> options_;
    std::map<Field, bool> groups_;
    std::map<Field, bool> checks_;
    Control focused_{Field::spin1};
    Control allSelected_{Field::spin1};
};

/// The main window as the rules see it.
class FakeMainWindow : public MainView {
  public:
    void setCaption(const std::string& text) override { caption = text; }
    void setBusy(bool now) override {
        busy = now;
        wasBusy = wasBusy || now;
    }
    void setDiagramEnabled(bool now) override { diagram = now; }
    void showFlag(int number) override { flag = number; }
    void focusFlag() override { flagFocused = true; }
    void focusLoadPicture() override { loadPictureFocused = true; }

    std::string caption;
    bool busy = false;
    bool wasBusy = false;
    bool diagram = true;
    bool flagFocused = false;
    bool loadPictureFocused = false;
    int flag = -1;
};

} // namespace varno::testing
