#pragma once

#include <istream>
#include <optional>

#include "base/file_calls.h"
#include "base/run_time_error.h"

namespace varno::tool {

/// The file calls of the system, save that a file "-" which is read is the standard input. It is read once and kept, so
/// that a file that is opened twice is the same.
class WithStandardInput : public FileCalls {
  public:
    WithStandardInput(FileCalls& calls, std::istream& in) : calls_(calls), in_(in) {}

    Bytes readAll(const std::string& path) override {
        if (path != "-") return calls_.readAll(path);
        if (!kept_) kept_ = readStream();
        return *kept_;
    }
    void checkWritable(const std::string& path) override { calls_.checkWritable(path); }
    std::unique_ptr<Output> create(const std::string& path) override { return calls_.create(path); }
    void replace(const std::string& from, const std::string& to) override { calls_.replace(from, to); }
    void remove(const std::string& path) override { calls_.remove(path); }
    bool exists(const std::string& path) override { return calls_.exists(path); }
    bool same(const std::string& a, const std::string& b) override { return calls_.same(a, b); }
    std::int64_t lastWritten(const std::string& path) override { return calls_.lastWritten(path); }
    std::string lastWrittenText(const std::string& path) override { return calls_.lastWrittenText(path); }

  private:
    Bytes readStream() {
        Bytes bytes;
        char block[65536];
        while (in_.read(block, sizeof block), in_.gcount() > 0) {
            bytes.append(block, static_cast<std::size_t>(in_.gcount()));
            if (bytes.size() > largestFile) throw RunTimeError(errOutOfMemory);
        }
        return bytes;
    }

    FileCalls& calls_;
    std::istream& in_;
    std::optional<Bytes> kept_;
};

} // namespace varno::tool
