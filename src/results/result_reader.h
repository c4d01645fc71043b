#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "results/result_printing.h"
#include "results/result_viewer.h"

namespace varno {

/// The window "Utdata" as the rules of reading in it see it. Places in its text count UTF-16 units.
class ResultReaderView : public ResultViewer {
  public:
    virtual std::pair<std::size_t, std::size_t> selection() const = 0;
    /// Selects a part of the text and brings it into sight.
    virtual void select(std::size_t begin, std::size_t end) = 0;
    /// The line to search with, the whole word selected and the focus in it.
    virtual void showFindLine() = 0;
    /// Away with it; the focus goes back to the text.
    virtual void hideFindLine() = 0;
    virtual std::string word() const = 0;
    /// Beside the word; empty for none.
    virtual void setFindNote(const std::string& note) = 0;
    virtual void setPoints(int points) = 0;
};

/// Reading a result: searching in it, its size on the screen, and printing what is shown. It takes the place of its
/// window for those who show a result.
class ResultReader : public ResultViewer {
  public:
    ResultReader(ResultReaderView& view, ResultPrinting& printing, const std::string& resultFontName)
        : view_(view), printing_(printing), resultFontName_(resultFontName) {}

    void setShown(const ShownResult& shown) override;
    void setText(const std::string& text) override;
    void setFont(const std::string& face) override { view_.setFont(face); }
    void show() override { view_.show(); }

    const ShownResult& shown() const { return shown_; }

    // The window's side.
    void findAsked() { view_.showFindLine(); }
    void findClosed() { view_.hideFindLine(); }
    /// While it is typed: the place that is selected may still fit.
    void wordChanged();
    /// The next place and the one before; behind the last comes the first. Without a word the line is shown.
    void findNext();
    void findPrevious();
    void larger() { setPoints(points_ + step()); }
    void smaller() { setPoints(points_ - step()); }
    void normalSize() { setPoints(normalPoints); }
    /// The result that is shown, which another case may have replaced as the current one.
    void print() { printing_.printResult(shown_.caseName, resultFontName_); }

    static constexpr int normalPoints = 10;
    static constexpr int leastPoints = 6;
    static constexpr int mostPoints = 36;

  private:
    void findFrom(std::size_t begin);
    void show(std::size_t place, std::size_t length, const char* note);
    void setPoints(int points) { view_.setPoints(points_ = std::clamp(points, leastPoints, mostPoints)); }
    int step() const { return points_ < 16 ? 1 : 2; }

    ResultReaderView& view_;
    ResultPrinting& printing_;
    const std::string& resultFontName_;
    ShownResult shown_;
    std::u16string text_; ///< in capitals
    int points_ = normalPoints;
};

} // namespace varno
