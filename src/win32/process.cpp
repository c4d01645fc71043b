#include "base/process_starter.h"

#include "win32/strings.h"

namespace varno {

namespace {

// A program with a console takes the foreground for its window. When that goes, Windows picks the window below
// it, and what this program shows next would come up behind. Asking for the foreground back is granted as long
// as the user's last key or click went to this program; one who works in another by then only sees the button in
// the task bar flash.
class ForegroundAsBefore {
  public:
    ForegroundAsBefore() : front_(GetForegroundWindow()) {
        DWORD process = 0;
        GetWindowThreadProcessId(front_, &process);
        if (process != GetCurrentProcessId()) front_ = nullptr;
    }
    ~ForegroundAsBefore() {
        if (front_ == nullptr) return;
        // First that the foreground was lost is heard of; later, it would be taken from what is shown by then.
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
        if (GetForegroundWindow() != front_) SetForegroundWindow(front_);
    }
    ForegroundAsBefore(const ForegroundAsBefore&) = delete;
    ForegroundAsBefore& operator=(const ForegroundAsBefore&) = delete;

  private:
    HWND front_;
};

class WindowsProcesses : public ProcessStarter {
    std::uint32_t ExecCmd(const std::string& commandLine) override {
        const ForegroundAsBefore foreground;
        STARTUPINFOA start{};
        start.cb = sizeof start;
        static_assert(sizeof start == 68, "the size that 32-bit Windows documents");
        PROCESS_INFORMATION process{};
        std::string line = win32::ansi(win32::wide(commandLine));
        DWORD exitCode =
            static_cast<DWORD>(CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE,
                                              NORMAL_PRIORITY_CLASS, nullptr, nullptr, &start, &process));
        // Without a process the handle is zero: the wait fails at once and its value is what the caller gets.
        exitCode = WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &exitCode);
        if (process.hThread != nullptr) CloseHandle(process.hThread);
        if (process.hProcess != nullptr) CloseHandle(process.hProcess);
        return exitCode;
    }
};

} // namespace

ProcessStarter& systemProcesses() {
    static WindowsProcesses processes;
    return processes;
}

} // namespace varno
