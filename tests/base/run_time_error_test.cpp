#include "base/run_time_error.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace varno {

namespace {

TEST(RunTimeError, CarriesItsNumberAndText) {
    const struct {
        int number;
        const char* text;
    } rows[] = {
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {54, "Bad file mode"},
        {55, "File already open"},
        {57, "Device I/O error"},
        {58, "File already exists"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {67, "Too many files"},
        {68, "Device unavailable"},
        {70, "Permission denied"},
        {71, "Disk not ready"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {999, "Application-defined or object-defined error"},
    };
    for (const auto& row : rows) {
        const RunTimeError error(row.number);
        EXPECT_EQ(error.number(), row.number);
        EXPECT_EQ(error.text(), row.text);
        EXPECT_EQ(error.message(), "Run-time error '" + std::to_string(row.number) + "': " + row.text);
    }
}

TEST(RunTimeError, IsFoundForAWindowsErrorCode) {
    const struct {
        unsigned long code;
        int number;
    } rows[] = {
        {2, 53},   // no such file
        {3, 76},   // no such folder
        {4, 67},   // too many open files
        {5, 75},   // access denied
        {15, 68},  // no such drive
        {19, 70},  // write-protected
        {21, 71},  // drive not ready
        {32, 70},  // open in another program
        {33, 70},  // locked by another program
        {38, 62},  // end of file
        {39, 61},  // disk full
        {53, 76},  // no such server
        {67, 76},  // no such share
        {80, 58},  // exists already
        {112, 61}, // disk full
        {123, 52}, // characters that no name may hold
        {183, 58}, // exists already
        {206, 52}, // name too long
        {0, 57},   {12345, 57}, {0xFFFFFFFF, 57},
    };
    for (const auto& row : rows)
        EXPECT_EQ(runTimeErrorOfWindowsCode(row.code), row.number) << row.code;
}

TEST(RunTimeError, IsFoundForAnErrnoValue) {
    const struct {
        int code;
        int number;
    } rows[] = {
        {ENOENT, 53}, {ENOTDIR, 76}, {EACCES, 75},       {EPERM, 75},  {EISDIR, 75}, {EROFS, 70}, {EBUSY, 70},
        {EMFILE, 67}, {EEXIST, 58},  {ENAMETOOLONG, 52}, {ENOSPC, 61}, {EIO, 57},    {0, 57},
    };
    for (const auto& row : rows)
        EXPECT_EQ(runTimeErrorOfErrno(row.code), row.number) << row.code;
}

} // namespace

} // namespace varno
