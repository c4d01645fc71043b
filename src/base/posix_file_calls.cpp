// The file calls of a POSIX system: for varnotool and the tests there. varno.exe uses those of Windows.
#include "base/file_calls.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "base/run_time_error.h"

namespace varno {

namespace {

std::string folderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

bool isFolder(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

// "No such file" stands for a missing folder too; only the latter is reported to the user.
[[noreturn]] void fail(const std::string& path, int code) {
    if (code == ENOENT && !isFolder(folderOf(path))) throw RunTimeError(errPathNotFound);
    throw RunTimeError(runTimeErrorOfErrno(code));
}

class Descriptor {
  public:
    Descriptor(const std::string& path, int flags)
        : path_(path), number_(::open(path.c_str(), flags | O_CLOEXEC, 0666)) {
        if (number_ < 0) fail(path, errno);
    }
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    const std::string& path() const { return path_; }
    void close() {
        const int number = number_;
        number_ = -1;
        if (::close(number) != 0) fail(path_, errno);
    }

  private:
    std::string path_;
    int number_;
};

class PosixOutput : public FileCalls::Output {
  public:
    explicit PosixOutput(const std::string& path) : file_(path, O_WRONLY | O_CREAT | O_TRUNC) {}

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t done = ::write(file_.number(), bytes.data(), bytes.size());
            if (done < 0 && errno == EINTR) continue;
            if (done < 0) fail(file_.path(), errno);
            bytes.remove_prefix(static_cast<std::size_t>(done));
        }
    }
    void flush() override {
        if (::fsync(file_.number()) != 0 && errno != EINVAL) fail(file_.path(), errno);
    }
    void close() override { file_.close(); }

  private:
    Descriptor file_;
};

class PosixFileCalls : public FileCalls {
  public:
    Bytes readAll(const std::string& path) override {
        const Descriptor file(path, O_RDONLY);
        struct stat info {};
        if (::fstat(file.number(), &info) != 0) fail(path, errno);
        if (S_ISDIR(info.st_mode)) throw RunTimeError(errPathFileAccess);
        Bytes bytes;
        bytes.reserve(std::min(static_cast<std::size_t>(info.st_size), largestFile));
        char block[65536];
        while (true) {
            const ssize_t done = ::read(file.number(), block, sizeof block);
            if (done < 0 && errno == EINTR) continue;
            if (done < 0) fail(path, errno);
            if (done == 0) return bytes;
            if (bytes.size() + static_cast<std::size_t>(done) > largestFile)
                throw RunTimeError(errOutOfMemory);
            bytes.append(block, static_cast<std::size_t>(done));
        }
    }
    void checkWritable(const std::string& path) override {
        if (exists(path)) {
            const Descriptor file(path, O_WRONLY);
        } else if (!isFolder(folderOf(path))) {
            throw RunTimeError(errPathNotFound);
        }
    }
    std::unique_ptr<Output> create(const std::string& path) override {
        return std::make_unique<PosixOutput>(path);
    }
    void replace(const std::string& from, const std::string& to) override {
        if (::rename(from.c_str(), to.c_str()) != 0) fail(to, errno);
    }
    void remove(const std::string& path) override {
        if (::unlink(path.c_str()) != 0) fail(path, errno);
    }
    bool same(const std::string& a, const std::string& b) override {
        std::error_code ignored;
        return std::filesystem::equivalent(a, b, ignored);
    }

    bool exists(const std::string& path) override {
        struct stat info {};
        return ::stat(path.c_str(), &info) == 0;
    }
    std::int64_t lastWritten(const std::string& path) override {
        struct stat info {};
        if (::stat(path.c_str(), &info) != 0) fail(path, errno);
        constexpr std::int64_t nanoseconds = 1'000'000'000;
        return info.st_mtim.tv_sec * nanoseconds + info.st_mtim.tv_nsec;
    }
    std::string lastWrittenText(const std::string& path) override {
        struct stat info {};
        if (::stat(path.c_str(), &info) != 0) fail(path, errno);
        std::tm local{};
        ::localtime_r(&info.st_mtim.tv_sec, &local);
        std::array<char, 32> text{};
        return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local)};
    }
};

} // namespace

FileCalls& systemFileCalls() {
    static PosixFileCalls calls;
    return calls;
}

} // namespace varno
