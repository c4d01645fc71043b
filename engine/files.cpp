#include "engine/files.h"

#include <cstdio>
#include <memory>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <cerrno>
#include <unistd.h>
#endif

namespace varnowb {
namespace {

constexpr std::size_t kLargestFile = 1 << 20;

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

#ifdef _WIN32

std::wstring wide(const std::string& utf8) {
    const int length = static_cast<int>(utf8.size());
    std::wstring text(utf8.size(), L'\0');
    const int used = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, text.data(), length);
    text.resize(static_cast<std::size_t>(used));
    return text;
}

File openForReading(const std::string& name) {
    return File{_wfopen(wide(name).c_str(), L"rb")};
}
File openForWriting(const std::string& name) {
    return File{_wfopen(wide(name).c_str(), L"wb")};
}
bool flushToDisk(std::FILE* file) {
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}

bool rename(const std::string& from, const std::string& to) {
    return MoveFileExW(wide(from).c_str(), wide(to).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool remove(const std::string& name) {
    return DeleteFileW(wide(name).c_str()) != 0 || GetLastError() == ERROR_FILE_NOT_FOUND;
}

#else

File openForReading(const std::string& name) {
    return File{std::fopen(name.c_str(), "rb")};
}
File openForWriting(const std::string& name) {
    return File{std::fopen(name.c_str(), "wb")};
}
bool flushToDisk(std::FILE* file) {
    return std::fflush(file) == 0 && fsync(fileno(file)) == 0;
}
bool rename(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}
bool remove(const std::string& name) {
    return unlink(name.c_str()) == 0 || errno == ENOENT;
}

#endif

} // namespace

std::optional<std::string> readFile(const std::string& name) {
    const File file = openForReading(name);
    if (!file) return {};
    std::string bytes(kLargestFile + 1, '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    if (std::ferror(file.get()) != 0 || bytes.size() > kLargestFile) return {};
    return bytes;
}

bool writeFile(const std::string& name, std::string_view bytes) {
    File file = openForWriting(name);
    if (!file) return false;
    bool written =
        std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() && flushToDisk(file.get());
    // A full network disk may report itself first when the file is closed.
    written = std::fclose(file.release()) == 0 && written;
    if (!written) removeFile(name);
    return written;
}

bool replaceFile(const std::string& written, const std::string& name) {
    if (rename(written, name)) return true;
    removeFile(written);
    return false;
}

bool removeFile(const std::string& name) {
    return remove(name);
}

} // namespace varnowb
