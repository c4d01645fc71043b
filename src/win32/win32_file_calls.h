#pragma once

#include <windows.h>

#include <string>

#include "base/file_calls.h"

namespace varno::win32 {

/// The functions of Windows that WindowsFileCalls is made of, each failing with GetLastError as Windows does. They
/// come in through this table so that a test can let any one of them fail with any error.
class FileFunctions {
  public:
    virtual ~FileFunctions() = default;
    /// INVALID_HANDLE_VALUE when it fails.
    virtual HANDLE open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition) {
        return CreateFileW(path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    virtual bool isDisk(HANDLE file) { return GetFileType(file) == FILE_TYPE_DISK; }
    virtual bool read(HANDLE file, void* bytes, DWORD size, DWORD& done) {
        return ReadFile(file, bytes, size, &done, nullptr) != FALSE;
    }
    virtual bool write(HANDLE file, const void* bytes, DWORD size, DWORD& done) {
        return WriteFile(file, bytes, size, &done, nullptr) != FALSE;
    }
    virtual bool flush(HANDLE file) { return FlushFileBuffers(file) != FALSE; }
    virtual bool close(HANDLE file) { return CloseHandle(file) != FALSE; }
    /// INVALID_FILE_ATTRIBUTES when it fails.
    virtual DWORD attributes(const std::wstring& path) { return GetFileAttributesW(path.c_str()); }
    /// Where a file really lies: whole, with its long names, whatever drive letter or letter case led to it. Empty
    /// when there is none.
    virtual std::wstring truePath(const std::wstring& path);
    virtual bool lastWritten(const std::wstring& path, FILETIME& time);
    virtual bool remove(const std::wstring& path) { return DeleteFileW(path.c_str()) != FALSE; }

    /// Renames over a file that is there, in one step.
    virtual bool moveOver(const std::wstring& from, const std::wstring& to);
    /// Lets some time pass before a rename is tried again.
    virtual void pause(DWORD milliseconds) { Sleep(milliseconds); }

    /// What a user gave a file beside its content, from one file to another.
    virtual bool copyAttributes(const std::wstring& from, const std::wstring& to);
    virtual bool copyRights(const std::wstring& from, const std::wstring& to);
};

/// The file calls of Windows.
class WindowsFileCalls : public FileCalls {
  public:
    explicit WindowsFileCalls(FileFunctions& functions) : windows_(functions) {}

    Bytes readAll(const std::string& path) override;
    void checkWritable(const std::string& path) override;
    std::unique_ptr<Output> create(const std::string& path) override;
    void replace(const std::string& from, const std::string& to) override;
    void remove(const std::string& path) override;
    bool exists(const std::string& path) override;
    bool same(const std::string& a, const std::string& b) override;
    std::int64_t lastWritten(const std::string& path) override;
    std::string lastWrittenText(const std::string& path) override;

  private:
    FileFunctions& windows_;
};

} // namespace varno::win32
