// Every function of Windows that a save or a read calls fails in turn, with every error that the program tells apart.
#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <optional>

#include "base/file.h"
#include "base/run_time_error.h"
#include "support/memory_files.h"
#include "support/temporary_folder.h"
#include "win32/win32_file_calls.h"

namespace varno {

namespace {

using testing::errorOf;
using testing::TemporaryFolder;

constexpr std::array<DWORD, 30> codes{
    ERROR_FILE_NOT_FOUND,
    ERROR_PATH_NOT_FOUND,
    ERROR_TOO_MANY_OPEN_FILES,
    ERROR_ACCESS_DENIED,
    ERROR_INVALID_HANDLE,
    ERROR_NOT_ENOUGH_MEMORY,
    ERROR_INVALID_DRIVE,
    ERROR_WRITE_PROTECT,
    ERROR_NOT_READY,
    ERROR_CRC,
    ERROR_SEEK,
    ERROR_WRITE_FAULT,
    ERROR_READ_FAULT,
    ERROR_GEN_FAILURE,
    ERROR_SHARING_VIOLATION,
    ERROR_LOCK_VIOLATION,
    ERROR_HANDLE_DISK_FULL,
    ERROR_BAD_NETPATH,
    ERROR_NETNAME_DELETED,
    ERROR_NETWORK_ACCESS_DENIED,
    ERROR_BAD_NET_NAME,
    ERROR_FILE_EXISTS,
    ERROR_INVALID_PARAMETER,
    ERROR_DISK_FULL,
    ERROR_INVALID_NAME,
    ERROR_ALREADY_EXISTS,
    ERROR_FILENAME_EXCED_RANGE,
    ERROR_OPERATION_ABORTED,
    ERROR_IO_DEVICE,
    ERROR_DEVICE_NOT_CONNECTED,
};

struct Fault {
    int place = 0; ///< among all calls, from 0
    DWORD code = 0;
    bool lasting = false; ///< that function goes on failing
};

// The functions of Windows, the one at `place` failing.
class FaultyFunctions : public win32::FileFunctions {
  public:
    explicit FaultyFunctions(const Fault& fault) : fault_(fault) {}

    HANDLE open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition) override {
        return fails("open") ? INVALID_HANDLE_VALUE : FileFunctions::open(path, access, share, disposition);
    }
    bool isDisk(HANDLE file) override { return !fails("isDisk") && FileFunctions::isDisk(file); }
    bool read(HANDLE file, void* bytes, DWORD size, DWORD& done) override {
        return !fails("read") && FileFunctions::read(file, bytes, size, done);
    }
    bool write(HANDLE file, const void* bytes, DWORD size, DWORD& done) override {
        if (!fails("write")) return FileFunctions::write(file, bytes, size, done);
        // Half of it may have been written.
        FileFunctions::write(file, bytes, size / 2, done);
        SetLastError(fault_.code);
        return false;
    }
    // A real one takes the disk's own time, two thousand times.
    bool flush(HANDLE) override { return !fails("flush"); }
    bool close(HANDLE file) override {
        const bool failing = fails("close");
        const bool closed = FileFunctions::close(file);
        if (failing) SetLastError(fault_.code);
        return !failing && closed;
    }
    DWORD attributes(const std::wstring& path) override {
        return fails("attributes") ? INVALID_FILE_ATTRIBUTES : FileFunctions::attributes(path);
    }
    bool remove(const std::wstring& path) override { return !fails("remove") && FileFunctions::remove(path); }
    bool moveOver(const std::wstring& from, const std::wstring& to) override {
        return !fails("moveOver") && FileFunctions::moveOver(from, to);
    }
    void pause(DWORD milliseconds) override { paused += milliseconds; }
    bool copyAttributes(const std::wstring& from, const std::wstring& to) override {
        return !fails("copyAttributes") && FileFunctions::copyAttributes(from, to);
    }
    bool copyRights(const std::wstring& from, const std::wstring& to) override {
        return !fails("copyRights") && FileFunctions::copyRights(from, to);
    }

    std::string failed; ///< the function that failed, empty when none did
    DWORD paused = 0;

  private:
    bool fails(const std::string& function) {
        const int place = place_++;
        if (place != fault_.place && !(fault_.lasting && place > fault_.place && function == failed))
            return false;
        failed = function;
        SetLastError(fault_.code);
        return true;
    }

