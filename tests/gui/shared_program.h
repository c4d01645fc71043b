#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "driver/program.h"

namespace varno::gui {

/// A suite whose tests share one running program, past its start-up windows.
class SharedProgram : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        scene_ = std::make_unique<Scene>();
        program_ = std::make_unique<Program>(*scene_);
        program_->passStartUp();
    }
    static void TearDownTestSuite() {
        program_.reset();
        scene_.reset();
    }
    static const Scene& scene() { return *scene_; }
    static const Program& program() { return *program_; }

  private:
    static inline std::unique_ptr<Scene> scene_;
    static inline std::unique_ptr<Program> program_;
};

} // namespace varno::gui
