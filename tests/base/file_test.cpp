#include "base/file.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "support/memory_files.h"

namespace varno {

namespace {

using testing::errorOf;
using testing::MemoryFiles;

const std::string path = "A.IND";

File opened(MemoryFiles& files, FileMode mode, int recordLength = 0) {
    return File(files, path, mode, recordLength, 1);
}

void writeTwoLines(MemoryFiles& files, FileMode mode) {
    File file = opened(files, mode);
    file.printLine("one");
    file.printLine("");
    file.close();
}

// Fails the call of this place in the order of calls, cleaning up excepted.
void failCall(MemoryFiles& files, int place, int error) {
    files.fault = [place, error, calls = 0](const std::string& call, const std::string&) mutable {
        if (call == "remove") return 0;
        return calls++ == place ? error : 0;
    };
}

TEST(File, WritesLinesWithCrLf) {
    MemoryFiles files;
    files.content[path] = "old";
    writeTwoLines(files, FileMode::output);
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{path, "one\r\n\r\n"}}));
}

TEST(File, AppendsToWhatIsThere) {
    MemoryFiles files;
    files.content[path] = "old\r\n";
    writeTwoLines(files, FileMode::append);
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{path, "old\r\none\r\n\r\n"}}));

    MemoryFiles empty;
    writeTwoLines(empty, FileMode::append);
    EXPECT_EQ(empty.content[path], "one\r\n\r\n");
}

// The heart of it: whichever call fails, a case on the disk is the old one, whole, and nothing is left beside
// it.
void expectOldContentUnderEveryFault(FileMode mode, const std::optional<Bytes>& old) {
    std::map<std::string, Bytes> before;
    if (old) before[path] = *old;
    int place = 0;
    for (;; ++place) {
        MemoryFiles files;
        files.content = before;
        failCall(files, place, errDiskFull);
        if (errorOf([&] { writeTwoLines(files, mode); }) == 0) break;
        EXPECT_EQ(files.content, before) << "after " << files.calls.back() << ", failing call " << place;
    }
    // Look, draft, close the draft; then draft, write, flush, close, replace.
    EXPECT_GE(place, 8);
}

TEST(File, KeepsTheOldFileWhateverCallFails) {
    expectOldContentUnderEveryFault(FileMode::output, "old");
    expectOldContentUnderEveryFault(FileMode::append, "old");
}

TEST(File, LeavesNothingWhateverCallFails) {
    expectOldContentUnderEveryFault(FileMode::output, std::nullopt);
    expectOldContentUnderEveryFault(FileMode::append, std::nullopt);
}

TEST(File, ReportsTheErrorOfTheCallThatFailed) {
    for (const char* failing : {"checkWritable", "create", "write", "flush", "close", "replace"}) {
        MemoryFiles files;
        files.fault = [failing](const std::string& call, const std::string&) {
            return call == failing ? errDiskFull : 0;
        };
        EXPECT_EQ(errorOf([&] { writeTwoLines(files, FileMode::output); }), errDiskFull) << failing;
    }
}

TEST(File, ReportsTheFirstErrorWhenCleaningUpFailsToo) {
    MemoryFiles files;
    files.content[path] = "old";
    files.fault = [](const std::string& call, const std::string&) {
        if (call == "remove") return errPermissionDenied + 0;
        return call == "flush" ? errDiskFull + 0 : 0;
    };
    EXPECT_EQ(errorOf([&] { writeTwoLines(files, FileMode::output); }), errDiskFull);
    EXPECT_EQ(files.content[path], "old");
}

TEST(File, FlushesBeforeItReplaces) {
    MemoryFiles files;
    writeTwoLines(files, FileMode::output);
    const auto place = [&](const std::string& call) {
        for (std::size_t i = 0; i < files.calls.size(); ++i) {
            if (files.calls[i].starts_with(call)) return static_cast<int>(i);
        }
        return -1;
    };
    EXPECT_GT(place("write"), 0);
    EXPECT_GT(place("flush"), place("write"));
    EXPECT_EQ(place("replace"), static_cast<int>(files.calls.size()) - 1);
    EXPECT_EQ(files.calls.back(), "replace " + path);
}

TEST(File, DestroyedWithoutCloseChangesNothing) {
    MemoryFiles files;
    files.content[path] = "old";
    {
        File file = opened(files, FileMode::output);
        file.printLine("half a case");
    }
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{path, "old"}}));
}

