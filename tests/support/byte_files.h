#pragma once

#include <map>
#include <memory>
#include <string>

#include "base/file_calls.h"
#include "base/run_time_error.h"

namespace varno {

/// A disk in memory that nothing fails on, for reading again what would be written.
class ByteFiles : public FileCalls {
  public:
    Bytes readAll(const std::string& path) override {
        const auto found = content.find(path);
        if (found == content.end()) throw RunTimeError(errFileNotFound);
        return found->second;
    }
    void checkWritable(const std::string&) override {}
    std::unique_ptr<Output> create(const std::string& path) override {
        content[path].clear();
        return std::make_unique<ByteOutput>(content[path]);
    }
    void replace(const std::string& from, const std::string& to) override {
        content[to] = content.at(from);
        content.erase(from);
    }
    void remove(const std::string& path) override { content.erase(path); }
    bool exists(const std::string& path) override { return content.contains(path); }
    bool same(const std::string& a, const std::string& b) override { return a == b; }
    std::int64_t lastWritten(const std::string&) override { return 0; }
    std::string lastWrittenText(const std::string&) override { return {}; }

    std::map<std::string, Bytes> content;

  private:
    class ByteOutput : public Output {
      public:
        explicit ByteOutput(Bytes& bytes) : bytes_(bytes) {}
        void write(std::string_view bytes) override { bytes_ += bytes; }
        void flush() override {}
        void close() override {}

      private:
        Bytes& bytes_;
    };
};

} // namespace varno
