#include "win32/win32_file_calls.h"

#include <array>
#include <utility>

#include "base/run_time_error.h"
#include "win32/strings.h"

namespace varno::win32 {

namespace {

[[noreturn]] void failWith(DWORD code) {
    throw RunTimeError(runTimeErrorOfWindowsCode(code));
}
[[noreturn]] void fail() {
    failWith(GetLastError());
}

// Paths of 260 letters and more must be in their long form. A draft's name is longer than its file's, so a file that
// could be opened could otherwise not be saved.
std::wstring systemPath(const std::string& path) {
    std::wstring text = wide(path);
    constexpr std::size_t longestName = 255;
    // Windows and its file systems have several errors for this.
    if (text.size() - (text.find_last_of(L"\\/") + 1) > longestName) failWith(ERROR_FILENAME_EXCED_RANGE);
    constexpr std::size_t shortEnough = 248;
    if (text.size() < shortEnough || text.starts_with(LR"(\\)")) return text;
    std::wstring full(GetFullPathNameW(text.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(text.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return LR"(\\?\)" + full;
}

class OpenFile {
  public:
    OpenFile(FileFunctions& windows, const std::wstring& path, DWORD access, DWORD share, DWORD disposition)
        : windows_(windows), file_(windows.open(path, access, share, disposition)) {
        if (file_ == INVALID_HANDLE_VALUE) {
            // A file that is to be made cannot be missing; its folder or drive is.
            const DWORD code = GetLastError();
            failWith(code == ERROR_FILE_NOT_FOUND && disposition == CREATE_ALWAYS ? ERROR_PATH_NOT_FOUND
                                                                                  : code);
        }
        // CON, COM1 or NUL with any extension is a device: reading may wait for ever, and what is written is gone.
        if (windows.isDisk(file_)) return;
        windows.close(file_);
        failWith(ERROR_INVALID_NAME);
    }
    ~OpenFile() {
        if (file_ != INVALID_HANDLE_VALUE) windows_.close(file_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    HANDLE get() const { return file_; }
    void close() {
        const HANDLE file = std::exchange(file_, INVALID_HANDLE_VALUE);
        if (file != INVALID_HANDLE_VALUE && !windows_.close(file)) fail();
    }

  private:
    FileFunctions& windows_;
    HANDLE file_;
};

class WindowsOutput : public FileCalls::Output {
  public:
    WindowsOutput(FileFunctions& windows, const std::wstring& path)
        : windows_(windows), file_(windows, path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS) {}

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            constexpr std::size_t block = 1 << 20;
            DWORD done = 0;
            const auto count = static_cast<DWORD>(bytes.size() < block ? bytes.size() : block);
            if (!windows_.write(file_.get(), bytes.data(), count, done)) fail();
            if (done == 0) failWith(ERROR_DISK_FULL);
            bytes.remove_prefix(done);
        }
    }
    void flush() override {
        if (!windows_.flush(file_.get())) fail();
    }
    void close() override { file_.close(); }

  private:
    FileFunctions& windows_;
    OpenFile file_;
};

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

} // namespace

Bytes WindowsFileCalls::readAll(const std::string& path) {
    const OpenFile file(windows_, systemPath(path), GENERIC_READ, shareAll, OPEN_EXISTING);
    Bytes bytes;
    std::array<char, 65536> block;
    while (true) {
        DWORD done = 0;
        if (!windows_.read(file.get(), block.data(), block.size(), done)) fail();
        if (done == 0) return bytes;
        if (bytes.size() + done > largestFile) throw RunTimeError(errOutOfMemory);
        bytes.append(block.data(), done);
    }
}

void WindowsFileCalls::checkWritable(const std::string& path) {
    const std::wstring target = systemPath(path);
    // The attribute is asked for itself: an administrator's open of a read-only file need not fail.
    const DWORD attributes = windows_.attributes(target);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        failWith(ERROR_ACCESS_DENIED);
    }
    try {
        const OpenFile file(windows_, target, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                            OPEN_EXISTING);
    } catch (const RunTimeError& error) {
        if (error.number() != errFileNotFound) throw;
    }
}

std::unique_ptr<FileCalls::Output> WindowsFileCalls::create(const std::string& path) {
    return std::make_unique<WindowsOutput>(windows_, systemPath(path));
}

// Not ReplaceFile, which moves the old file away and then the new one in: a process that is killed in between leaves
// nothing under the name.
void WindowsFileCalls::replace(const std::string& from, const std::string& to) {
    const std::wstring draft = systemPath(from);
    const std::wstring target = systemPath(to);
    if (windows_.attributes(target) != INVALID_FILE_ATTRIBUTES) {
        // As far as it goes: a case that cannot keep a mark of its file is saved without it. The rights come last, as
        // they may forbid the rest.
        windows_.copyAttributes(target, draft);
        windows_.copyRights(target, draft);
    }
    // A virus scanner or an indexer holds a file for a moment when it has just been written.
    for (const DWORD wait : {10UL, 20UL, 40UL, 80UL, 0UL}) {
        if (windows_.moveOver(draft, target)) return;
        const DWORD code = GetLastError();
        const bool held =
            code == ERROR_ACCESS_DENIED || code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION;
        if (!held || wait == 0) failWith(code);
        windows_.pause(wait);
    }
}

void WindowsFileCalls::remove(const std::string& path) {
    if (!windows_.remove(systemPath(path))) fail();
}

bool WindowsFileCalls::same(const std::string& a, const std::string& b) {
    const std::wstring first = windows_.truePath(systemPath(a));
    const std::wstring second = windows_.truePath(systemPath(b));
    return !first.empty() && !second.empty() &&
           CompareStringOrdinal(first.c_str(), -1, second.c_str(), -1, TRUE) == CSTR_EQUAL;
}

bool WindowsFileCalls::exists(const std::string& path) {
    return windows_.attributes(systemPath(path)) != INVALID_FILE_ATTRIBUTES;
}

std::int64_t WindowsFileCalls::lastWritten(const std::string& path) {
    FILETIME time{};
    if (!windows_.lastWritten(systemPath(path), time)) fail();
    return (std::int64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
}

std::string WindowsFileCalls::lastWrittenText(const std::string& path) {
    FILETIME time{};
    if (!windows_.lastWritten(systemPath(path), time)) fail();
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    if (!FileTimeToSystemTime(&time, &universal) ||
        !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
        fail();
    return dateAndTime(local);
}

} // namespace varno::win32

namespace varno {

FileCalls& systemFileCalls() {
    static win32::FileFunctions functions;
    static win32::WindowsFileCalls calls(functions);
    return calls;
}

} // namespace varno
