// Programs on Linux. Signals are not handled but waited for: blocked from the first start on, they are taken one by one
// where there is time for them, and nothing runs in a handler.
#include "tool/engine_host.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "base/run_time_error.h"

namespace varno::tool {

namespace {

constexpr std::array endSignals{SIGINT, SIGTERM, SIGHUP};

sigset_t waitedFor() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGCHLD);
    for (const int signal : endSignals)
        sigaddset(&set, signal);
    return set;
}

class FileLock : public EngineHost::Lock {
  public:
    FileLock(int file, std::string path) : file_(file), path_(std::move(path)) {}
    ~FileLock() override {
        if (!path_.empty()) ::unlink(path_.c_str());
        ::close(file_);
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// The file still stands under its name: another process may have removed it between opening and locking.
    bool stands() const {
        struct stat ours {};
        struct stat named {};
        return ::fstat(file_, &ours) == 0 && ::stat(path_.c_str(), &named) == 0 &&
               ours.st_ino == named.st_ino && ours.st_dev == named.st_dev;
    }
    void forget() { path_.clear(); }

  private:
    int file_;
    std::string path_;
};

class PosixEngines : public EngineHost {
  public:
    int start(const std::vector<std::string>& words, const std::string& folder,
              const std::string& output) override {
        blockSignals();
        int report[2];
        if (::pipe2(report, O_CLOEXEC) != 0) throw RunTimeError(runTimeErrorOfErrno(errno));
        std::vector<char*> arguments;
        for (const std::string& word : words)
            arguments.push_back(const_cast<char*>(word.c_str()));
        arguments.push_back(nullptr);
        const pid_t parent = ::getpid();
        const pid_t child = ::fork();
        if (child == 0) becomeProgram(arguments.data(), folder.c_str(), output.c_str(), report[1], parent);
        const int forkError = errno;
        ::close(report[1]);
        int error = child < 0 ? forkError : 0;
        if (child > 0 && ::read(report[0], &error, sizeof error) > 0) ::waitpid(child, nullptr, 0);
        ::close(report[0]);
        if (error != 0) throw RunTimeError(runTimeErrorOfErrno(error));
        children_.push_back(child);
        return child;
    }

    std::optional<Ended> wait(std::optional<Milliseconds> longest) override {
        if (const auto ended = reap()) return ended;
        const sigset_t set = waitedFor();
        const auto time = longest.value_or(Milliseconds(60000));
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
        const timespec limit{.tv_sec = seconds.count(),
                             .tv_nsec = std::chrono::nanoseconds(time - seconds).count()};
        const int signal = ::sigtimedwait(&set, nullptr, &limit);
        if (std::ranges::find(endSignals, signal) != endSignals.end()) interrupted_ = true;
        return reap();
    }

    void end(int child) override {
        // The child leads a group of its own, so that what it started goes with it.
        ::kill(-child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        std::erase(children_, child);
    }

    bool interrupted() const override { return interrupted_; }

    Milliseconds now() const override {
        return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
    }

    int cores() const override { return std::max(1, static_cast<int>(std::thread::hardware_concurrency())); }

    int mostAtOnce() const override { return 10000; }

    std::unique_ptr<Lock> tryLock(const std::string& path) override {
        while (true) {
            const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
            if (file < 0) throw RunTimeError(runTimeErrorOfErrno(errno)).about(path, FileAction::writing);
            if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
                ::close(file);
                return nullptr;
            }
            auto lock = std::make_unique<FileLock>(file, path);
            if (lock->stands()) return lock;
            // Not ours to remove: the name may be that of another's lock by now.
            lock->forget();
        }
    }

  private:
    void blockSignals() {
        if (blocked_) return;
        blocked_ = true;
        std::signal(SIGCHLD, SIG_DFL);
        const sigset_t set = waitedFor();
        ::sigprocmask(SIG_BLOCK, &set, &before_);
    }

    // Runs in the child: only what may be called between fork and exec.
    [[noreturn]] void becomeProgram(char* const* words, const char* folder, const char* output, int report,
                                    pid_t parent) const {
        ::setpgid(0, 0);
        // However varnotool ends, its engines do not go on alone.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent) ::_exit(1);
        ::sigprocmask(SIG_SETMASK, &before_, nullptr);
        const int in = ::open("/dev/null", O_RDONLY);
        bool ready = in >= 0 && ::chdir(folder) == 0;
        const int out = ready ? ::open(output, O_WRONLY | O_CREAT | O_TRUNC, 0666) : -1;
        ready = out >= 0 && ::dup2(in, 0) >= 0 && ::dup2(out, 1) >= 0 && ::dup2(out, 2) >= 0;
        if (ready) ::execvp(words[0], words);
        const int error = errno;
        [[maybe_unused]] const ssize_t told = ::write(report, &error, sizeof error);
        ::_exit(127);
    }

    std::optional<Ended> reap() {
        for (const pid_t child : children_) {
            int status = 0;
            if (::waitpid(child, &status, WNOHANG) != child) continue;
            std::erase(children_, child);
            // What it left running stays: the first engine in Wine starts the services of all of them.
            if (WIFSIGNALED(status)) return Ended{child, WTERMSIG(status), true};
            return Ended{child, WEXITSTATUS(status), false};
        }
        return {};
    }

    std::vector<pid_t> children_;
    sigset_t before_{};
    bool blocked_ = false;
    bool interrupted_ = false;
};

} // namespace

EngineHost& systemEngines() {
    static PosixEngines engines;
    return engines;
}

} // namespace varno::tool