TEST(File, IsMovedWithItsContent) {
    MemoryFiles files;
    File first = opened(files, FileMode::output);
    first.printLine("one");
    File second(std::move(first));
    second.printLine("two");
    File third;
    third = std::move(second);
    third.printLine("three");
    EXPECT_EQ(third.number(), 1);
    third.close();
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{path, "one\r\ntwo\r\nthree\r\n"}}));
}

TEST(File, OverwrittenByAnotherLetsItsDraftGo) {
    MemoryFiles files;
    File file = opened(files, FileMode::output);
    file.printLine("lost");
    file = File();
    EXPECT_EQ(file.number(), 0);
    EXPECT_TRUE(files.content.empty());
}

TEST(File, ClosedTwiceWritesOnce) {
    MemoryFiles files;
    File file = opened(files, FileMode::output);
    file.close();
    files.content[path] = "someone else's";
    file.close();
    EXPECT_EQ(files.content[path], "someone else's");
}

TEST(File, WithoutNumberRaisesError52) {
    MemoryFiles files;
    files.content[path] = "a\r\n";
    File closed = opened(files, FileMode::input);
    closed.close();
    File none;
    for (File* file : {&closed, &none}) {
        EXPECT_EQ(file->number(), 0);
        EXPECT_EQ(errorOf([&] { file->readField(); }), errBadFileNameOrNumber);
        EXPECT_EQ(errorOf([&] { file->readLine(); }), errBadFileNameOrNumber);
        EXPECT_EQ(errorOf([&] { static_cast<void>(file->atEnd()); }), errBadFileNameOrNumber);
        EXPECT_EQ(errorOf([&] { file->printLine(""); }), errBadFileNameOrNumber);
        EXPECT_EQ(errorOf([&] { file->get(1, 1); }), errBadFileNameOrNumber);
        EXPECT_EQ(errorOf([&] { file->put(1, "x"); }), errBadFileNameOrNumber);
        EXPECT_EQ(errorOf([&] { file->close(); }), 0);
    }
}

TEST(File, UsedAgainstItsModeRaisesError54) {
    MemoryFiles files;
    files.content[path] = "a\r\n";
    File input = opened(files, FileMode::input);
    EXPECT_EQ(errorOf([&] { input.printLine("x"); }), errBadFileMode);
    EXPECT_EQ(errorOf([&] { input.get(1, 1); }), errBadFileMode);
    File output = opened(files, FileMode::output);
    EXPECT_EQ(errorOf([&] { output.readField(); }), errBadFileMode);
    EXPECT_EQ(errorOf([&] { output.put(1, "x"); }), errBadFileMode);
    File binary = opened(files, FileMode::binary);
    EXPECT_EQ(errorOf([&] { binary.readLine(); }), errBadFileMode);
    EXPECT_EQ(errorOf([&] { opened(files, static_cast<FileMode>(0)); }), errBadFileMode);
    EXPECT_EQ(errorOf([&] { opened(files, static_cast<FileMode>(6)); }), errBadFileMode);
}

ErrorSubject subjectOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.subject();
    }
    ADD_FAILURE() << "no error";
    return {};
}

TEST(File, NamesItselfInItsErrors) {
    for (const char* failing : {"checkWritable", "create", "write", "flush", "close", "replace"}) {
        MemoryFiles files;
        files.fault = [failing](const std::string& call, const std::string&) {
            return call == failing ? errDiskFull : 0;
        };
        const ErrorSubject subject = subjectOf([&] { writeTwoLines(files, FileMode::output); });
        EXPECT_EQ(subject.file, path) << failing;
        EXPECT_EQ(subject.action, FileAction::writing) << failing;
    }
    MemoryFiles files;
    EXPECT_EQ(subjectOf([&] { opened(files, FileMode::input); }).file, path);
    files.content[path] = "";
    File empty = opened(files, FileMode::input);
    for (const auto& read :
         {std::function<void()>([&] { empty.readField(); }), {[&] { empty.readLine(); }}}) {
        EXPECT_EQ(subjectOf(read).file, path);
        EXPECT_EQ(subjectOf(read).action, FileAction::reading);
    }
}

TEST(File, ThatDidNotOpenTellsWhy) {
    File missing(path, FileMode::input, errFileNotFound);
    EXPECT_EQ(missing.number(), 0);
    const ErrorSubject subject = subjectOf([&] { missing.readField(); });
    EXPECT_EQ(subject.file, path);
    EXPECT_EQ(subject.cause, errFileNotFound);
    EXPECT_EQ(subject.action, FileAction::reading);
    File readOnly(path, FileMode::output, errPathFileAccess);
    EXPECT_EQ(errorOf([&] { readOnly.printLine(""); }), errBadFileNameOrNumber);
    EXPECT_EQ(subjectOf([&] { readOnly.printLine(""); }).action, FileAction::writing);
    File moved = std::move(missing);
    EXPECT_EQ(subjectOf([&] { moved.readField(); }).cause, errFileNotFound);
}

