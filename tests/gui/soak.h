#pragma once

#include <deque>
#include <optional>
#include <set>

#include "form_walk.h"

namespace varno::gui {

/// Somebody who uses the whole program at random: every window, every command, good files and bad ones. A run of the
/// same seed does the same for as long as the program answers the same.
class SoakWalk : public FormWalk {
  public:
    /// A kind of action, and how often it is taken.
    struct Act {
        const char* name;
        int weight;
        void (SoakWalk::*take)();
    };

  protected:
    explicit SoakWalk(unsigned seed);

    /// Every kind of action once, in their order.
    void tour();
    void step();
    void takeAct(const Act& act);
    /// Ends the program as a user does who saves nothing.
    void endProgram();
    void answer() override;

    std::map<std::string, int> done_;
    std::deque<std::string> trail_; ///< the last actions
    int actions_ = 0;
    int boxes_ = 0;         ///< message boxes answered
    int saves_ = 0;         ///< files written and compared
    int openings_ = 0;      ///< files opened and compared
    int printJobs_ = 0;     ///< that are sure to come out
    ULONGLONG slowest_ = 0; ///< milliseconds until the program had dealt with something

  private:
    static const std::vector<Act>& acts();

    // Acts on the form and the editors of line loads
    void typeNumber();
    void typeLong();
    void typeTitle();
    void lineLoads();
    void freeLineLoads();
    void workOn(int command, const char* editorClass, bool multipliers);
    // On files
    void save();
    void saveAs();
    void open();
    void newCase();
    void remove();
    // On results
    void calculate();
    void result();
    void diagram();
    void print();
    void setUpPrinter();
    // On windows
    void resize();
    void minimise();
    void closeUnsaved();
    void visitOther();
    void important();

    // What comes up
    std::optional<Control> asking() const;
    void answerWindow(const Control& window);
    void answerBox(const Control& box);
    void answerPrompt(const Control& prompt);
    void answerFileDialog(const Control& dialog);
    void answerDeletion(const Control& window);
    void answerFonts(const Control& window);
    void note(const std::string& what);
    bool told(const std::string& part) const;

    // Files
    using Stamps = std::map<std::string, std::pair<ULONGLONG, DWORD>>;
    void replenish() const;
    Stamps stamps() const;
    void give(int command);
    void saving(int command);
    void opening(int command);
    static bool comesBack(const std::string& path, const std::string& name, const std::string& title);
    void compareSaved(const std::string& path);
    void compareOpened(const std::string& path);
    void compareLineLoads(const DesignCase& stored) const;
    std::string typedFileName(bool forSaving);
    void markChanged();

    std::string folder_;   ///< where the file-name dialog stands
    std::string typed_;    ///< the name that was typed to open a file; empty without one
    bool refused_ = false; ///< something was cancelled or answered with no
    bool strange_ = false; ///< the case came from a file that holds none: what it shows has no rules
    int questions_ = 0;    ///< windows answered in this action
    std::optional<int> exitAnswer_;
    std::vector<std::string> said_; ///< by the message boxes of this action
};

} // namespace varno::gui
