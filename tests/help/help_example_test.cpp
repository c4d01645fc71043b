// The worked example of the help: what it tells to type is typed into the form's rules, and every number that it shows
// is the one that comes out.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "base/file.h"
#include "diagram/curve_values.h"
#include "diagram/moment_file.h"
#include "diagram/moment_reading.h"
#include "engine/case_reader.h"
#include "engine/moment_file.h"
#include "engine/result_text.h"
#include "engine/run.h"
#include "help/help_pages.h"
#include "input/input_rig.h"
#include "support/case_files.h"
#include "support/memory_files.h"
#include "support/temporary_folder.h"

namespace varno::testing {
namespace {

const NumberLocale swedish{",", "\xC2\xA0"};

class HelpExample : public ::testing::Test {
  protected:
    HelpExample() : rig(3, swedish) {
        const CaseFile defaults = readCase(contentOf(sourceFolder() / "samples" / "varno.def"));
        rig.designCase = defaults.designCase;
        rig.show();
        const auto type = [this](Control control, const char* text) { rig.edit(control, text); };
        type({Field::rubrik}, "Hus 1 - bjälklag plan 2");
        type({Field::spv, 1}, "4,8");
        type({Field::spv, 2}, "5,2");
        type({Field::spv, 3}, "4,8");
        type({Field::plast, 1}, "5");
        type({Field::upl, 1}, "0,12");
        type({Field::konsh}, "1,2");
        rig.choose(Field::lokt, 2);
        // The line load editor's three numbers.
        rig.designCase.nllast = 1;
        rig.designCase.llfnr(1) = 2;
        rig.designCase.avst(1) = 2.6F;
        rig.designCase.lllast(1) = 8;
    }

    std::string row(Field field, int first) const {
        std::string text(fieldRow(field)->caption);
        for (const std::string& number : rig.texts(field, first, 3))
            text += " " + number;
        return text;
    }

    engine::CaseOnFile onFile() const {
        CaseFile saved;
        saved.name = "HUS1";
        saved.title = rig.text({Field::rubrik});
        saved.designCase = rig.designCase;
        return engine::readCase(writtenCase(saved));
    }

    InputRig rig;
};

TEST_F(HelpExample, TheGridBecomesWhatTheHelpShows) {
    for (const Field field : {Field::spv, Field::ptjl, Field::plast, Field::flast})
        expectExplained(row(field, 1));
    expectExplained(row(Field::upl, 0));
    expectExplained("Total längd " + formatNumber(engine::totalLength(onFile().values), "#0.00", swedish) +
                    " m");
    for (const auto& [name, field] : {std::pair{"G", Field::lambdaG}, {"Q", Field::lambdaQ}})
        expectExplained(name + (" " + rig.text({field})));
    expectExplained("0 " + rig.text({Field::psi0}));
    expectExplained("1 " + rig.text({Field::psi1}));
    expectExplained("2 " + rig.text({Field::psi2}) + ". ");
    expectExplained(" " + rig.text({Field::ksi}) + ", ");
    EXPECT_EQ(rig.designCase.loadCode, 3);
    EXPECT_EQ(rig.designCase.safetyClass(3), 2);
    EXPECT_FALSE(rig.form.state({Field::flast, 1}).enabled);
}

TEST_F(HelpExample, TheResultHasTheRowsThatTheHelpShows) {
    const engine::CaseOnFile file = onFile();
    std::istringstream result(engine::resultText(file, engine::calculate(file.values), "2026-11-21 20:35"));
    // From the heading of the support moments on, the rows of numbers.
    std::string line;
    int rows = 0;
    int lines = 0;
    bool moments = false;
    while (std::getline(result, line)) {
        ++lines;
        moments = moments || line.find("kNm/m) och") != std::string::npos;
        if (!moments || line.find_first_of("0123456789") == std::string::npos || !line.starts_with("   "))
            continue;
        expectExplained(line);
        ++rows;
    }
    EXPECT_EQ(rows, 7);
    EXPECT_LE(lines, 70) << "one page";
}

TEST_F(HelpExample, TheDiagramHasTheValuesThatTheHelpNames) {
    const engine::CaseOnFile file = onFile();
    const std::string written = engine::momentFile(engine::calculate(file.values));
    MemoryFiles files;
    files.content[momentFileName] = written;
    File opened(files, momentFileName, FileMode::input, 0, 1);
    const MomentReading reading(rig.designCase, readCurveValues(opened), 500, 30);
    std::vector<std::string> told;
    for (const PictureText& text : reading.peaks(swedish))
        told.push_back(text.text);
    ASSERT_EQ(told.size(), 7U);
    expectExplained("Vid stöden står " + told[0] + ", " + told[1] + " och " + told[2] + ", i facken " +
                    told[3] + ", " + told[4] + " och " + told[5] + ".");
    EXPECT_EQ(told[6], "kNm/m");
}

} // namespace
} // namespace varno::testing
