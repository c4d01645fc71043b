#pragma once

#include <array>
#include <string>

#include "base/file_calls.h"
#include "files/file_lists.h"

namespace varno {

/// A menu item under "Ta bort" and the files that it offers.
struct DeletionMenuItem {
    const char* name;
    const char* pattern;
};
inline constexpr std::array deletionMenu{
    DeletionMenuItem{"del1", "*.RES"},
    DeletionMenuItem{"del2", "*.IND"},
    DeletionMenuItem{"del3", "*.IND;*.RES"},
};

inline constexpr const char* deletionCaption = "Ta bort Filer";
inline constexpr const char* confirmationCaption = "Bekräfta";
inline constexpr const char* confirmationQuestion = "Är Du säker på att Du vill ta bort:";

/// The deletion window (`DelFile`) as its rules see it. Entries of the file list count from 0.
class DeletionView {
  public:
    virtual ~DeletionView() = default;
    virtual int entryCount() const = 0;
    virtual std::string entry(int position) const = 0;
    virtual bool isSelected(int position) const = 0;
    virtual void clearSelection(int position) = 0;

    /// The check box `bekr`.
    virtual bool confirming() const = 0;
    virtual void setConfirming(bool confirming) = 0;

    /// Shows the lists and the path label again; nothing is selected then.
    virtual void refreshLists() = 0;
    /// The confirmation window (`Veri`), modally, with the name in its label and the position in its hidden
    /// one. True for "Ja", false for "Ångra" and for its close box.
    virtual bool confirmed(const std::string& name, const std::string& position) = 0;
    /// The help window with its two labels, modally.
    virtual void showHelp(const std::string& first, const std::string& second) = 0;
    virtual void close() = 0;
};

/// The rules of the deletion window.
class FileDeletion {
  public:
    FileDeletion(Folders& folders, FileCalls& calls) : calls_(calls), lists_(folders) {}

    FileLists& lists() { return lists_; }

    /// The window loads: with the files of a pattern, in the directory that the file-name dialog was left in
    /// (empty when it was not used). \throws RunTimeError 76 when that is gone.
    void opened(DeletionView& view, const std::string& pattern, const std::string& dialogDirectory);
    /// "Ta bort": the selected files, from the first to the last. \throws RunTimeError at a file that cannot
    /// be deleted; the files behind it stay, and the window is ready for the next try.
    void deletePressed(DeletionView& view);
    void helpPressed(DeletionView& view);
    void closePressed(DeletionView& view) { view.close(); }
    /// \throws RunTimeError 68 or 76; the lists then stay where they are.
    void driveChosen(DeletionView& view, const std::string& drive);
    void folderChosen(DeletionView& view, const std::string& path);

  private:
    void deleteSelected(DeletionView& view);

    FileCalls& calls_;
    FileLists lists_;
};

} // namespace varno
