#include "base/run_time_error.h"

#include <array>
#include <cerrno>
#include <utility>

#include "base/error_words.h"

namespace varno {

namespace {

struct ErrorText {
    int number;
    const char* text;
};

constexpr std::array errorTexts{
    ErrorText{errOverflow, "Overflow"},
    ErrorText{errOutOfMemory, "Out of memory"},
    ErrorText{errSubscriptOutOfRange, "Subscript out of range"},
    ErrorText{errDivisionByZero, "Division by zero"},
    ErrorText{errBadFileNameOrNumber, "Bad file name or number"},
    ErrorText{errFileNotFound, "File not found"},
    ErrorText{errBadFileMode, "Bad file mode"},
    ErrorText{errFileAlreadyOpen, "File already open"},
    ErrorText{errDeviceIo, "Device I/O error"},
    ErrorText{errFileAlreadyExists, "File already exists"},
    ErrorText{errDiskFull, "Disk full"},
    ErrorText{errInputPastEnd, "Input past end of file"},
    ErrorText{errTooManyFiles, "Too many files"},
    ErrorText{errDeviceUnavailable, "Device unavailable"},
    ErrorText{errPermissionDenied, "Permission denied"},
    ErrorText{errDiskNotReady, "Disk not ready"},
    ErrorText{errPathFileAccess, "Path/File access error"},
    ErrorText{errPathNotFound, "Path not found"},
    ErrorText{errPrinter, "Printer error"},
};

struct WindowsCode {
    unsigned long code;
    int number;
};

// The names are those of the Windows SDK; they are written as numbers so that the table is tested without it.
constexpr std::array windowsCodes{
    WindowsCode{2, errFileNotFound},          // ERROR_FILE_NOT_FOUND
    WindowsCode{3, errPathNotFound},          // ERROR_PATH_NOT_FOUND
    WindowsCode{4, errTooManyFiles},          // ERROR_TOO_MANY_OPEN_FILES
    WindowsCode{5, errPathFileAccess},        // ERROR_ACCESS_DENIED
    WindowsCode{8, errOutOfMemory},           // ERROR_NOT_ENOUGH_MEMORY
    WindowsCode{14, errOutOfMemory},          // ERROR_OUTOFMEMORY
    WindowsCode{15, errDeviceUnavailable},    // ERROR_INVALID_DRIVE
    WindowsCode{19, errPermissionDenied},     // ERROR_WRITE_PROTECT
    WindowsCode{20, errDeviceUnavailable},    // ERROR_BAD_UNIT
    WindowsCode{21, errDiskNotReady},         // ERROR_NOT_READY
    WindowsCode{32, errPermissionDenied},     // ERROR_SHARING_VIOLATION
    WindowsCode{33, errPermissionDenied},     // ERROR_LOCK_VIOLATION
    WindowsCode{38, errInputPastEnd},         // ERROR_HANDLE_EOF
    WindowsCode{39, errDiskFull},             // ERROR_HANDLE_DISK_FULL
    WindowsCode{53, errPathNotFound},         // ERROR_BAD_NETPATH
    WindowsCode{55, errDeviceUnavailable},    // ERROR_DEV_NOT_EXIST
    WindowsCode{65, errPermissionDenied},     // ERROR_NETWORK_ACCESS_DENIED
    WindowsCode{67, errPathNotFound},         // ERROR_BAD_NET_NAME
    WindowsCode{80, errFileAlreadyExists},    // ERROR_FILE_EXISTS
    WindowsCode{112, errDiskFull},            // ERROR_DISK_FULL
    WindowsCode{123, errBadFileNameOrNumber}, // ERROR_INVALID_NAME
    WindowsCode{161, errBadFileNameOrNumber}, // ERROR_BAD_PATHNAME
    WindowsCode{183, errFileAlreadyExists},   // ERROR_ALREADY_EXISTS
    WindowsCode{206, errBadFileNameOrNumber}, // ERROR_FILENAME_EXCED_RANGE
    WindowsCode{267, errPathNotFound},        // ERROR_DIRECTORY
    WindowsCode{1167, errDeviceUnavailable},  // ERROR_DEVICE_NOT_CONNECTED
    WindowsCode{1224, errPermissionDenied},   // ERROR_USER_MAPPED_FILE
};

} // namespace

RunTimeError::RunTimeError(int number, ErrorSubject subject)
    : std::runtime_error(runTimeErrorText(number)), number_(number), subject_(std::move(subject)) {}

RunTimeError RunTimeError::about(const std::string& file, FileAction action) const {
    ErrorSubject subject = subject_;
    if (subject.file.empty()) subject.file = file;
    if (subject.action == FileAction::none) subject.action = action;
    return RunTimeError(number_, std::move(subject));
}

RunTimeError RunTimeError::about(const std::string& field) const {
    ErrorSubject subject = subject_;
    if (subject.field.empty()) subject.field = field;
    return RunTimeError(number_, std::move(subject));
}

RunTimeError RunTimeError::atLine(int line) const {
    ErrorSubject subject = subject_;
    if (subject.line == 0) subject.line = line;
    return RunTimeError(number_, std::move(subject));
}

std::string RunTimeError::message() const {
    std::string message;
    const ErrorWords words = errorWords(number_, subject_);
    for (const std::string& sentence : {words.happened, words.notDone, words.advice}) {
        if (!sentence.empty()) message += sentence + '\n';
    }
    return message + "\nRun-time error '" + std::to_string(number_) + "': " + text();
}

std::string runTimeErrorText(int number) {
    for (const ErrorText& entry : errorTexts) {
        if (entry.number == number) return entry.text;
    }
    return "Application-defined or object-defined error";
}

int runTimeErrorOfWindowsCode(unsigned long code) {
    for (const WindowsCode& entry : windowsCodes) {
        if (entry.code == code) return entry.number;
    }
    return errDeviceIo;
}

int runTimeErrorOfErrno(int code) {
    switch (code) {
    case ENOENT:
        return errFileNotFound;
    case ENOTDIR:
        return errPathNotFound;
    case EACCES:
    case EISDIR:
    case EPERM:
        return errPathFileAccess;
    case EROFS:
    case EBUSY:
        return errPermissionDenied;
    case EMFILE:
    case ENFILE:
        return errTooManyFiles;
    case EEXIST:
        return errFileAlreadyExists;
    case ENOSPC:
        return errDiskFull;
    case ENAMETOOLONG:
    case EINVAL:
        return errBadFileNameOrNumber;
    default:
        return errDeviceIo;
    }
}

} // namespace varno
