// The printer set-up, and what it changes on paper.
#include "print_rig.h"

namespace varno::gui {
namespace {

// Of the platform's set-up dialog.
constexpr int portrait = 0x420;
constexpr int landscape = 0x421;
constexpr int printers = 0x473;

class PrinterSetup : public Printing {
  protected:
    Control opened() const {
        program.command(idPrinterSetup);
        const Control dialog = program.window(messageBoxClass);
        dialog.item(landscape);
        return dialog;
    }
    void close(const Control& dialog, int button) const {
        dialog.item(button).click();
        program.waitGone(dialog);
        expectSoon(program, true, [&] { return program.main().enabled(); });
    }
    void chooseOrientation(int which) const {
        const Control dialog = opened();
        dialog.item(which).click();
        expectSoon(program, true, [&] { return dialog.item(which).checked(); });
        close(dialog, IDOK);
    }
};

TEST_F(PrinterSetup, OpensOnThePrinterAndClosesWithoutAChange) {
    const Control dialog = opened();
    EXPECT_FALSE(program.main().enabled());
    EXPECT_TRUE(dialog.item(portrait).checked());
    program.focused().key(VK_ESCAPE);
    program.waitGone(dialog);
    close(opened(), IDOK);
    // What is ticked when the dialog is left by "Cancel" is forgotten.
    const Control again = opened();
    again.item(landscape).click();
    expectSoon(program, true, [&] { return again.item(landscape).checked(); });
    close(again, IDCANCEL);
    EXPECT_GT(printed({"text"}).pages.at(0).height, 800);
    const Control last = opened();
    EXPECT_TRUE(last.item(portrait).checked());
    close(last, IDCANCEL);
}

TEST_F(PrinterSetup, OrientationAppliesToLaterPrintingAndIsReadBack) {
    chooseOrientation(landscape);
    const auto lines = numberedLines(70);
    const Print print = printed(lines);
    ASSERT_EQ(print.pages.size(), 1u);
    EXPECT_EQ(print.pages[0].width, 842);
    EXPECT_EQ(print.pages[0].height, 595);
    expectPage(print.pages[0], 1, lines);

    const Control dialog = opened();
    EXPECT_TRUE(dialog.item(landscape).checked()) << "what was chosen stands there";
    close(dialog, IDCANCEL);
    EXPECT_EQ(printed({"text"}).pages.at(0).width, 842) << "and stays chosen";
    chooseOrientation(portrait);
    EXPECT_EQ(printed({"text"}).pages.at(0).width, 595);
}

} // namespace
} // namespace varno::gui
