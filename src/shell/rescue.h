#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "base/file_calls.h"
#include "base/folders.h"
#include "base/message_boxes.h"
#include "shell/rescue_file.h"

namespace varno {

/// The case that is being edited, as the rescue sees it.
class RescueSource {
  public:
    virtual ~RescueSource() = default;
    /// There are changes that are not saved.
    virtual bool changed() const = 0;
    /// The title as it stands in its box; asks a window, so it is not to be called in a program that fell.
    virtual std::string title() const = 0;
    /// Everything else of the case; asks no window.
    virtual RescuedCase toKeep() = 0;
    /// Opens a rescued case as a changed one. \throws RunTimeError
    virtual void restore(const RescuedCase& rescued) = 0;
};

/// Tells the rescue file of a running program from one that was left behind: whoever writes or offers a file
/// holds its lock, and a program that ends, however it ends, lets go of it.
class RescueLocks {
  public:
    virtual ~RescueLocks() = default;
    class Lock {
      public:
        virtual ~Lock() = default;
    };
    /// Null while another program holds it, or when it cannot be had.
    virtual std::unique_ptr<Lock> take(const std::string& path) = 0;
};

class RescueClock {
  public:
    virtual ~RescueClock() = default;
    /// Since any moment; it never runs backwards.
    virtual std::chrono::seconds running() = 0;
    /// "2026-11-21 15:40:07", local time.
    virtual std::string dateAndTime() = 0;
};

/// Keeps a changed case in a file of its own until it is saved or given up, and offers what an earlier run of
/// the program left behind.
///
/// Each running program has its own file, named by `instance`. A file that was accepted is taken over, so that
/// there is no moment at which the case stands in no file.
class Rescue {
  public:
    /// How often `look` is called.
    static constexpr std::chrono::seconds lookInterval{1};
    /// How long a file that was written is left alone. Together with `lookInterval` a change is on the disk
    /// well within half a minute, and a user who types without a pause does not keep the disk busy.
    static constexpr std::chrono::seconds writePause{10};

    Rescue(RescueSource& source, FileCalls& calls, Folders& folders, RescueLocks& locks, MessageBoxes& boxes,
           RescueClock& clock)
        : source_(source), calls_(calls), folders_(folders), locks_(locks), boxes_(boxes), clock_(clock) {}

    /// Where the files are. Without a folder nothing is kept.
    void start(const std::string& folder, const std::string& instance);
    /// Asks about what was left behind, the last change first, until one is opened. "Avbryt" leaves everything
    /// for the next start. \throws RunTimeError when a case cannot be opened; its file is kept.
    void offer();
    /// From the timer, and after each command: writes or removes the file as the case asks for.
    void look();
    /// In a program that is about to fall, on whatever thread: writes what the record holds, without pause.
    void atOnce() noexcept;
    /// Windows ends and takes the program with it; nobody was asked whether to save.
    void sessionEnds() noexcept;
    /// The program ends as the user wants it to: from here on nothing is kept.
    void giveUp();

  private:
    struct Found;
    std::vector<Found> leftBehind();
    bool worthless(const RescuedCase& rescued);
    RescuedCase current();
    void write(RescuedCase now);
    void drop();
    void remove(const std::string& path) noexcept;

    RescueSource& source_;
    FileCalls& calls_;
    Folders& folders_;
    RescueLocks& locks_;
    MessageBoxes& boxes_;
    RescueClock& clock_;

    std::string folder_;
    std::string path_; ///< of the own file
    std::unique_ptr<RescueLocks::Lock> lock_;
    bool kept_ = false;                  ///< the file is there
    std::optional<RescuedCase> written_; ///< what it holds, without the time
    std::optional<std::chrono::seconds> attempt_;
    std::string title_;
};

} // namespace varno
