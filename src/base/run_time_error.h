#pragma once

#include <stdexcept>
#include <string>

namespace varno {

/// The numbers of the run-time errors that the program raises itself.
enum RunTimeErrorNumber : int {
    errOverflow = 6,
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

/// The one exception type of the program: a numbered run-time error. An error that no command handles stops
/// the event it happened in and is shown as `message()`; the case stays in memory.
class RunTimeError : public std::runtime_error {
  public:
    explicit RunTimeError(int number);

    int number() const noexcept { return number_; }
    /// The English text of the number, for example "Overflow".
    std::string text() const { return what(); }
    /// "Run-time error 'N': text", as the message box shows it.
    std::string message() const;

  private:
    int number_;
};

/// The English text of an error number; a number outside the table gives "Application-defined or
/// object-defined error".
std::string runTimeErrorText(int number);

/// The run-time error number that stands for a Windows error code (as GetLastError gives it); a code outside
/// the table is 57 (Device I/O error).
int runTimeErrorOfWindowsCode(unsigned long code);

/// The same for an errno value.
int runTimeErrorOfErrno(int code);

} // namespace varno
