#pragma once

#include "files/file_deletion.h"
#include "files/file_list_controls.h"
#include "win32/form_window.h"

namespace varno {

/// The deletion window (`DelFile`), modal. Its rules are those of FileDeletion.
class DeletionWindow : public win32::FormWindow, public DeletionView {
  public:
    DeletionWindow(win32::WindowHost& host, HWND owner);

    void ask(FileDeletion& deletion, const std::string& pattern, const std::string& dialogDirectory);

    int entryCount() const override;
    std::string entry(int position) const override;
    bool isSelected(int position) const override;
    void clearSelection(int position) override;
    bool confirming() const override;
    void setConfirming(bool confirming) override;
    void refreshLists() override;
    bool confirmed(const std::string& name, const std::string& position) override;
    void showHelp(const std::string& first, const std::string& second) override;
    void close() override { closeForm(); }

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void onCloseBox() override { closeForm(); }
    void layOut() override;

  private:
    FileDeletion* deletion_ = nullptr;
    win32::FileListControls lists_;
};

} // namespace varno
