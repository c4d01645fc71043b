#include "shell/case_messages.h"

#include <gtest/gtest.h>

#include <set>

#include "support/case_files.h"

namespace varno {
namespace {

using testing::sampleCase;
using testing::sampleFile;
using testing::sampleFileWith;
using testing::writtenCase;

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(CaseMessages, EveryLineHasANameOfItsOwn) {
    std::set<std::string> names;
    for (int line = 1; line <= 37; ++line) {
        const std::string name = fieldName({line, 0});
        EXPECT_FALSE(name.empty()) << line;
        EXPECT_TRUE(names.insert(name).second) << name;
    }
    EXPECT_TRUE(fieldName({0, 0}).empty());
    EXPECT_TRUE(fieldName({38, 0}).empty());
}

TEST(CaseMessages, FieldsAreNamedAsOnTheForm) {
    EXPECT_EQ(fieldName({2, 0}), "Rubrik");
    EXPECT_EQ(fieldName({6, 2}), "Spännvidd (m), fack 2");
    EXPECT_EQ(fieldName({8, 1}), "Upplagsbredd (m), stöd 0");
    EXPECT_EQ(fieldName({8, 3}), "Upplagsbredd (m), stöd 2");
    EXPECT_EQ(fieldName({12, 10}), "Permanent last (kN/m2), fack 10");
    EXPECT_EQ(fieldName({14, 0}), "Konsol vänster (m)");
    EXPECT_EQ(fieldName({29, 0}), "Initiell nedböjning");
    EXPECT_EQ(fieldName({35, 2}), "Avstånd från vänster stöd (m), linjelast 3");
}

TEST(CaseMessages, NothingLostIsNothingSaid) {
    EXPECT_EQ(savedCheckText(checkSaved(sampleCase(), sampleFile())), "");
    EXPECT_EQ(fileFaultsText("C:\\a\\HUS1.IND", checkFile(sampleFile())), "");
}

TEST(CaseMessages, OneMessageListsAllThatWasLost) {
    CaseFile caseFile = sampleCase();
    caseFile.title = "Hus, 4 plan";
    caseFile.designCase.ptjl(2) = 1234.567f;
    const std::string text = savedCheckText(checkSaved(caseFile, writtenCase(caseFile)));
    EXPECT_TRUE(holds(text, "Rubrik: \"Hus, 4 plan\" blir \"Hus\"\r\n")) << text;
    EXPECT_TRUE(holds(text, "Plattjocklek (m), fack 2: 1234,567 blir 1234,56\r\n")) << text;
    EXPECT_TRUE(holds(text, "Alla värden efter rubriken hamnar dessutom fel")) << text;
}

TEST(CaseMessages, WithoutACommaNothingMoves) {
    CaseFile caseFile = sampleCase();
    caseFile.title = "Łódź";
    const std::string text = savedCheckText(checkSaved(caseFile, writtenCase(caseFile)));
    EXPECT_TRUE(holds(text, "Rubrik: \"Łódź\" blir \"?ód?\"\r\n")) << text;
    EXPECT_FALSE(holds(text, "hamnar")) << text;
}

TEST(CaseMessages, FaultsOfAFileNameTheirLine) {
    const std::string text = fileFaultsText("C:\\a\\HUS1.IND", checkFile(sampleFileWith(16, "fyra")));
    EXPECT_TRUE(holds(text, "C:\\a\\HUS1.IND är inte som en indatafil ska vara.")) << text;
    EXPECT_TRUE(holds(text, "Rad 16 (Betongklass): \"fyra\" står där ett tal väntas.")) << text;
    EXPECT_EQ(fileFaultText(checkFile(sampleFileWith(5, "17")).front()),
              "Rad 5 (Antal Fack): \"17\" står där ett heltal från 1 till 10 väntas.");
    EXPECT_EQ(fileFaultText(checkFile(sampleFile() + "x").front()),
              "Filen har 38 rader. En indatafil har 37.");
}

TEST(CaseMessages, FileOfAnotherKindIsNamedAsSuchAndItsListEnds) {
    Bytes letter;
    for (int i = 0; i < 37; ++i)
        letter += "Hej\r\n";
    const std::string text = fileFaultsText("brev.txt", checkFile(letter));
    EXPECT_TRUE(holds(text, "brev.txt är ingen indatafil.")) << text;
    EXPECT_TRUE(holds(text, " till\r\n")) << text;
    EXPECT_LT(text.size(), 1500u);
}

} // namespace
} // namespace varno
