#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace varno::gui {

/// Memory in another process, for messages whose structures Windows does not carry across.
class RemoteMemory {
  public:
    RemoteMemory(HANDLE process, std::size_t size, DWORD protection = PAGE_READWRITE);
    ~RemoteMemory();
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    /// Leaves it to the process for as long as that runs.
    void leave() { place_ = nullptr; }

    DWORD address() const { return reinterpret_cast<DWORD>(place_); }
    void write(const void* from, std::size_t size);
    void read(void* to, std::size_t size) const;
    template <typename T>
    T as() const {
        T value{};
        read(&value, sizeof value);
        return value;
    }
    /// The zero-ended UTF-16 text at its begin, as UTF-8.
    std::string text() const;

  private:
    HANDLE process_;
    std::size_t size_;
    void* place_;
};

/// A function of Windows and what it is called with, at most six numbers.
struct RemoteCall {
    const wchar_t* module;
    const char* function;
    std::vector<DWORD> arguments;
};

/// Calls functions inside another process, one after the other on one thread, and gives their results. Menus,
/// fonts and the current directory belong to one process; under Wine no other one can ask for them.
std::vector<DWORD> callIn(HANDLE process, const std::vector<RemoteCall>& calls);
/// Makes it safe to ask a process for anything of this file; call it once, when the process waits for input.
///
/// Under Wine memory and threads for a process are made by one of its own threads, if need be by interrupting
/// it wherever it is: in the middle of an allocation it then waits for itself for ever. This leaves a thread in
/// the process that does nothing but wait for its end; Wine chooses one that waits before all others.
void prepareForCalls(HANDLE process);

/// One call.
DWORD callIn(HANDLE process, const wchar_t* module, const char* function,
             const std::vector<DWORD>& arguments);

} // namespace varno::gui
