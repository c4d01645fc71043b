#pragma once

#include <string>

#include "results/result_viewer.h"

namespace varno::testing {

class FakeViewer : public ResultViewer {
  public:
    void setShown(const ShownResult& which) override { result = which; }
    void setText(const std::string& shown) override { text = shown; }
    void setFont(const std::string& face) override { font = face; }
    void show() override { ++timesShown; }

    ShownResult result;
    std::string text;
    std::string font;
    int timesShown = 0;
};

} // namespace varno::testing
