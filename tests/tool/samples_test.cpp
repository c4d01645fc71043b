#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "support/case_files.h"
#include "support/temporary_folder.h"

// The sample cases are what the program itself writes, byte for byte.
namespace varno {

namespace {

// The folder's name is UTF-8, whatever the code page of the system is.
std::filesystem::path sampleFolder() {
    return reinterpret_cast<const char8_t*>(VARNO_SAMPLES);
}

std::vector<std::filesystem::path> samples() {
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(sampleFolder())) {
        const auto extension = entry.path().extension();
        if (extension == ".IND" || extension == ".def") found.push_back(entry.path());
    }
    return found;
}

TEST(Samples, AreWrittenAgainByteForByte) {
    EXPECT_GE(samples().size(), 4u);
    for (const auto& path : samples()) {
        const Bytes bytes = testing::contentOf(path);
        EXPECT_EQ(testing::linesOf(bytes).size(), 37u) << path;
        EXPECT_EQ(testing::writtenCase(testing::readCase(bytes)), bytes) << path;
    }
}

TEST(Samples, AreCasesThatTheFormCanShow) {
    for (const auto& path : samples()) {
        const DesignCase c = testing::readCase(testing::contentOf(path)).designCase;
        EXPECT_TRUE(c.nfack >= 1 && c.nfack <= 10) << path;
        EXPECT_TRUE(c.loadCode >= 1 && c.loadCode <= 6) << path;
        EXPECT_TRUE(c.safetyClass(c.loadCode) >= 1 && c.safetyClass(c.loadCode) <= 3) << path;
        EXPECT_TRUE(c.btg >= 1 && c.btg <= 9 && c.brandk == 1 && c.brandb >= 1 && c.brandb <= 3) << path;
        EXPECT_TRUE(c.aok >= 1 && c.aok <= 3 && c.auk >= 1 && c.auk <= 3) << path;
        EXPECT_TRUE(c.dok >= 1 && c.dok <= 5 && c.duk >= 1 && c.duk <= 5) << path;
        for (int i = 1; i <= c.nllast; ++i) {
            ASSERT_TRUE(c.llfnr(i) >= 1 && c.llfnr(i) <= c.nfack) << path;
            EXPECT_TRUE(c.avst(i) > 0 && c.avst(i) < c.spv(c.llfnr(i))) << path;
        }
    }
}

TEST(Samples, CarryTheNameOfTheirFile) {
    for (const auto& path : samples()) {
        const CaseFile caseFile = testing::readCase(testing::contentOf(path));
        if (path.extension() == ".def") {
            EXPECT_EQ(caseFile.name, "NAMNLÖS");
            continue;
        }
        const std::string stem = path.stem().string();
        EXPECT_EQ(caseFile.name, stem);
        EXPECT_LE(stem.size(), 8u);
        EXPECT_TRUE(std::all_of(stem.begin(), stem.end(), [](char c) {
            return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        })) << stem;
        EXPECT_NE(caseFile.title.find_first_of("\xC3"), std::string::npos)
            << stem << " has no Swedish letter";
    }
}

} // namespace

} // namespace varno
