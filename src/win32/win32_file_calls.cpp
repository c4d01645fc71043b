// The file calls of Windows.
#include <windows.h>

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

    void replace(const std::string& from, const std::string& to) override {
        // ReplaceFile keeps the attributes and rights of the old file. It needs a backup name: without one it
        // can fail half-way (error 1176) and leave neither file under its name.
        const std::wstring target = wide(to);
        const std::wstring draft = wide(from);
        const std::wstring backup = target + L".~bak";
        if (exists(to)) {
            if (ReplaceFileW(target.c_str(), draft.c_str(), backup.c_str(), 0, nullptr, nullptr)) {
                DeleteFileW(backup.c_str());
                return;
            }
            // Left half done the old file stands under the backup's name: put it back before going on.
            if (!exists(to)) MoveFileExW(backup.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH);
        }
        // File systems without ReplaceFile (and a target that is new) take this way.
        if (!MoveFileExW(draft.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            fail();
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
