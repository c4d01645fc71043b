#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>

namespace varno::gui {

/// Memory in another process, for messages whose structures Windows does not carry across.
class RemoteMemory {
  public:
    RemoteMemory(HANDLE process, std::size_t size, DWORD protection = PAGE_READWRITE);
    ~RemoteMemory();
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

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

/// Calls a function of Windows inside another process and gives its result. Menus, fonts and the current
/// directory belong to one process; under Wine no other one can ask for them.
DWORD callIn(HANDLE process, const wchar_t* module, const char* function,
             std::initializer_list<DWORD> arguments);

} // namespace varno::gui
