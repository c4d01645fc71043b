#include "base/open_file.h"

#include <array>

#include "base/run_time_error.h"

namespace varno {

namespace {

struct FileErrorMessage {
    int error;
    const char* text;
    int style;
};

constexpr std::array fileErrorMessages{
    FileErrorMessage{54, "Bad FileMode", msgOk},
    FileErrorMessage{55, "File Already Open", msgOk},
    FileErrorMessage{57, "Device IO", msgYesNo},
    FileErrorMessage{61, "Disk Full", msgQuestionYesNoCancel},
    FileErrorMessage{62, "Input Past End Of File", msgOk},
    FileErrorMessage{64, "Bad Filename, Bad Filename Or Number", msgOk},
    FileErrorMessage{68, "Device Unavailable", msgYesNo},
    FileErrorMessage{71, "Disk Not Ready", msgOk},
    FileErrorMessage{76, "Path Does Not Exist", msgOk},
};

enum : std::int16_t { tryAgain = 0, goOn = 1, cancelled = 2, giveUp = 3 };

std::int16_t meaningOf(MessageAnswer answer) {
    switch (answer) {
    case MessageAnswer::ok:
    case MessageAnswer::retry:
        return tryAgain;
    case MessageAnswer::ignore:
        return goOn;
    case MessageAnswer::cancel:
    case MessageAnswer::abort:
        return cancelled;
    default:
        return giveUp;
    }
}

} // namespace

std::int16_t FileOpener::reportFileError(int error) {
    for (const FileErrorMessage& message : fileErrorMessages) {
        if (message.error == error) return meaningOf(boxes_.show(message.text, message.style, "Disk Error"));
    }
    return giveUp;
}

File FileOpener::openFile(const std::string& path, FileMode mode, int recordLength) {
    while (true) {
        try {
            const std::int16_t number =
                lastNumber_ < 255 ? static_cast<std::int16_t>(lastNumber_ + 1) : std::int16_t{1};
            File file(calls_, path, mode, recordLength, number);
            lastNumber_ = number;
            return file;
        } catch (const RunTimeError& error) {
            if (reportFileError(error.number()) != tryAgain) return File(path, mode, error.number());
        }
    }
}

} // namespace varno
