#pragma once

#include <string>

namespace varno {

/// What the rules ask of the main window.
class MainView {
  public:
    virtual ~MainView() = default;

    virtual void setCaption(const std::string& caption) = 0;
    /// The hourglass, or the normal pointer.
    virtual void setBusy(bool busy) = 0;
    /// The menu "Diagram".
    virtual void setDiagramEnabled(bool enabled) = 0;
    /// The picture `Flagga` of this number (1 to 6) and no other; 0 shows a neutral picture for a case
    /// without rules.
    virtual void showFlag(int flag) = 0;
    /// The focus goes to the flag, which Tab leads to from the end of the form, or to the load picture behind it, which
    /// lies before the form's begin.
    virtual void focusFlag() = 0;
    virtual void focusLoadPicture() = 0;
};

/// The hourglass for as long as it lives, however the command ends.
class BusyPointer {
  public:
    explicit BusyPointer(MainView& view) : view_(view) { view_.setBusy(true); }
    ~BusyPointer() { view_.setBusy(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

  private:
    MainView& view_;
};

} // namespace varno