// A short text lies inside the File itself, so that it moves with it.
TEST(File, GoesOnReadingWhereItWasMovedTo) {
    for (const std::size_t length : {1u, 100u}) {
        MemoryFiles files;
        files.content[path] = "a,b\r\n" + Bytes(length, 'c') + "\r\nd";
        std::optional<File> first = opened(files, FileMode::input);
        EXPECT_EQ(first->readField(), "a");
        File second = *std::move(first);
        first.reset();
        EXPECT_EQ(second.readField(), "b");
        EXPECT_EQ(second.readLine(), Bytes(length, 'c'));
        EXPECT_EQ(second.readLine(), "d");
        EXPECT_TRUE(second.atEnd());
    }
}

TEST(File, GivesTheRestInOnePiece) {
    MemoryFiles files;
    files.content[path] = "a,b\r\nc\r\n";
    File file = opened(files, FileMode::input);
    EXPECT_EQ(file.readField(), "a");
    EXPECT_EQ(file.takeRest(), "b\r\nc\r\n");
    EXPECT_TRUE(file.atEnd());
    EXPECT_EQ(file.takeRest(), "");
    File none;
    EXPECT_EQ(errorOf([&] { none.takeRest(); }), errBadFileNameOrNumber);
}

TEST(File, ReadsToItsEnd) {
    MemoryFiles files;
    files.content[path] = "a,b\r\nc, d\r\n";
    File file = opened(files, FileMode::input);
    EXPECT_EQ(file.readField(), "a");
    EXPECT_EQ(file.readField(), "b");
    EXPECT_FALSE(file.atEnd());
    EXPECT_EQ(file.readLine(), "c, d");
    EXPECT_TRUE(file.atEnd());
    EXPECT_EQ(errorOf([&] { file.readField(); }), errInputPastEnd);
    file.close();
    EXPECT_EQ(files.calls, (std::vector<std::string>{"readAll " + path}));
}

TEST(File, ReadsAndWritesPlacesOfABinaryFile) {
    MemoryFiles files;
    files.content[path] = "abcdef";
    File file = opened(files, FileMode::binary);
    EXPECT_EQ(file.get(3, 2), "cd");
    EXPECT_EQ(file.get(6, 3), Bytes("f\0\0", 3));
    EXPECT_EQ(file.get(100, 1), Bytes(1, '\0'));
    EXPECT_EQ(errorOf([&] { file.get(0, 1); }), errBadFileNameOrNumber);
    file.put(5, "XYZ");
    file.put(10, "!");
    file.close();
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{path, Bytes("abcdXYZ\0\0!", 10)}}));
}

TEST(File, ReadsAndWritesRecordsOfARandomFile) {
    MemoryFiles files;
    files.content[path] = "aaaabbbbcc";
    File file = opened(files, FileMode::random, 4);
    EXPECT_EQ(file.get(2, 4), "bbbb");
    EXPECT_EQ(file.get(3, 4), Bytes("cc\0\0", 4));
    file.put(1, "XX");
    file.close();
    EXPECT_EQ(files.content[path], "XXaabbbbcc");
}

TEST(File, OnlyReadIsNotWritten) {
    MemoryFiles files;
    files.content[path] = "\xD9\xCE\xE3\x40";
    File file = opened(files, FileMode::random, 4);
    EXPECT_EQ(file.get(1, 4), "\xD9\xCE\xE3\x40");
    file.close();
    EXPECT_EQ(files.calls, (std::vector<std::string>{"readAll " + path}));
}

TEST(File, OpenedByPlaceIsMadeWhenItIsMissing) {
    MemoryFiles files;
    File file = opened(files, FileMode::random, 4);
    EXPECT_EQ(file.get(1, 4), Bytes(4, '\0'));
    file.close();
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{path, ""}}));
}

TEST(File, KeepsTheOldRecordsWhateverCallFails) {
    for (const char* failing : {"create", "write", "flush", "close", "replace"}) {
        MemoryFiles files;
        files.content[path] = "old!";
        File file = opened(files, FileMode::random, 4);
        file.put(1, "new!");
        files.fault = [failing](const std::string& call, const std::string&) {
            return call == failing ? errDeviceIo : 0;
        };
        EXPECT_EQ(errorOf([&] { file.close(); }), errDeviceIo) << failing;
        EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{path, "old!"}})) << failing;
    }
}

} // namespace

} // namespace varno
