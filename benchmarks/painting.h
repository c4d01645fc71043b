#pragma once

#include <windows.h>

#include <functional>
#include <vector>

#include "driver/control.h"

namespace varno::benchmarks {

/// Milliseconds since it was made.
class Stopwatch {
  public:
    Stopwatch();
    double elapsed() const;

  private:
    LARGE_INTEGER start_{};
};

/// A window and all that is in it.
std::vector<gui::Control> treeOf(const gui::Control& window);
/// Something of these is still to be painted. A window has nothing to paint from the moment that it begins to.
bool unpainted(const std::vector<gui::Control>& windows);
/// Waits until these windows of one thread are painted. A message that is sent is answered between two others, so behind
/// an answer no painting is half done; the display's server may still be behind.
void waitPainted(const std::vector<gui::Control>& windows);
/// Asks a program's window for answers until `done`, with no pause in between. \throws gui::GuiError after a minute.
void waitAwake(const gui::Control& window, const std::function<bool()>& done);

} // namespace varno::benchmarks
