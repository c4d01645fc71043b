#include "base/run_time_error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>

namespace varno {

namespace {

std::string lastLine(const std::string& text) {
    return text.substr(text.rfind('\n') + 1);
}

std::size_t lineCount(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
}

constexpr std::array fileErrors{6, 7, 9, 52, 53, 54, 55, 57, 58, 61, 62, 67, 68, 70, 71, 75, 76};

TEST(RunTimeError, CarriesItsNumberAndText) {
    const struct {
        int number;
        const char* text;
    } rows[] = {
        {6, "Overflow"},
        {7, "Out of memory"},
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
        EXPECT_EQ(lastLine(error.message()),
                  "Run-time error '" + std::to_string(row.number) + "': " + row.text);
    }
}

TEST(RunTimeError, SaysInSwedishWhatHappenedToWhichFileAndWhatToDo) {
    EXPECT_EQ(RunTimeError(53, {.file = R"(C:\arb\HUS.IND)", .action = FileAction::reading}).message(),
              "Filen C:\\arb\\HUS.IND finns inte.\n"
              "Filen har inte lästs in; det som fanns i programmet är kvar.\n"
              "Kontrollera namnet och mappen.\n"
              "\n"
              "Run-time error '53': File not found");
    EXPECT_EQ(
        RunTimeError(75, {.file = R"(C:\arb\HUS.IND)", .action = FileAction::writing}).message(),
        "Åtkomst nekad till C:\\arb\\HUS.IND: det är en mapp, en skrivskyddad fil eller en fil som Du saknar "
        "rättigheter till.\n"
        "Filen har inte sparats. Fanns den förut är den oförändrad, och det som skulle sparas finns kvar i "
        "programmet.\n"
        "Ta bort skrivskyddet, eller välj ett annat namn eller en annan mapp.\n"
        "\n"
        "Run-time error '75': Path/File access error");
}

TEST(RunTimeError, TellsWhyAFileDidNotOpenUnderTheNumberOfItsUse) {
    const RunTimeError error(52, {.file = "HUS.IND", .action = FileAction::reading, .cause = 53});
    EXPECT_TRUE(error.message().starts_with("Filen HUS.IND finns inte.\n")) << error.message();
    EXPECT_EQ(lastLine(error.message()), "Run-time error '52': Bad file name or number");
}

TEST(RunTimeError, NamesTheFileInEveryFileError) {
    for (const int number : fileErrors) {
        for (const FileAction action : {FileAction::reading, FileAction::writing, FileAction::deleting}) {
            const std::string message = RunTimeError(number, {.file = "HUS.IND", .action = action}).message();
            EXPECT_NE(message.find("HUS.IND"), std::string::npos) << number;
            EXPECT_EQ(message.find('%'), std::string::npos) << number;
            EXPECT_EQ(lineCount(message), 5u) << message;
        }
    }
    EXPECT_TRUE(RunTimeError(6, {.file = "HUS.IND", .line = 9})
                    .message()
                    .starts_with("I filen HUS.IND står på rad 9 ett tal som är för stort.\n"));
    EXPECT_EQ(RunTimeError(62).atLine(5).atLine(6).subject().line, 5);
    // A number without words of its own, and a path with the table's own sign.
    EXPECT_TRUE(RunTimeError(999, {.file = "100%.IND"}).message().starts_with("Disken eller")) << "999";
    EXPECT_NE(RunTimeError(53, {.file = "100%.IND"}).message().find("Filen 100%.IND finns"),
              std::string::npos);
}

TEST(RunTimeError, NamesTheFieldOrSpeaksWithout) {
    EXPECT_EQ(RunTimeError(6, {.field = "Överhöjning (mm)"}).message(),
              "Talet i fältet \"Överhöjning (mm)\" är för stort.\n"
              "Fältet behåller sitt förra värde.\n"
              "Ange ett mindre tal; heltal får vara mellan -32768 och 32767.\n"
              "\n"
              "Run-time error '6': Overflow");
    for (const int number : {6, 7, 9, 11, 52, 53, 57, 61, 68, 70, 71, 75, 76, 482, 999}) {
        EXPECT_EQ(lineCount(RunTimeError(number).message()), 5u) << number;
        EXPECT_EQ(lineCount(RunTimeError(number, {.field = "Fält"}).message()), 5u) << number;
    }
    EXPECT_EQ(RunTimeError(11, {.said = "Plattan har ingen längd."}).message(),
              "Plattan har ingen längd.\n\nRun-time error '11': Division by zero");
}

TEST(RunTimeError, KeepsWhatItKnewWhenItIsToldMore) {
    const auto raise = [](const ErrorSubject& subject) { throw RunTimeError(75, subject); };
    const auto subjectOf = [&](const ErrorSubject& subject) {
        try {
            aboutField("Fält", [&] { aboutFile("yttre", FileAction::writing, [&] { raise(subject); }); });
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 75);
            return error.subject();
        }
        return ErrorSubject{};
    };
    EXPECT_EQ(subjectOf({}).file, "yttre");
    EXPECT_EQ(subjectOf({}).action, FileAction::writing);
    EXPECT_EQ(subjectOf({}).field, "Fält");
    EXPECT_EQ(subjectOf({.file = "inre", .action = FileAction::deleting}).file, "inre");
    EXPECT_EQ(subjectOf({.file = "inre", .action = FileAction::deleting}).action, FileAction::deleting);
    EXPECT_EQ(aboutFile("f", FileAction::reading, [] { return 7; }), 7);
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
        {8, 7},    // out of memory
        {14, 7},   // out of memory
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
