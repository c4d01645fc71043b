#pragma once

#include <cstdint>
#include <string>

#include "base/file.h"
#include "base/message_boxes.h"

namespace varno {

/// The shared routine through which every file is opened, with its table of file error messages. It needs the
/// system's calls and somewhere to show a message; both outlive it.
class FileOpener {
  public:
    FileOpener(FileCalls& calls, MessageBoxes& boxes) : calls_(calls), boxes_(boxes) {}

    /// Opens `path` (UTF-8), in mode `random` with the given record length. Errors go to reportFileError; while
    /// that answers 0 the same open is tried again, so an error that persists brings its message back after
    /// every "OK". That is meant: the user puts the disk in, or makes the folder, and goes on. Any other answer
    /// gives a File with number 0.
    File openFile(const std::string& path, FileMode mode, int recordLength = 0);

    /// Shows the message of a file error under the title "Disk Error" and says what to do: 0 try again, 1
    /// ignore, 2 cancel, 3 give up. An error without a message gives 3 at once; a missing file (53) is one of
    /// them.
    std::int16_t reportFileError(int error);

    FileCalls& calls() { return calls_; }

  private:
    FileCalls& calls_;
    MessageBoxes& boxes_;
    std::int16_t lastNumber_ = 0;
};

} // namespace varno
