#pragma once

#include <functional>

namespace varno::win32 {

/// Calls an action when the program is about to end by a Windows fault, or by an exception that nothing
/// caught, and lets it end. The action runs once, on the thread that fell, with what the fault left of the
/// program: it uses what is in memory and the disk, and asks no window.
///
/// Windows hands its filter nothing but the fault, so the one guard of a process is known to this file.
class CrashGuard {
  public:
    explicit CrashGuard(std::function<void()> action);
    ~CrashGuard();
    CrashGuard(const CrashGuard&) = delete;
    CrashGuard& operator=(const CrashGuard&) = delete;
};

} // namespace varno::win32
