// Programs on Windows. Each is put into a job of its own before it runs, so that it ends with all that it started, and
// with varnotool however that ends.
#include "tool/engine_host.h"

#include <windows.h>

#include <algorithm>
#include <thread>

#include "base/run_time_error.h"
#include "win32/strings.h"
#include "win32/unique.h"

namespace varno::tool {

namespace {

using win32::UniqueHandle;
using win32::wide;

// The console tells a function, on a thread of its own, and nothing of what it is to tell can be handed to it.
HANDLE endEvent() {
    static const UniqueHandle event(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    return event.get();
}

BOOL WINAPI onConsoleEvent(DWORD) {
    SetEvent(endEvent());
    return TRUE;
}

[[noreturn]] void fail() {
    throw RunTimeError(runTimeErrorOfWindowsCode(GetLastError()));
}

// As a C program takes its command line apart again. A word that needs no quotation marks has none: the command processor
// does not know its own options with them.
std::wstring quoted(const std::string& word) {
    if (!word.empty() && word.find_first_of(" \t\"") == std::string::npos) return wide(word);
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : wide(word)) {
        if (c == L'"') text.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, L'\\') + L"\"";
}

std::wstring commandLine(const std::vector<std::string>& words) {
    std::wstring line;
    for (const std::string& word : words)
        line += (line.empty() ? L"" : L" ") + quoted(word);
    return line;
}

class FileLock : public EngineHost::Lock {
  public:
    explicit FileLock(UniqueHandle file) : file_(std::move(file)) {}

  private:
    UniqueHandle file_; // which is removed when it is closed, whoever closes it
};

struct Child {
    int number;
    UniqueHandle process;
    UniqueHandle job;
};

class WindowsEngines : public EngineHost {
  public:
    int start(const std::vector<std::string>& words, const std::string& folder,
              const std::string& output) override {
        SetConsoleCtrlHandler(onConsoleEvent, TRUE);
        UniqueHandle job = endingJob();
        SECURITY_ATTRIBUTES inherited{
            .nLength = sizeof inherited, .lpSecurityDescriptor = nullptr, .bInheritHandle = TRUE};
        const UniqueHandle out(CreateFileW(wide(folder + "\\" + output).c_str(), GENERIC_WRITE,
                                           FILE_SHARE_READ, &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                                           nullptr));
        const UniqueHandle in(CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                          &inherited, OPEN_EXISTING, 0, nullptr));
        if (out.get() == INVALID_HANDLE_VALUE || in.get() == INVALID_HANDLE_VALUE) fail();
        STARTUPINFOW info{};
        info.cb = sizeof info;
        info.dwFlags = STARTF_USESTDHANDLES;
        info.hStdInput = in.get();
        info.hStdOutput = info.hStdError = out.get();
        PROCESS_INFORMATION process{};
        std::wstring line = commandLine(words);
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE,
                            CREATE_SUSPENDED | CREATE_NO_WINDOW | CREATE_NEW_PROCESS_GROUP, nullptr,
                            wide(folder).c_str(), &info, &process))
            fail();
        const UniqueHandle thread(process.hThread);
        AssignProcessToJobObject(job.get(), process.hProcess);
        ResumeThread(thread.get());
        children_.push_back({++last_, UniqueHandle(process.hProcess), std::move(job)});
        return last_;
    }

    std::optional<Ended> wait(std::optional<Milliseconds> longest) override {
        std::vector<HANDLE> handles{endEvent()};
        for (const Child& child : children_)
            handles.push_back(child.process.get());
        const auto time = longest.value_or(Milliseconds(60000)).count();
        const DWORD count = static_cast<DWORD>(handles.size());
        const DWORD which = WaitForMultipleObjects(count, handles.data(), FALSE, static_cast<DWORD>(time));
        if (which == WAIT_OBJECT_0) interrupted_ = true;
        if (which <= WAIT_OBJECT_0 || which >= WAIT_OBJECT_0 + count) return {};
        const auto child = children_.begin() + static_cast<std::ptrdiff_t>(which - WAIT_OBJECT_0 - 1);
        DWORD code = 0;
        GetExitCodeProcess(child->process.get(), &code);
        const int number = child->number;
        TerminateJobObject(child->job.get(), 1);
        children_.erase(child);
        // An exception that nobody caught.
        constexpr DWORD firstException = 0xC0000000;
        return Ended{number, static_cast<long>(code), code >= firstException};
    }

    void end(int child) override {
        const auto found = std::ranges::find(children_, child, &Child::number);
        if (found == children_.end()) return;
        TerminateJobObject(found->job.get(), 1);
        WaitForSingleObject(found->process.get(), INFINITE);
        children_.erase(found);
    }

    bool interrupted() const override { return interrupted_; }
    Milliseconds now() const override { return Milliseconds(GetTickCount64()); }
    int cores() const override { return std::max(1, static_cast<int>(std::thread::hardware_concurrency())); }
    // One wait takes no more handles, and one of them is the event's.
    int mostAtOnce() const override { return MAXIMUM_WAIT_OBJECTS - 1; }

    std::unique_ptr<Lock> tryLock(const std::string& path) override {
        UniqueHandle file(CreateFileW(wide(path).c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
        if (file.get() != INVALID_HANDLE_VALUE) return std::make_unique<FileLock>(std::move(file));
        const DWORD error = GetLastError();
        if (error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED) return nullptr;
        throw RunTimeError(runTimeErrorOfWindowsCode(error)).about(path, FileAction::writing);
    }

  private:
    static UniqueHandle endingJob() {
        UniqueHandle job(CreateJobObjectW(nullptr, nullptr));
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
        return job;
    }

    std::vector<Child> children_;
    int last_ = 0;
    bool interrupted_ = false;
};

} // namespace

EngineHost& systemEngines() {
    static WindowsEngines engines;
    return engines;
}

} // namespace varno::tool