    Fault fault_;
    int place_ = 0;
};

constexpr const char* oldContent = "det gamla fallet\r\n";
constexpr const char* newContent = "det nya fallet, som \xE4r l\xE4ngre\r\n";

class FileFaults : public ::testing::Test {
  protected:
    static int save(win32::FileFunctions& functions, const std::string& path) {
        win32::WindowsFileCalls calls(functions);
        return errorOf([&] {
            File file(calls, path, FileMode::output, 0, 1);
            file.printLine("det nya fallet, som \xE4r l\xE4ngre");
            file.close();
        });
    }

    static int errorFor(const std::string& function, DWORD code) {
        if (function == "isDisk") return errBadFileNameOrNumber;
        // A draft cannot be missing, its folder can.
        if (function == "open" && code == ERROR_FILE_NOT_FOUND) return errPathNotFound;
        return runTimeErrorOfWindowsCode(code);
    }

    // One save under one fault; false when the fault lies behind its last call.
    bool saveUnder(const Fault& fault, bool exists) {
        if (exists) folder.write("FALL.IND", oldContent);
        FaultyFunctions functions(fault);
        const int error = save(functions, folder.path("FALL.IND"));
        if (functions.failed.empty()) return false;
        ++trials;

        SCOPED_TRACE(functions.failed + " failed with " + std::to_string(fault.code) +
                     (fault.lasting ? ", again and again" : ", once"));
        const bool there = std::filesystem::exists(folder.file("FALL.IND"));
        if (error != 0) {
            EXPECT_EQ(error, errorFor(functions.failed, fault.code));
            EXPECT_EQ(there, exists);
        }
        EXPECT_TRUE(there || error != 0);
        if (there) {
            EXPECT_EQ(folder.read("FALL.IND"), error == 0 ? newContent : oldContent);
        }
        // What cannot be removed stays behind, and nothing else does. (What is no disk file lies on no disk.)
        const bool draft = std::filesystem::exists(folder.file("FALL.IND.~tmp"));
        EXPECT_TRUE(!draft || functions.failed == "remove" || functions.failed == "isDisk");
        EXPECT_EQ(folder.count(), (there ? 1u : 0u) + (draft ? 1u : 0u));
        std::filesystem::remove(folder.file("FALL.IND.~tmp"));
        std::filesystem::remove(folder.file("FALL.IND"));
        return true;
    }

