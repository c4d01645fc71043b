#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/file_calls.h"
#include "base/message_boxes.h"
#include "base/run_time_error.h"
#include "base/text.h"

namespace varno::testing {

/// A disk in memory. Any call can be made to fail: `fault` sees the call's name and path and gives the number
/// of the run-time error to raise, or 0. Names are told apart by case, folders do not exist as such.
class MemoryFiles : public FileCalls {
  public:
    Bytes readAll(const std::string& path) override;
    void checkWritable(const std::string& path) override;
    std::unique_ptr<Output> create(const std::string& path) override;
    void replace(const std::string& from, const std::string& to) override;
    void remove(const std::string& path) override;
    bool exists(const std::string& path) override { return content.contains(path); }
    bool same(const std::string& a, const std::string& b) override {
        return content.contains(a) && content.contains(b) && equalIgnoringCase(a, b);
    }
    std::int64_t lastWritten(const std::string& path) override;
    std::string lastWrittenText(const std::string& path) override;

    /// "readAll", "checkWritable", "create", "write", "flush", "close", "replace", "remove",
    /// "lastWritten".
    std::function<int(const std::string& call, const std::string& path)> fault;
    std::map<std::string, Bytes> content;
    std::map<std::string, std::int64_t> written;     ///< what lastWritten answers, 0 unless told
    std::string dateAndTime = "2026-11-21 15:40:07"; ///< what lastWrittenText answers
    std::vector<std::string> calls;                  ///< "call path", in order

  private:
    friend class MemoryOutput;
    void enter(const std::string& call, const std::string& path);
};

/// Message boxes that answer from a list (then "OK") and remember what they showed.
class FakeMessageBoxes : public MessageBoxes {
  public:
    struct Shown {
        std::string text;
        int style;
        std::string title;
        bool operator==(const Shown&) const = default;
    };
    MessageAnswer show(const std::string& text, int style, const std::string& title) override;

    std::vector<MessageAnswer> answers;
    std::vector<Shown> shown;
    std::function<void()> whileShown;
};

/// The number of the run-time error that `action` raises, 0 when it raises none.
template <typename Action>
int errorOf(Action&& action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

} // namespace varno::testing
