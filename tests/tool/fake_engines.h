#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "tool/engine_host.h"

namespace varno::testing {

/// Engines that work when they are started, and a clock that stands still but for waiting.
class FakeEngines : public tool::EngineHost {
  public:
    struct Started {
        std::vector<std::string> words;
        std::string folder;
    };

    int start(const std::vector<std::string>& words, const std::string& folder, const std::string&) override {
        if (startError != 0) throw RunTimeError(startError);
        started.push_back({words, folder});
        const int child = static_cast<int>(started.size());
        running[child] = clock + takes(child);
        most = std::max(most, running.size());
        if (work) work(folder, child);
        return child;
    }
    std::optional<Ended> wait(std::optional<tool::Milliseconds> longest) override {
        if (interruptedAfter == ended.size()) wasInterrupted = true;
        const auto first = std::ranges::min_element(running, {}, [](const auto& one) { return one.second; });
        const bool late = longest && first->second - clock > *longest;
        clock = late ? clock + *longest : first->second;
        if (late) return {};
        const int child = first->first;
        running.erase(first);
        ended.push_back(child);
        return Ended{child, code(child), crashed.contains(child)};
    }
    void end(int child) override {
        running.erase(child);
        killed.push_back(child);
    }
    bool interrupted() const override { return wasInterrupted; }
    tool::Milliseconds now() const override { return clock; }
    int cores() const override { return 2; }
    int mostAtOnce() const override { return 63; }
    std::unique_ptr<Lock> tryLock(const std::string& path) override {
        if (held.contains(path)) return nullptr;
        if (beforeLock) beforeLock();
        return std::make_unique<HeldLock>(held, path);
    }

    std::function<void(const std::string& folder, int child)> work;
    std::function<tool::Milliseconds(int child)> takes = [](int) { return tool::Milliseconds(10); };
    std::function<long(int child)> code = [](int) { return 0L; };
    std::function<void()> beforeLock; ///< what another process did until it let go
    std::set<int> crashed;
    int startError = 0;
    std::size_t interruptedAfter = static_cast<std::size_t>(-1); ///< so many have ended

    std::vector<Started> started;
    std::map<int, tool::Milliseconds> running;
    std::vector<int> ended;
    std::vector<int> killed;
    std::set<std::string> held; ///< locks
    std::size_t most = 0;       ///< that ran at once
    tool::Milliseconds clock{0};
    bool wasInterrupted = false;

  private:
    class HeldLock : public Lock {
      public:
        HeldLock(std::set<std::string>& held, std::string path) : held_(held), path_(std::move(path)) {
            held_.insert(path_);
        }
        ~HeldLock() override { held_.erase(path_); }

      private:
        std::set<std::string>& held_;
        std::string path_;
    };
};

} // namespace varno::testing
