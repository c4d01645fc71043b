#pragma once

#include "controls/control_ids.h"
#include "files/file_chooser_window.h"
#include "files/file_deletion.h"
#include "win32/list_rows.h"

namespace varno {

/// The deletion window (`DelFile`). Its rules are those of FileDeletion.
class DeletionWindow : public FileChooserWindow, public DeletionView {
  public:
    DeletionWindow(win32::WindowHost& host, HWND owner);

    void listen(FileDeletion& deletion);

    int entryCount() const override;
    std::string entry(int position) const override { return win32::rowText(item(idFileList), position); }
    bool isSelected(int position) const override;
    void select(int position, bool selected) override;
    bool confirming() const override { return IsDlgButtonChecked(handle(), idConfirm) == BST_CHECKED; }
    void setConfirming(bool confirming) override;
    void refreshLists() override { showLists(); }
    bool confirmed(const std::string& name, const std::string& position) override;
    void showHelp(const std::string& first, const std::string& second) override;
    void run() override;
    void close() override { closeForm(); }

  protected:
    void onCommand(int id, int notification) override;

  private:
    FileDeletion* deletion_ = nullptr;
};

} // namespace varno
