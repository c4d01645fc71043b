#pragma once

#include <windows.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace varno::gui {

/// The program did not do what was waited for, or cannot be driven.
class GuiError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Milliseconds that anything is waited for. Generous: a busy machine is no failure.
inline constexpr DWORD patience = 60'000;

/// Asks `done` until it is true. False when the time is over, or when `process` has ended and it is still not
/// true.
bool waitUntil(const std::function<bool()>& done, HANDLE process = nullptr, DWORD limit = patience);

} // namespace varno::gui
