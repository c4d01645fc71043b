// The files are the same whatever the user's decimal sign is. The tests run under a locale with a comma and
// under one with a point; the first of them also sets both signs itself.
#include <gtest/gtest.h>

#include <regex>

#include "driver/program.h"
#include "soon.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

std::wstring userDecimalSign() {
    wchar_t text[8] = L"";
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, text, 8);
    return text;
}

// The user's decimal sign, for as long as it lives.
class DecimalSign {
  public:
    explicit DecimalSign(const wchar_t* sign) { set(sign); }
    ~DecimalSign() { set(old_.c_str()); }
    DecimalSign(const DecimalSign&) = delete;
    DecimalSign& operator=(const DecimalSign&) = delete;

  private:
    static void set(const wchar_t* sign) { SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, sign); }
    const std::wstring old_ = userDecimalSign();
};

struct Files {
    Bytes input;
    Bytes result;
    Bytes moments;
    bool operator==(const Files&) const = default;
};

// An edited case, saved and calculated.
Files filesOfARun() {
    Scene scene;
    Program program(scene);
    program.passStartUp();
    program.open("kontor.ind");
    program.typeInto({Field::spv, 4}, "6,35");
    program.typeInto({Field::konsh}, "0.75");
    program.saveAs("lokal");
    program.command(idRun);
    program.window(viewerClass);
    // Two runs may lie in two minutes.
    const std::regex time("20\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d");
    const Bytes result = std::regex_replace(scene.read("LOKAL.res"), time, "TIME");
    return {scene.read("LOKAL.IND"), result, scene.read("momk.dat")};
}

TEST(LocaleFiles, CommaAndPointGiveTheSameBytes) {
    const auto with = [](const wchar_t* sign) {
        const DecimalSign decimal(sign);
        EXPECT_EQ(userDecimalSign(), sign);
        return filesOfARun();
    };
    const Files comma = with(L",");
    const Files point = with(L".");
    EXPECT_EQ(comma.input, point.input);
    EXPECT_EQ(comma.result, point.result);
    EXPECT_EQ(comma.moments, point.moments);

    const auto lines = linesOf(comma.input);
    EXPECT_EQ(lines.at(5), "5.400  6.000  6.000  6.350  6.350  ");
    EXPECT_EQ(lines.at(13), "1.2");
    EXPECT_EQ(lines.at(14), "0.75");
}

TEST(LocaleForm, ShowsTheUsersSignAndTakesBoth) {
    Scene scene;
    Program program(scene);
    program.passStartUp();
    const std::string sign = win32::narrow(userDecimalSign());
    const auto spans = [&] {
        std::string all;
        for (int span = 1; span <= 3; ++span)
            all += program.field(Field::spv, span).text() + " ";
        return all;
    };
    EXPECT_EQ(spans(), "5" + sign + "50 5" + sign + "50 5" + sign + "50 ");
    program.typeInto({Field::spv, 2}, "6,5");
    program.typeInto({Field::spv, 3}, "7.25");
    program.saveAs("tecken");
    expectSoon(program, "5" + sign + "50 6" + sign + "50 7" + sign + "25 ", spans);
    EXPECT_EQ(linesOf(scene.read("TECKEN.IND")).at(5), "5.500  6.500  7.250  ");
}

TEST(LocaleForm, SamplesAreSavedByteForByte) {
    Scene scene;
    Program program(scene);
    program.passStartUp();
    for (const std::string sample : {"BOSTAD", "KONTOR", "TIOFACK"}) {
        program.open(sample + ".IND");
        program.saveAs("kopia");
        EXPECT_EQ(scene.read("KOPIA.IND"), withLine(scene.read(sample + ".IND"), 1, "KOPIA"));
        scene.remove("KOPIA.IND");
    }
}

} // namespace
} // namespace varno::gui
