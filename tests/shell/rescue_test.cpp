#include "shell/rescue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "shell/rescue_rig.h"
#include "support/case_files.h"

namespace varno::testing {
namespace {

TEST(Rescue, UnchangedCaseIsKeptNowhere) {
    Machine machine;
    Running program(machine, "a");
    program.wait(seconds(60));
    EXPECT_TRUE(machine.disk.content.empty());
    EXPECT_TRUE(machine.disk.calls.empty()) << "nor is the disk asked for anything";
}

TEST(Rescue, ChangeIsOnTheDiskWithinHalfAMinute) {
    Machine machine;
    Running program(machine, "a");
    std::mt19937 random(7);
    std::uniform_int_distribution<int> percent(0, 99);
    float length = 1;
    std::map<seconds, float> edits;
    for (int i = 0; i < 2000; ++i) {
        if (percent(random) < (i / 100 % 2 == 0 ? 60 : 3)) {
            program.edit(length += 0.5f);
            edits[machine.now] = length;
        }
        program.wait(Rescue::lookInterval);
        const auto late = edits.upper_bound(machine.now - seconds(30));
        if (late != edits.begin()) {
            EXPECT_GE(lengthIn(machine, "a"), std::prev(late)->second) << machine.now.count();
        }
    }
}

TEST(Rescue, TypingWithoutAPauseDoesNotKeepTheDiskBusy) {
    Machine machine;
    Running program(machine, "a");
    for (int i = 0; i < 100; ++i) {
        program.edit(static_cast<float>(i));
        program.wait(seconds(1));
    }
    EXPECT_LE(
        std::ranges::count(machine.disk.calls, std::string("replace ") + rescueFolder + "\\a.raddning.~tmp"),
        11);
    EXPECT_EQ(
        std::ranges::count_if(machine.disk.calls, [](const auto& call) { return call.starts_with("write"); }),
        10);
}

TEST(Rescue, TitleIsKeptAsItStandsInItsBox) {
    Machine machine;
    {
        Running program(machine, "a");
        program.edit(6);
        program.shownTitle = "Hus, 4 plan";
        program.wait(seconds(1));
    }
    Running next(machine, "b");
    next.offer(MessageAnswer::yes);
    EXPECT_EQ(next.shownTitle, "Hus, 4 plan");
}

TEST(Rescue, SavedOrGivenUpCaseIsRemovedAtOnce) {
    Machine machine;
    Running program(machine, "a");
    program.keep(6);
    EXPECT_EQ(lengthIn(machine, "a"), 6);
    program.dataChanged = false;
    program.rescue.look();
    EXPECT_TRUE(machine.disk.content.empty());

    program.keep(7);
    EXPECT_EQ(lengthIn(machine, "a"), 7) << "the next change is kept as soon as the first";
    program.rescue.giveUp();
    EXPECT_TRUE(machine.disk.content.empty());
    program.rescue.sessionEnds();
    program.wait(seconds(60));
    EXPECT_TRUE(machine.disk.content.empty()) << "\"Nej\" is the last word, whatever comes before the end";
}

TEST(Rescue, FileThatCannotBeRemovedNowIsRemovedLater) {
    Machine machine;
    Running program(machine, "a");
    program.keep(6);
    program.dataChanged = false;
    machine.disk.fault = [](const std::string& call, const std::string&) {
        return call == "remove" ? 70 : 0;
    };
    program.wait(seconds(1));
    EXPECT_EQ(machine.disk.content.size(), 1u);
    machine.disk.fault = nullptr;
    program.wait(seconds(1));
    EXPECT_TRUE(machine.disk.content.empty());
}

TEST(Rescue, FullDiskIsTriedAgainAndDisturbsNobody) {
    Machine machine;
    Running program(machine, "a");
    machine.disk.fault = [](const std::string& call, const std::string&) { return call == "write" ? 61 : 0; };
    program.edit(6);
    program.wait(seconds(40));
    EXPECT_TRUE(machine.disk.content.empty());
    EXPECT_TRUE(program.boxes.shown.empty());
    machine.disk.fault = nullptr;
    program.wait(seconds(11));
    EXPECT_EQ(lengthIn(machine, "a"), 6);
}

TEST(Rescue, FailingWriteLeavesTheOlderFile) {
    Machine machine;
    Running program(machine, "a");
    program.keep(6);
    for (const std::string failing : {"create", "write", "flush", "close", "replace"}) {
        machine.disk.fault = [&](const std::string& call, const std::string&) {
            return call == failing ? 57 : 0;
        };
        program.edit(program.rescued.designCase.spv(1) + 1);
        program.wait(seconds(15));
        EXPECT_EQ(lengthIn(machine, "a"), 6) << failing;
    }
}

TEST(Rescue, KilledProgramIsOfferedAtTheNextStart) {
    Machine machine;
    {
        Running program(machine, "a");
        program.rescued.currentFileName = "HUS1";
        program.rescued.savedTo = "C:\\arbete\\HUS1.IND";
        program.rescued.caseSaved = true;
        program.shownTitle = "Hus 1";
        program.keep(6);
    }
    Running next(machine, "b");
    next.offer(MessageAnswer::yes);
    ASSERT_EQ(next.boxes.shown.size(), 1u);
    const auto& box = next.boxes.shown.front();
    EXPECT_EQ(box.style, msgQuestionYesNoCancel);
    for (const char* part :
         {"HUS1.IND", "Rubrik: \"Hus 1\"", "Fil: C:\\arbete\\HUS1.IND", "Senast ändrat: 2026-11-21"})
        EXPECT_NE(box.text.find(part), std::string::npos) << part << "\n" << box.text;
    ASSERT_EQ(next.opened.size(), 1u);
    EXPECT_EQ(next.opened.front().designCase.spv(1), 6);
    EXPECT_TRUE(next.opened.front().caseSaved);

    EXPECT_EQ(lengthIn(machine, "a"), 6) << "not saved yet, so it is still kept";
    next.keep(8);
    EXPECT_EQ(lengthIn(machine, "a"), 8) << "in the file that was taken over";
    next.dataChanged = false;
    next.rescue.look();
    EXPECT_TRUE(machine.disk.content.empty());
}

TEST(Rescue, AcceptedCaseSurvivesTheNextKillToo) {
    Machine machine;
    {
        Running program(machine, "a");
        program.keep(6);
    }
    {
        Running second(machine, "b");
        second.offer(MessageAnswer::yes);
    }
    Running third(machine, "c");
    third.offer(MessageAnswer::yes);
    ASSERT_EQ(third.opened.size(), 1u);
    EXPECT_EQ(third.opened.front().designCase.spv(1), 6);
}

TEST(Rescue, NoThrowsItAwayAndCancelAsksAgain) {
    Machine machine;
    {
        Running program(machine, "a");
        program.keep(6);
    }
    {
        Running second(machine, "b");
        second.offer(MessageAnswer::cancel);
        EXPECT_TRUE(second.opened.empty());
    }
    EXPECT_EQ(lengthIn(machine, "a"), 6);
    {
        Running third(machine, "c");
        third.offer(MessageAnswer::no);
        EXPECT_TRUE(third.opened.empty());
    }
    EXPECT_TRUE(machine.disk.content.empty());
    Running fourth(machine, "d");
    fourth.rescue.offer();
    EXPECT_TRUE(fourth.boxes.shown.empty());
}

TEST(Rescue, LastChangeIsOfferedFirstAndTheOthersWait) {
    Machine machine;
    {
        Running a(machine, "a");
        Running b(machine, "b");
        Running c(machine, "c");
        c.keep(1);
        a.edit(3);
        b.keep(2);
        machine.now += seconds(5);
        a.rescue.look();
    }
    Running next(machine, "d");
    next.boxes.answers = {MessageAnswer::no, MessageAnswer::yes};
    next.rescue.offer();
    ASSERT_EQ(next.opened.size(), 1u);
    EXPECT_EQ(next.opened.front().designCase.spv(1), 2);
    EXPECT_EQ(next.boxes.shown.size(), 2u);
    EXPECT_EQ(lengthIn(machine, "a"), 0) << "declined";
    EXPECT_EQ(lengthIn(machine, "c"), 1) << "waits for the next start";
}

TEST(Rescue, RunningProgramsAreNotOffered) {
    Machine machine;
    Running a(machine, "a");
    a.keep(6);
    Running b(machine, "b");
    b.rescue.offer();
    EXPECT_TRUE(b.boxes.shown.empty());
    b.keep(7);
    EXPECT_EQ(lengthIn(machine, "a"), 6);
    EXPECT_EQ(lengthIn(machine, "b"), 7);
    b.dataChanged = false;
    b.rescue.look();
    EXPECT_EQ(lengthIn(machine, "a"), 6) << "each removes its own";
}

TEST(Rescue, FileIsOfferedByOneOfTwoThatStartTogether) {
    Machine machine;
    {
        Running program(machine, "a");
        program.keep(6);
    }
    Running first(machine, "b");
    Running second(machine, "c");
    first.boxes.answers = {MessageAnswer::yes};
    first.boxes.whileShown = [&] { second.rescue.offer(); };
    first.rescue.offer();
    EXPECT_EQ(first.opened.size(), 1u);
    EXPECT_TRUE(second.boxes.shown.empty());
}

TEST(Rescue, CaseThatStandsInItsFileIsNotOffered) {
    const CaseFile saved = sampleCase();
    for (const bool freeLoads : {false, true}) {
        Machine machine;
        machine.disk.content["C:\\arbete\\HUS1.IND"] = writtenCase(saved);
        {
            Running program(machine, "a");
            program.rescued.designCase = saved.designCase;
            program.rescued.designCase.nllastf = freeLoads ? 1 : 0;
            program.rescued.currentFileName = saved.name;
            program.rescued.savedTo = "C:\\arbete\\HUS1.IND";
            program.shownTitle = saved.title;
            program.dataChanged = true;
            program.wait(seconds(1));
        }
        Running next(machine, "b");
        next.offer(MessageAnswer::cancel);
        EXPECT_EQ(next.boxes.shown.size(), freeLoads ? 1u : 0u);
        EXPECT_EQ(machine.disk.content.size(), freeLoads ? 2u : 1u) << "worth nothing, so it is gone";
    }
}

TEST(Rescue, DamagedFileIsNeitherOfferedNorRemoved) {
    Machine machine;
    machine.disk.content[std::string(rescueFolder) + "\\x.raddning"] =
        "varno raddning 2\r\nett nyare program";
    Running program(machine, "a");
    program.rescue.offer();
    EXPECT_TRUE(program.boxes.shown.empty());
    EXPECT_EQ(machine.disk.content.size(), 1u);
}

TEST(Rescue, CaseThatCannotBeOpenedIsKept) {
    Machine machine;
    {
        Running program(machine, "a");
        program.keep(6);
    }
    Running next(machine, "b");
    next.openError = 9;
    next.boxes.answers = {MessageAnswer::yes};
    EXPECT_EQ(errorOf([&] { next.rescue.offer(); }), 9);
    next.wait(seconds(5));
    EXPECT_EQ(lengthIn(machine, "a"), 6);
}

// A program that ends with a change which is not on the disk yet; the title that the next one is offered.
std::string titleAfter(void (*end)(Rescue&)) {
    Machine machine;
    {
        Running program(machine, "a");
        program.shownTitle = "Före";
        program.keep(6);
        program.edit(7);
        program.shownTitle = "Nyss skriven";
        end(program.rescue);
    }
    EXPECT_EQ(lengthIn(machine, "a"), 7);
    Running next(machine, "b");
    next.offer(MessageAnswer::yes);
    return next.shownTitle;
}

TEST(Rescue, FallingProgramWritesAtOnceAndAsksNoWindow) {
    EXPECT_EQ(titleAfter([](Rescue& rescue) { rescue.atOnce(); }), "Före");
}

TEST(Rescue, EndOfTheSessionWritesAtOnceWithTheTitle) {
    EXPECT_EQ(titleAfter([](Rescue& rescue) { rescue.sessionEnds(); }), "Nyss skriven");
}

TEST(Rescue, FallOfAnUnchangedProgramLeavesNothing) {
    Machine machine;
    Running program(machine, "a");
    program.rescue.atOnce();
    EXPECT_TRUE(machine.disk.content.empty());
}

} // namespace
} // namespace varno::testing
