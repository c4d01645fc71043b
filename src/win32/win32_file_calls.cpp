// The file calls of Windows.
#include <windows.h>

#include <array>
#include <vector>

#include "base/file_calls.h"
#include "base/run_time_error.h"
#include "win32/strings.h"
#include "win32/unique.h"

namespace varno {

namespace {

using win32::UniqueHandle;
using win32::wide;

[[noreturn]] void failWith(DWORD code) {
    throw RunTimeError(runTimeErrorOfWindowsCode(code));
}
[[noreturn]] void fail() {
    failWith(GetLastError());
}

UniqueHandle openHandle(const std::string& path, DWORD access, DWORD share, DWORD disposition) {
    const HANDLE handle =
        CreateFileW(wide(path).c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) fail();
    return UniqueHandle(handle);
}

// Where a file really lies: whole, with its long names, whatever drive letter or letter case led to it. Empty when
// there is none.
std::wstring truePath(const std::string& path) {
    constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle = CreateFileW(wide(path).c_str(), 0, share, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return {};
    const UniqueHandle file(handle);
    std::wstring text(32768, L'\0');
    text.resize(GetFinalPathNameByHandleW(file.get(), text.data(), static_cast<DWORD>(text.size()), 0));
    return text;
}

class WindowsOutput : public FileCalls::Output {
  public:
    explicit WindowsOutput(const std::string& path)
        : file_(openHandle(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS)) {}

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            constexpr std::size_t block = 1 << 20;
            DWORD done = 0;
            const auto count = static_cast<DWORD>(bytes.size() < block ? bytes.size() : block);
            if (!WriteFile(file_.get(), bytes.data(), count, &done, nullptr)) fail();
            if (done == 0) failWith(ERROR_DISK_FULL);
            bytes.remove_prefix(done);
        }
    }
    void flush() override {
        if (!FlushFileBuffers(file_.get())) fail();
    }
    void close() override {
        if (file_ && !CloseHandle(file_.release())) fail();
    }

  private:
    UniqueHandle file_;
};

// What a user gave the old file beside its content. As far as it goes: a case that cannot keep a mark of its file is
// saved without it. The rights come last, as they may forbid the rest.
void carryOver(const std::wstring& from, const std::wstring& to) {
    const DWORD attributes = GetFileAttributesW(from.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    SetFileAttributesW(to.c_str(), (attributes & kept) | FILE_ATTRIBUTE_ARCHIVE);

    DWORD size = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<unsigned char> rights(size);
    if (size != 0 && GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size))
        SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, rights.data());
}

class WindowsFileCalls : public FileCalls {
  public:
    Bytes readAll(const std::string& path) override {
        const UniqueHandle file = openHandle(
            path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
        Bytes bytes;
        char block[65536];
        while (true) {
            DWORD done = 0;
            if (!ReadFile(file.get(), block, sizeof block, &done, nullptr)) fail();
            if (done == 0) return bytes;
            bytes.append(block, done);
        }
    }

    void checkWritable(const std::string& path) override {
        // The attribute is asked for itself: an administrator's open of a read-only file need not fail.
        const DWORD attributes = GetFileAttributesW(wide(path).c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
            failWith(ERROR_ACCESS_DENIED);
        }
        const HANDLE handle =
            CreateFileW(wide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle == INVALID_HANDLE_VALUE) {
            if (GetLastError() != ERROR_FILE_NOT_FOUND) fail();
            return;
        }
        const UniqueHandle file(handle);
    }

    std::unique_ptr<Output> create(const std::string& path) override {
        return std::make_unique<WindowsOutput>(path);
    }

    // Not ReplaceFile, which moves the old file away and then the new one in: a program that is killed in between
    // leaves nothing under the name.
    void replace(const std::string& from, const std::string& to) override {
        const std::wstring draft = wide(from);
        const std::wstring target = wide(to);
        carryOver(target, draft);
        // A virus scanner or an indexer holds a file for a moment when it has just been written.
        for (const DWORD pause : std::array<DWORD, 5>{10, 20, 40, 80, 0}) {
            if (MoveFileExW(draft.c_str(), target.c_str(),
                            MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
                return;
            const DWORD code = GetLastError();
            if (pause == 0 || (code != ERROR_ACCESS_DENIED && code != ERROR_SHARING_VIOLATION))
                failWith(code);
            Sleep(pause);
        }
    }

    void remove(const std::string& path) override {
        if (!DeleteFileW(wide(path).c_str())) fail();
    }

    bool same(const std::string& a, const std::string& b) override {
        const std::wstring first = truePath(a);
        const std::wstring second = truePath(b);
        return !first.empty() && !second.empty() &&
               CompareStringOrdinal(first.c_str(), -1, second.c_str(), -1, TRUE) == CSTR_EQUAL;
    }

    bool exists(const std::string& path) override {
        return GetFileAttributesW(wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
    }
};

} // namespace

FileCalls& systemFileCalls() {
    static WindowsFileCalls calls;
    return calls;
}

} // namespace varno
