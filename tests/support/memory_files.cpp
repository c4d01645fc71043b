#include "support/memory_files.h"

#include <gtest/gtest.h>

#include "help/help_pages.h"

namespace varno::testing {

class MemoryOutput : public FileCalls::Output {
  public:
    MemoryOutput(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {}
    void write(std::string_view bytes) override {
        files_.enter("write", path_);
        files_.content[path_] += bytes;
    }
    void flush() override { files_.enter("flush", path_); }
    void close() override { files_.enter("close", path_); }

  private:
    MemoryFiles& files_;
    std::string path_;
};

void MemoryFiles::enter(const std::string& call, const std::string& path) {
    calls.push_back(call + " " + path);
    const int error = fault ? fault(call, path) : 0;
    if (error != 0) throw RunTimeError(error);
}

Bytes MemoryFiles::readAll(const std::string& path) {
    enter("readAll", path);
    const auto found = content.find(path);
    if (found == content.end()) throw RunTimeError(errFileNotFound);
    return found->second;
}

void MemoryFiles::checkWritable(const std::string& path) {
    enter("checkWritable", path);
}

std::unique_ptr<FileCalls::Output> MemoryFiles::create(const std::string& path) {
    enter("create", path);
    content[path].clear();
    return std::make_unique<MemoryOutput>(*this, path);
}

void MemoryFiles::replace(const std::string& from, const std::string& to) {
    enter("replace", to);
    const auto found = content.find(from);
    if (found == content.end()) throw RunTimeError(errFileNotFound);
    content[to] = found->second;
    content.erase(from);
}

void MemoryFiles::remove(const std::string& path) {
    enter("remove", path);
    if (content.erase(path) == 0) throw RunTimeError(errFileNotFound);
}

std::int64_t MemoryFiles::lastWritten(const std::string& path) {
    enter("lastWritten", path);
    if (!content.contains(path)) throw RunTimeError(errFileNotFound);
    return written[path];
}

std::string MemoryFiles::lastWrittenText(const std::string& path) {
    enter("lastWritten", path);
    if (!content.contains(path)) throw RunTimeError(errFileNotFound);
    return dateAndTime;
}

MessageAnswer FakeMessageBoxes::show(const std::string& text, int style, const std::string& title) {
    EXPECT_TRUE(isExplained(text) && isExplained(title)) << "not in the help: " << title << ": " << text;
    shown.push_back({text, style, title});
    if (whileShown) whileShown();
    if (answers.empty()) return MessageAnswer::ok;
    const MessageAnswer answer = answers.front();
    answers.erase(answers.begin());
    return answer;
}

} // namespace varno::testing
