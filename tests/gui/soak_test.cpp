// The whole program under random use for a while: it does not fall, hang, lose anything or grow.
//
// The environment tells how long (VARNO_SOAK_SECONDS, 25 unless told) and which walk (VARNO_SOAK_SEED, another one each
// time unless told; a walk that failed names its own).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "driver/prints.h"
#include "driver/process.h"
#include "driver/wait.h"
#include "soak.h"

namespace varno::gui {
namespace {

unsigned environment(const char* name, unsigned otherwise) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0' ? static_cast<unsigned>(std::strtoul(value, nullptr, 10))
                                              : otherwise;
}

// Kilobytes that the program may hold more in the last third of the walk than in the one before: what it sets aside for
// something that it had not done until then (the libraries of printing come with the first page), and, for what tells a leak,
// as much for every thousand actions.
constexpr double allowedOnce = 1536;
constexpr double allowedPerThousand = 64;

// What the program holds, action by action.
class MemoryCurve {
  public:
    explicit MemoryCurve(std::size_t bytes) : points_{{0, bytes / 1024}} {}
    void add(int action, std::size_t bytes) { points_.push_back({action, bytes / 1024}); }
    std::size_t first() const { return points_.front().kilobytes; }
    std::size_t last() const { return points_.back().kilobytes; }

    // The lowest of a part, thirds counted from 0: what is let go of later is no growth.
    std::size_t lowestOfThird(std::size_t third) const {
        // The start, before anything was done, is none of them.
        const std::size_t count = points_.size() - 1;
        std::size_t lowest = last();
        for (std::size_t i = count * third / 3; i < count * (third + 1) / 3; ++i)
            lowest = std::min(lowest, points_[i + 1].kilobytes);
        return lowest;
    }
    double grown() const {
        return static_cast<double>(lowestOfThird(2)) - static_cast<double>(lowestOfThird(1));
    }
    double thousandsOfActions() const { return points_.back().action / 3000.0; } // of a third

  private:
    struct Point {
        int action;
        std::size_t kilobytes;
    };
    std::vector<Point> points_;
};

class Soak : public SoakWalk {
  protected:
    Soak() : Soak(environment("VARNO_SOAK_SEED", std::random_device{}())) {}
    explicit Soak(unsigned seed) : SoakWalk(seed), seed_(seed) {}

    void walk();
    void tellFigures() const;
    void tellTrail() const;

    const unsigned seed_;
    const unsigned seconds_ = environment("VARNO_SOAK_SECONDS", 25);
    MemoryCurve memory_{ownMemory(program().process())};
};

void Soak::walk() {
    const ULONGLONG end = GetTickCount64() + ULONGLONG{seconds_} * 1000;
    tour();
    while (GetTickCount64() < end && !HasFailure()) {
        step();
        if (actions_ % 10 == 0) memory_.add(actions_, ownMemory(program().process()));
    }
}

void Soak::tellFigures() const {
    std::printf("FIGURE: seed %u, %d actions in %u s, %d message boxes, %d saves and %d openings compared, "
                "slowest answer %llu ms\n",
                seed_, actions_, seconds_, boxes_, saves_, openings_, slowest_);
    std::printf("FIGURE: memory %zu KB at the start, %zu KB at the lowest after the first third, %zu KB in "
                "the last, %zu KB at the end; grown by %.0f KB in %.1f thousand actions\n",
                memory_.first(), memory_.lowestOfThird(1), memory_.lowestOfThird(2), memory_.last(),
                memory_.grown(), memory_.thousandsOfActions());
    std::string kinds;
    for (const auto& [kind, times] : done_)
        kinds += (kinds.empty() ? "" : ", ") + kind + " " + std::to_string(times);
    std::printf("FIGURE: %s\n", kinds.c_str());
    std::fflush(stdout);
}

void Soak::tellTrail() const {
    std::printf("The walk failed; VARNO_SOAK_SEED=%u takes it again. What was done last:\n", seed_);
    for (const std::string& action : trail_)
        std::printf("    %s\n", action.c_str());
    std::fflush(stdout);
}

TEST_F(Soak, NothingFallsHangsIsLostOrGrows) {
    Prints prints;
    std::printf("Random use for %u s, VARNO_SOAK_SEED=%u\n", seconds_, seed_);
    std::fflush(stdout);
    try {
        walk();
        endProgram();
        for (int job = 0; job < printJobs_; ++job)
            prints.next();
    } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
    }
    EXPECT_LE(memory_.grown(), allowedOnce + allowedPerThousand * memory_.thousandsOfActions());
    tellFigures();
    if (HasFailure()) tellTrail();
}

} // namespace
} // namespace varno::gui
