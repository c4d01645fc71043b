#include "base/file.h"

#include <utility>

#include "base/run_time_error.h"

namespace varno {

namespace {

bool writes(FileMode mode) {
    return mode == FileMode::output || mode == FileMode::append;
}
bool placed(FileMode mode) {
    return mode == FileMode::random || mode == FileMode::binary;
}

} // namespace

File::File(FileCalls& calls, std::string path, FileMode mode, int recordLength, std::int16_t number)
    : calls_(&calls), path_(std::move(path)), mode_(mode),
      recordLength_(mode == FileMode::random && recordLength > 0 ? static_cast<std::size_t>(recordLength)
                                                                 : 1) {
    about([this] { open(); });
    number_ = number;
}

void File::open() {
    // The system would take the name for the part before it, and another file for this one.
    if (path_.find('\0') != std::string::npos) throw RunTimeError(errBadFileNameOrNumber);
    if (mode_ == FileMode::input) {
        bytes_ = calls_->readAll(path_);
        text_ = SequentialText(bytes_);
    } else if (writes(mode_)) {
        calls_->checkWritable(path_);
        if (mode_ == FileMode::append && calls_->exists(path_)) bytes_ = calls_->readAll(path_);
        makeDraft();
        written_ = true;
    } else if (placed(mode_)) {
        if (!calls_->exists(path_)) calls_->create(path_)->close();
        bytes_ = calls_->readAll(path_);
    } else {
        throw RunTimeError(errBadFileMode);
    }
}

// A file by place is read when it is opened and written when it is closed.
FileAction File::action() const {
    const bool reads = mode_ == FileMode::input || (placed(mode_) && !written_);
    return reads ? FileAction::reading : FileAction::writing;
}

File::File(File&& other) noexcept {
    *this = std::move(other);
}

File& File::operator=(File&& other) noexcept {
    if (this == &other) return *this;
    removeDraft();
    calls_ = std::exchange(other.calls_, nullptr);
    path_ = std::move(other.path_);
    draft_ = std::exchange(other.draft_, {});
    mode_ = other.mode_;
    recordLength_ = other.recordLength_;
    number_ = std::exchange(other.number_, std::int16_t{0});
    cause_ = other.cause_;
    written_ = std::exchange(other.written_, false);
    bytes_ = std::move(other.bytes_);
    text_ = other.text_.in(bytes_);
    return *this;
}

File::~File() {
    removeDraft();
}

// No destructor runs for a File that failed to open, so what it made goes here.
void File::makeDraft() {
    const std::string draft = path_ + draftEnding;
    try {
        const auto output = calls_->create(draft);
        draft_ = draft;
        output->close();
    } catch (...) {
        removeDraft();
        throw;
    }
}

void File::removeDraft() noexcept {
    if (draft_.empty()) return;
    try {
        calls_->remove(draft_);
    } catch (const RunTimeError&) {
        // The draft stays behind; the file itself is what matters, and it is whole.
    }
    draft_.clear();
}

void File::require(bool fits) const {
    if (number_ == 0)
        throw RunTimeError(errBadFileNameOrNumber, {.file = path_, .action = action(), .cause = cause_});
    if (!fits) throw RunTimeError(errBadFileMode, {.file = path_, .action = action()});
}

bool File::atEnd() const {
    require(mode_ == FileMode::input);
    return text_.atEnd();
}

std::string_view File::readField() {
    require(mode_ == FileMode::input);
    return about([this] { return text_.readField(); });
}

std::string_view File::readLine() {
    require(mode_ == FileMode::input);
    return about([this] { return text_.readLine(); });
}

Bytes File::takeRest() {
    require(mode_ == FileMode::input);
    Bytes rest = std::exchange(bytes_, {});
    rest.erase(0, text_.position());
    text_ = SequentialText(bytes_);
    return rest;
}

void File::printLine(std::string_view line) {
    require(writes(mode_));
    bytes_ += line;
    bytes_ += "\r\n";
}

std::size_t File::offsetOf(int position) const {
    require(placed(mode_));
    if (position < 1) throw RunTimeError(errBadFileNameOrNumber);
    return static_cast<std::size_t>(position - 1) * recordLength_;
}

Bytes File::get(int position, std::size_t count) const {
    const std::size_t offset = offsetOf(position);
    Bytes out = offset < bytes_.size() ? bytes_.substr(offset, count) : Bytes();
    out.resize(count, '\0');
    return out;
}

void File::put(int position, std::string_view bytes) {
    const std::size_t offset = offsetOf(position);
    if (bytes_.size() < offset + bytes.size()) bytes_.resize(offset + bytes.size(), '\0');
    bytes_.replace(offset, bytes.size(), bytes);
    written_ = true;
}

void File::close() {
    if (number_ == 0) return;
    // From here on the file is closed, also when bringing it to the disk fails.
    number_ = 0;
    if (!written_) return;
    about([this] { bringToDisk(); });
    written_ = false;
}

void File::bringToDisk() {
    try {
        if (draft_.empty()) draft_ = path_ + draftEnding;
        const auto output = calls_->create(draft_);
        output->write(bytes_);
        output->flush();
        output->close();
        calls_->replace(draft_, path_);
        draft_.clear();
    } catch (...) {
        removeDraft();
        throw;
    }
}

} // namespace varno
