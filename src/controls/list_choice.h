#pragma once

namespace varno {

/// Tells the choice of another row in a drop-down list from what only looks like one.
///
/// Windows also tells of a row when it is the one that was chosen before, and of each row that the arrow keys
/// pass in an open list, where nothing is chosen before the list closes. Whether it tells of the row before or
/// after the list has closed is open.
class ListChoice {
  public:
    enum class Outcome { nothing, chosen, takenBack };

    /// The program selected a row; -1 for none.
    void shown(int row) { row_ = row; }
    /// The row that the rules know.
    int row() const { return row_; }

    void opened() {
        open_ = true;
        cancelled_ = false;
    }
    /// The list is about to close without a choice (Esc, a click elsewhere).
    void cancelled() { cancelled_ = true; }
    /// The list closed over this row. `takenBack`: `row` is the one to show again.
    Outcome closed(int selected) {
        open_ = false;
        if (cancelled_) return selected == row_ ? Outcome::nothing : Outcome::takenBack;
        return told(selected);
    }
    /// Windows tells of a row.
    Outcome told(int selected) {
        if (open_ || selected == row_) return Outcome::nothing;
        row_ = selected;
        return Outcome::chosen;
    }

  private:
    int row_ = -1;
    bool open_ = false;
    bool cancelled_ = false;
};

} // namespace varno
