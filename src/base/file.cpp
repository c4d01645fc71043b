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
    if (mode == FileMode::input) {
        text_ = SequentialText(calls.readAll(path_));
    } else if (writes(mode)) {
        calls.checkWritable(path_);
        if (mode == FileMode::append && calls.exists(path_)) bytes_ = calls.readAll(path_);
        makeDraft();
        written_ = true;
    } else if (placed(mode)) {
        if (!calls.exists(path_)) calls.create(path_)->close();
        bytes_ = calls.readAll(path_);
    } else {
        throw RunTimeError(errBadFileMode);
    }
    number_ = number;
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
    written_ = std::exchange(other.written_, false);
    text_ = std::move(other.text_);
    bytes_ = std::move(other.bytes_);
    return *this;
}

File::~File() {
    removeDraft();
}

// No destructor runs for a File that failed to open, so what it made goes here.
void File::makeDraft() {
    const std::string draft = path_ + ".~tmp";
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
    if (number_ == 0) throw RunTimeError(errBadFileNameOrNumber);
    if (!fits) throw RunTimeError(errBadFileMode);
}

bool File::atEnd() const {
    require(mode_ == FileMode::input);
    return text_.atEnd();
}

Bytes File::readField() {
    require(mode_ == FileMode::input);
    return text_.readField();
}

Bytes File::readLine() {
    require(mode_ == FileMode::input);
    return text_.readLine();
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
    if (!std::exchange(written_, false)) return;
    try {
        if (draft_.empty()) draft_ = path_ + ".~tmp";
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