    TemporaryFolder folder;
    int trials = 0;
};

TEST_F(FileFaults, LeaveTheOldCaseOrTheNewOneWhole) {
    for (const bool exists : {true, false}) {
        for (const bool lasting : {true, false}) {
            for (const DWORD code : codes) {
                for (int place = 0; saveUnder({place, code, lasting}, exists); ++place) {
                }
                if (HasFailure()) return;
            }
        }
    }
    RecordProperty("trials", trials);
    std::printf("%d saves, one system call failing in each\n", trials);
    EXPECT_GT(trials, 1000);
}

TEST_F(FileFaults, OfAReadAreReported) {
    folder.write("FALL.IND", oldContent);
    for (const DWORD code : codes) {
        for (int place = 0;; ++place) {
            FaultyFunctions functions({place, code, false});
            win32::WindowsFileCalls calls(functions);
            std::string read;
            const int error = errorOf([&] { read = calls.readAll(folder.path("FALL.IND")); });
            if (functions.failed.empty()) break;
            // Everything was read before it was closed.
            if (functions.failed == "close") {
                EXPECT_EQ(read, oldContent);
            } else {
                EXPECT_EQ(error, functions.failed == "isDisk" ? errBadFileNameOrNumber + 0
                                                              : runTimeErrorOfWindowsCode(code));
            }
        }
    }
    EXPECT_EQ(folder.read("FALL.IND"), oldContent);
}

TEST_F(FileFaults, ShorterThanAskedForIsWrittenOn) {
    struct : win32::FileFunctions {
        bool write(HANDLE file, const void* bytes, DWORD size, DWORD& done) override {
            return FileFunctions::write(file, bytes, size < 3 ? size : 3, done);
        }
    } functions;
    EXPECT_EQ(save(functions, folder.path("FALL.IND")), 0);
    EXPECT_EQ(folder.read("FALL.IND"), newContent);
}

TEST_F(FileFaults, WhatAFileHasBesideItsContentIsOnTheDraftBeforeItIsRenamed) {
    struct : win32::FileFunctions {
        bool note(const char* what, const std::wstring& from, const std::wstring& to) {
            const bool ontoDraft = !from.ends_with(L".~tmp") && to.ends_with(L".IND.~tmp");
            said += std::string(what) + (ontoDraft ? " " : "! ");
            return true;
        }
        bool copyAttributes(const std::wstring& from, const std::wstring& to) override {
            return note("attributes", from, to) && FileFunctions::copyAttributes(from, to);
        }
        bool copyRights(const std::wstring& from, const std::wstring& to) override {
            return note("rights", from, to) && FileFunctions::copyRights(from, to);
        }
        bool flush(HANDLE file) override {
            said += "flush ";
            return FileFunctions::flush(file);
        }
        bool moveOver(const std::wstring& from, const std::wstring& to) override {
            said += "rename";
            return FileFunctions::moveOver(from, to);
        }
        std::string said;
    } functions;
    folder.write("FALL.IND", oldContent);
    EXPECT_EQ(save(functions, folder.path("FALL.IND")), 0);
    EXPECT_EQ(functions.said, "flush attributes rights rename");
    functions.said.clear();
    EXPECT_EQ(save(functions, folder.path("NY.IND")), 0);
    EXPECT_EQ(functions.said, "flush rename");
}

TEST_F(FileFaults, NothingWrittenAtAllIsAFullDisk) {
    struct : win32::FileFunctions {
        bool write(HANDLE, const void*, DWORD, DWORD& done) override {
            done = 0;
            return true;
        }
    } functions;
    folder.write("FALL.IND", oldContent);
    EXPECT_EQ(save(functions, folder.path("FALL.IND")), errDiskFull);
    EXPECT_EQ(folder.read("FALL.IND"), oldContent);
    EXPECT_EQ(folder.count(), 1u);
}

// A virus scanner looks into every file that has just been written.
TEST_F(FileFaults, AFileHeldForAMomentIsWaitedFor) {
    struct : win32::FileFunctions {
        bool moveOver(const std::wstring& from, const std::wstring& to) override {
            if (held-- <= 0) return FileFunctions::moveOver(from, to);
            SetLastError(ERROR_SHARING_VIOLATION);
            return false;
        }
        void pause(DWORD milliseconds) override { paused += milliseconds; }
        int held = 3;
        DWORD paused = 0;
    } functions;
    EXPECT_EQ(save(functions, folder.path("FALL.IND")), 0);
    EXPECT_EQ(folder.read("FALL.IND"), newContent);
    EXPECT_GT(functions.paused, 0u);
}

TEST_F(FileFaults, AFileOpenInAnotherProgramIsError70AndStays) {
    folder.write("FALL.IND", oldContent);
    const HANDLE other = CreateFileW(folder.file("FALL.IND").wstring().c_str(), GENERIC_READ, FILE_SHARE_READ,
                                     nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    win32::FileFunctions functions;
    EXPECT_EQ(save(functions, folder.path("FALL.IND")), errPermissionDenied);
    CloseHandle(other);
    EXPECT_EQ(folder.read("FALL.IND"), oldContent);
    EXPECT_EQ(folder.count(), 1u);
    EXPECT_EQ(save(functions, folder.path("FALL.IND")), 0);
}

TEST_F(FileFaults, ADeviceIsNoFile) {
    win32::FileFunctions functions;
    win32::WindowsFileCalls calls(functions);
    EXPECT_EQ(save(functions, "NUL"), errBadFileNameOrNumber);
    EXPECT_EQ(errorOf([&] { calls.readAll("NUL"); }), errBadFileNameOrNumber);
    EXPECT_NE(save(functions, "CON"), 0);
    EXPECT_NE(errorOf([&] { calls.readAll("CON"); }), 0);
}

TEST_F(FileFaults, AMissingDriveIsTold) {
    win32::FileFunctions functions;
    EXPECT_EQ(save(functions, "B:\\FALL.IND"), errPathNotFound);
    EXPECT_EQ(save(functions, folder.path("borta\\FALL.IND")), errPathNotFound);
}

} // namespace

} // namespace varno
