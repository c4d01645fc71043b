#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/text.h"

namespace varno {

/// A file larger than this is none of the program's: a case has kilobytes. Read whole, it would take the memory that
/// the case on the screen needs.
inline constexpr std::size_t largestFile = std::size_t{64} << 20;

/// The system calls behind every file of the program. They come in through this table so that a test can let
/// any one of them fail. Paths are UTF-8, with the separators of the system; relative ones are taken from the
/// current directory. Every call that fails throws a RunTimeError with the number that the system's error
/// stands for.
class FileCalls {
  public:
    virtual ~FileCalls() = default;

    /// An open file being written; closed by its destructor at the latest.
    class Output {
      public:
        virtual ~Output() = default;
        virtual void write(std::string_view bytes) = 0;
        /// Everything written so far is on the disk, not only in a cache.
        virtual void flush() = 0;
        virtual void close() = 0;
    };

    /// The whole content of an existing file. \throws RunTimeError 7 when it is larger than `largestFile`.
    virtual Bytes readAll(const std::string& path) = 0;
    /// Reports, without changing anything, why an existing file could not be written; a missing one is fine
    /// when its folder is there.
    virtual void checkWritable(const std::string& path) = 0;
    /// Creates a file, or empties it when it exists.
    virtual std::unique_ptr<Output> create(const std::string& path) = 0;
    /// Puts the complete file `from` in the place of `to` (same folder) in one step: whatever happens, `to`
    /// is either the old file or the new one.
    virtual void replace(const std::string& from, const std::string& to) = 0;
    virtual void remove(const std::string& path) = 0;
    virtual bool exists(const std::string& path) = 0;
    /// Both paths lead to one and the same file, however they are written: other letters, a relative or a
    /// short name, another drive letter for the same folder. False when one of them leads nowhere.
    virtual bool same(const std::string& a, const std::string& b) = 0;
    /// When a file was last written, by a clock of the system's own: good for comparing two files of a folder.
    virtual std::int64_t lastWritten(const std::string& path) = 0;
    /// The same for the user to read: "2026-11-21 15:40:07", local time.
    virtual std::string lastWrittenText(const std::string& path) = 0;
};

/// The calls of the system that the program is built for.
FileCalls& systemFileCalls();

} // namespace varno
