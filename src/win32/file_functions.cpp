#include <windows.h>

#include <vector>

#include "win32/unique.h"
#include "win32/win32_file_calls.h"

namespace varno::win32 {

std::wstring FileFunctions::truePath(const std::wstring& path) {
    constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle =
        CreateFileW(path.c_str(), 0, share, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return {};
    const UniqueHandle file(handle);
    std::wstring text(32768, L'\0');
    text.resize(GetFinalPathNameByHandleW(file.get(), text.data(), static_cast<DWORD>(text.size()), 0));
    return text;
}

bool FileFunctions::lastWritten(const std::wstring& path, FILETIME& time) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return false;
    time = data.ftLastWriteTime;
    return true;
}

bool FileFunctions::moveOver(const std::wstring& from, const std::wstring& to) {
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

bool FileFunctions::copyAttributes(const std::wstring& from, const std::wstring& to) {
    const DWORD all = GetFileAttributesW(from.c_str());
    if (all == INVALID_FILE_ATTRIBUTES) return false;
    constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    // A file that was written is one to archive.
    return SetFileAttributesW(to.c_str(), (all & kept) | FILE_ATTRIBUTE_ARCHIVE) != FALSE;
}

bool FileFunctions::copyRights(const std::wstring& from, const std::wstring& to) {
    DWORD size = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<unsigned char> descriptor(size);
    if (size == 0 ||
        !GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size))
        return false;
    // Rights that came from the folder go on coming from it.
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    if (GetSecurityDescriptorControl(descriptor.data(), &control, &revision) &&
        (control & SE_DACL_AUTO_INHERITED) != 0)
        SetSecurityDescriptorControl(descriptor.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    return SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data()) != FALSE;
}

} // namespace varno::win32
