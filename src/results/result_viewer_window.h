#pragma once

#include "controls/control_ids.h"
#include "results/font_choice.h"
#include "results/result_reader.h"
#include "win32/form_window.h"
#include "win32/strings.h"

namespace varno {

/// The result viewer (`Form6`, "Utdata"): one scrollable text box, modeless.
class ResultViewerWindow : public win32::FormWindow, public ResultReaderView {
  public:
    ResultViewerWindow(win32::WindowHost& host, HWND owner);

    void listen(FontChoice& fonts, ResultReader& reader);
    /// The window's own keys, and the wheel with Ctrl; true when nothing is left to do with the message.
    bool translateOwn(const MSG& message);

    void setShown(const ShownResult&) override {}
    /// The line beside "Återgå".
    void setAge(const std::string& text);
    void setText(const std::string& text) override;
    void setFont(const std::string& face) override;
    void show() override;
    std::pair<std::size_t, std::size_t> selection() const override;
    void select(std::size_t begin, std::size_t end) override;
    void showFindLine() override;
    void hideFindLine() override;
    std::string word() const override { return win32::textOf(item(idFindWord)); }
    void setFindNote(const std::string& note) override { win32::setText(item(idFindNote), note); }
    void setPoints(int points) override;

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void layOut() override;
    void fontsChanged() override { makeFont(); }

  private:
    void makeFont();
    void standInPlace();
    bool findLineShown() const { return IsWindowVisible(item(idFindWord)) != FALSE; }
    bool inFindLine(HWND control) const;
    bool controlKey(WPARAM key, HWND focus);
    void layOutFindLine(int top, int right);

    FontChoice* fonts_ = nullptr;
    ResultReader* reader_ = nullptr;
    int points_ = ResultReader::normalPoints;
    std::string face_ = "Courier New";
    win32::UniqueFont textFont_;
};

} // namespace varno
