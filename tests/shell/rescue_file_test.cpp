#include "shell/rescue_file.h"

#include <gtest/gtest.h>

#include "model/record_fields.h"

namespace varno {
namespace {

// Gives every number of a record another value, so that two fields cannot stand in for each other.
class Filler {
  public:
    void operator()(std::int16_t& value) {
        value = static_cast<std::int16_t>(++count_ % 2 ? count_ : -count_);
    }
    void operator()(float& value) { value = static_cast<float>(++count_) / 7; }
    void operator()(Factor& value) {
        if (++count_ % 5 == 0)
            value.reset();
        else
            value = count_ / 3.0;
    }
    template <typename T, int First, int Last>
    void operator()(BoundedArray<T, First, Last>& array) {
        for (int i = First; i <= Last; ++i)
            (*this)(array(i));
    }
    void operator()(FactorPerCategory& table) {
        for (int ruleSet = 0; ruleSet <= maxLoadCode; ++ruleSet) {
            for (int category = 0; category <= maxLoadCategory; ++category)
                (*this)(table(ruleSet, category));
        }
    }

  private:
    int count_ = 0;
};

RescuedCase filled() {
    RescuedCase rescued;
    Filler filler;
    forEachRecordField([&](const char*, auto field) { filler(rescued.designCase.*field); });
    rescued.designCase.nfack = 4;
    rescued.designCase.loadCode = 3;
    rescued.designCase.lokt = 9;
    rescued.designCase.nllast = 5;
    rescued.designCase.nllastf = 2;
    rescued.title = "\"Hus, 4\" \\n \r\n=slut= œ žŁ ”";
    rescued.currentFileName = "ÅSÖ";
    rescued.savedFileName = "ÅSÖ.IND";
    rescued.caseSaved = true;
    rescued.readFrom = "C:\\nät\\ny\\ÅSÖ.IND";
    rescued.savedTo = "\\\\server\\delat\\ÅSÖ.IND";
    rescued.directory = "C:\\nät";
    rescued.changed = "2026-11-21 15:40:07";
    return rescued;
}

TEST(RescueFile, KeepsEveryFieldAsItIs) {
    const RescuedCase rescued = filled();
    EXPECT_EQ(readRescue(rescueText(rescued)), rescued);
    EXPECT_EQ(readRescue(rescueText(rescued) + "\r\n"), rescued) << "as a file ends";
}

// A field that is added to the record and forgotten here would be lost in a rescue.
TEST(RescueFile, TableHasEveryFieldOfTheRecord) {
    std::size_t bytes = 0;
    forEachRecordField([&](const char*, auto field) { bytes += sizeof(DesignCase{}.*field); });
    EXPECT_LE(bytes, sizeof(DesignCase));
    // What is left is alignment: six integers stand before a field that wants more at the most.
    EXPECT_LT(sizeof(DesignCase) - bytes, 32u);
}

TEST(RescueFile, HalfAFileIsNone) {
    const Bytes whole = rescueText(filled());
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(readRescue(whole.substr(0, length))) << length;
}

TEST(RescueFile, ChangedByteIsSeen) {
    const Bytes whole = rescueText(filled());
    for (std::size_t place = 0; place < whole.size(); ++place) {
        Bytes damaged = whole;
        damaged[place] = static_cast<char>(damaged[place] ^ 1);
        EXPECT_FALSE(readRescue(damaged)) << place;
    }
}

TEST(RescueFile, RecordThatNoFormCanShowIsNotOpened) {
    RescuedCase rescued = filled();
    rescued.designCase.loadCode = maxLoadCode + 1;
    EXPECT_FALSE(readRescue(rescueText(rescued)));
    rescued = filled();
    rescued.designCase.nfack = 11;
    EXPECT_FALSE(readRescue(rescueText(rescued)));
    rescued = filled();
    rescued.designCase.lokt = -1;
    EXPECT_FALSE(readRescue(rescueText(rescued)));
}

TEST(RescueFile, AnyBytesAreTaken) {
    for (const Bytes& bytes :
         {Bytes(), Bytes("\r\n"), Bytes("slut="), Bytes("varno raddning 1\r\n"),
          Bytes("varno raddning 1\r\nslut=0"), Bytes(5000, '\0'), Bytes("=\r\n=\r\nslut=")}) {
        EXPECT_FALSE(readRescue(bytes));
    }
}

} // namespace
} // namespace varno
