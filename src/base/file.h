#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "base/file_calls.h"
#include "base/run_time_error.h"
#include "base/sequential_text.h"

namespace varno {

/// How a file is opened, by the program's mode codes.
enum class FileMode : std::int16_t { output = 1, input = 2, append = 3, random = 4, binary = 5 };

/// A file that is being written stands beside its target under the target's name and this.
inline constexpr const char* draftEnding = ".~tmp";

/// What openFile gives back: an open file that closes itself.
///
/// A file that failed to open has number 0, and every use of it raises run-time error 52. A use that does not
/// fit the mode raises 54.
///
/// What is written goes into memory first. `close` writes it beside the target, flushes it to the disk and
/// then replaces the target; a File that is destroyed without `close` leaves the old file as it was, so that
/// an error half-way through a case never costs the case on the disk.
class File {
  public:
    /// A file that did not open.
    File() = default;
    /// A file that did not open, for this reason: every use says so.
    File(std::string path, FileMode mode, int cause) : path_(std::move(path)), mode_(mode), cause_(cause) {}
    /// Opens `path`. \throws RunTimeError with the number of what the system refused.
    File(FileCalls& calls, std::string path, FileMode mode, int recordLength, std::int16_t number);
    File(File&& other) noexcept;
    File& operator=(File&& other) noexcept;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File();

    /// The file number, 0 when there is no file.
    std::int16_t number() const { return number_; }

    const std::string& path() const { return path_; }

    bool atEnd() const;
    /// What is read stays as long as the File, and where it is. \throws RunTimeError 62 at the end of the file.
    std::string_view readField();
    std::string_view readLine();
    /// All that is left, and the File is then at its end.
    Bytes takeRest();
    /// Writes a line and its CR LF.
    void printLine(std::string_view line);
    /// What was written so far, as it goes to the disk.
    const Bytes& written() const { return bytes_; }

    /// The bytes of a record (mode 4: record number, from 1) or of a place (mode 5: byte number, from 1).
    /// What lies past the end reads as zeros.
    Bytes get(int position, std::size_t count) const;
    void put(int position, std::string_view bytes);

    /// Brings what was written to the disk. \throws RunTimeError; the old file is then untouched.
    void close();

  private:
    void open();
    void require(bool fits) const;
    /// Runs what reads or writes the file; an error that leaves it is about the file.
    template <typename Action>
    decltype(auto) about(Action&& run) const {
        return aboutFile(path_, action(), run);
    }
    FileAction action() const;
    std::size_t offsetOf(int position) const;
    void makeDraft();
    void bringToDisk();
    void removeDraft() noexcept;

    FileCalls* calls_ = nullptr;
    std::string path_;
    std::string draft_; ///< the file beside the target; empty when there is none
    FileMode mode_ = FileMode::input;
    std::size_t recordLength_ = 1;
    std::int16_t number_ = 0;
    int cause_ = 0; ///< why it did not open
    bool written_ = false;
    Bytes bytes_;
    SequentialText text_; ///< over the bytes of a file that is read
};

} // namespace varno
