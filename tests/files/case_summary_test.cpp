#include "files/case_summary.h"

#include <gtest/gtest.h>

#include "support/case_files.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

constexpr const char* path = "C:\\arbete\\HUS1.IND";
constexpr const char* faulty = "Filen är inte som en indatafil ska vara.";
constexpr const char* unreadable = "Filen kan inte läsas.";

class CaseSummaryTest : public ::testing::Test {
  protected:
    std::string summaryOf(const Bytes& bytes) {
        files.content[path] = bytes;
        return caseSummary(files, path, swedish);
    }

    const NumberLocale swedish{",", " "};
    MemoryFiles files;
};

TEST_F(CaseSummaryTest, TellsTitleSpansRuleSetAndDate) {
    CaseFile file = sampleCase();
    file.title = "Kontor & Ängsgården";
    file.designCase.konsv = 1.2f;
    file.designCase.konsh = 0;
    const std::string told = summaryOf(writtenCase(file));
    const auto& c = file.designCase;
    const auto metres = [&](float v) { return formatNumber(v, "#0.00", swedish); };
    EXPECT_EQ(told, "Kontor & Ängsgården\r\n3 fack: " + metres(c.spv(1)) + " + " + metres(c.spv(2)) + " + " +
                        metres(c.spv(3)) +
                        " m, konsol vänster 1,20 m\r\nEurokod, Sverige, ändrad 2026-11-21 15:40");

    file.designCase.loadCode = 0;
    file.designCase.nfack = 1;
    file.designCase.spv(1) = 5.5f;
    file.designCase.konsv = 0;
    file.designCase.konsh = 0.8f;
    EXPECT_EQ(summaryOf(writtenCase(file)),
              "Kontor & Ängsgården\r\n1 fack: 5,50 m, konsol höger 0,80 m\r\nInget regelverk valt, ändrad "
              "2026-11-21 15:40");
}

TEST_F(CaseSummaryTest, SaysNothingOfAFileThatIsNotThere) {
    EXPECT_EQ(caseSummary(files, path, swedish), "");
}

TEST_F(CaseSummaryTest, NoFileStopsIt) {
    for (const Bytes& bytes :
         {Bytes(), Bytes("Ett recept\r\n3 ägg\r\n"), Bytes(500000, 'x'), Bytes(100, '\0'),
          sampleFileWith(5, "40000"), sampleFileWith(3, std::to_string(maxLoadCode + 1)),
          sampleFileWith(6, "1e99"), sampleFileWith(2, "Hus, med komma")})
        EXPECT_EQ(summaryOf(bytes), faulty) << bytes.substr(0, 40);
    // Cut anywhere, it is a case or told not to be one.
    const Bytes whole = sampleFile();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string told = summaryOf(whole.substr(0, length));
        EXPECT_TRUE(told == faulty || told.starts_with(sampleCase().title)) << length << ": " << told;
    }
    for (const char* call : {"readAll", "lastWritten"}) {
        files.content[path] = whole;
        files.fault = [&](const std::string& made, const std::string&) {
            return made == call ? int{errPermissionDenied} : 0;
        };
        EXPECT_EQ(caseSummary(files, path, swedish), unreadable) << call;
    }
}

} // namespace
} // namespace varno::testing
