#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <utility>

#include "model/design_case.h"

namespace varno {

/// The case as an edit left it.
struct CaseStep {
    DesignCase designCase;
    std::string title;
    bool factorsOpen = false; ///< the factors of rule set 6 can be typed
    bool operator==(const CaseStep&) const = default;
};

/// The states that a case went through, one behind each edit, and the one it is in.
class CaseHistory {
  public:
    static constexpr std::size_t mostSteps = 1000;

    /// Another case: there is nothing to take back.
    void start(CaseStep now) {
        steps_.clear();
        steps_.push_back(std::move(now));
        current_ = 0;
    }
    /// After an edit. One that changed nothing is none; any other leads where no step forward is left.
    void note(CaseStep now) {
        if (steps_.empty()) return start(std::move(now));
        if (steps_[current_] == now) return;
        steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(current_) + 1, steps_.end());
        steps_.push_back(std::move(now));
        if (steps_.size() > mostSteps + 1) steps_.pop_front();
        current_ = steps_.size() - 1;
    }
    /// The state before the last edit, or that after the last one taken back; null when there is none.
    const CaseStep* back() { return current_ == 0 ? nullptr : &steps_[--current_]; }
    const CaseStep* forward() { return current_ + 1 >= steps_.size() ? nullptr : &steps_[++current_]; }

  private:
    std::deque<CaseStep> steps_;
    std::size_t current_ = 0;
};

} // namespace varno
