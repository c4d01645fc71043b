#pragma once

#include <stdexcept>
#include <string>

namespace varno {

/// The numbers of the run-time errors that the program raises itself.
enum RunTimeErrorNumber : int {
    errOverflow = 6,
    errOutOfMemory = 7,
    errSubscriptOutOfRange = 9,
    errDivisionByZero = 11,
    errBadFileNameOrNumber = 52,
    errFileNotFound = 53,
    errBadFileMode = 54,
    errFileAlreadyOpen = 55,
    errDeviceIo = 57,
    errFileAlreadyExists = 58,
    errDiskFull = 61,
    errInputPastEnd = 62,
    errTooManyFiles = 67,
    errDeviceUnavailable = 68,
    errPermissionDenied = 70,
    errDiskNotReady = 71,
    errPathFileAccess = 75,
    errPathNotFound = 76,
    errPrinter = 482,
};

/// What was being done to a file when an error came.
enum class FileAction { none, reading, writing, deleting };

/// What an error is about, as far as the place that raised it knows. UTF-8.
struct ErrorSubject {
    std::string file = {};                ///< path
    FileAction action = FileAction::none; ///< to the file
    /// The error that kept the file from opening: using it raises 52, which says nothing about the reason.
    int cause = 0;
    int line = 0;           ///< of the file
    std::string field = {}; ///< caption of the input field
    std::string said = {};  ///< what happened and what to do, where the number's own words would not say it
};

/// The one exception type of the program: a numbered run-time error. An error that no command handles stops
/// the event it happened in and is shown as `message()`; the case stays in memory.
class RunTimeError : public std::runtime_error {
  public:
    explicit RunTimeError(int number, ErrorSubject subject = {});

    int number() const noexcept { return number_; }
    /// The English text of the number, for example "Overflow".
    std::string text() const { return what(); }
    const ErrorSubject& subject() const noexcept { return subject_; }
    /// The same error about a file, or about a field; what it knew already stays.
    RunTimeError about(const std::string& file, FileAction action) const;
    RunTimeError about(const std::string& field) const;
    RunTimeError atLine(int line) const;
    /// What is shown to the user, in Swedish: what happened and to what, what was not done, what to do. The last
    /// line is "Run-time error 'N': text".
    std::string message() const;

  private:
    int number_;
    ErrorSubject subject_;
};

/// Runs `action`; a run-time error that leaves it is about this file.
template <typename Action>
decltype(auto) aboutFile(const std::string& file, FileAction done, Action&& action) {
    try {
        return action();
    } catch (const RunTimeError& error) {
        throw error.about(file, done);
    }
}

/// Runs `action`; a run-time error that leaves it is about the input field with this caption.
template <typename Action>
decltype(auto) aboutField(const std::string& caption, Action&& action) {
    try {
        return action();
    } catch (const RunTimeError& error) {
        throw error.about(caption);
    }
}

/// The English text of an error number; a number outside the table gives "Application-defined or
/// object-defined error".
std::string runTimeErrorText(int number);

/// The run-time error number that stands for a Windows error code (as GetLastError gives it); a code outside
/// the table is 57 (Device I/O error).
int runTimeErrorOfWindowsCode(unsigned long code);

/// The same for an errno value.
int runTimeErrorOfErrno(int code);

} // namespace varno
