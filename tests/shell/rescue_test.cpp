#include "shell/rescue.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "support/case_files.h"
#include "support/fake_folders.h"
#include "support/memory_files.h"

namespace varno {
namespace {

using std::chrono::seconds;
using testing::FakeMessageBoxes;
using testing::MemoryFiles;

constexpr const char* folder = "C:\\lokalt\\Varno";

/// A disk that several programs share, with the locks that they hold on it.
struct Machine : testing::FakeFolders, RescueClock {
    std::vector<std::string> files(const std::string& path, const std::string& patterns) override {
        EXPECT_EQ(patterns, "*.raddning");
        std::vector<std::string> names;
        for (const auto& [file, bytes] : disk.content) {
            if (file.starts_with(path + "\\") && file.ends_with(".raddning"))
                names.push_back(file.substr(path.size() + 1));
        }
        return names;
    }
    seconds running() override { return now; }
    std::string dateAndTime() override { return "2026-11-21 " + std::to_string(100000 + now.count()); }

    MemoryFiles disk;
    std::set<std::string> locked;
    seconds now{1000};
};

/// A running program. Its end without `giveUp` is a kill.
struct Running : RescueSource, RescueLocks {
    Running(Machine& machine, const std::string& instance) : machine_(machine) {
        rescue.start(folder, instance);
        rescued.currentFileName = "NAMNLÖS";
        rescued.designCase.nfack = 1;
    }

    bool changed() const override { return dataChanged; }
    std::string title() const override { return shownTitle; }
    RescuedCase toKeep() override { return rescued; }
    void restore(const RescuedCase& other) override {
        opened.push_back(other);
        if (openError != 0) throw RunTimeError(openError);
        rescued = other;
        shownTitle = other.title;
        rescued.title.clear();
        rescued.changed.clear();
        dataChanged = true;
    }
    std::unique_ptr<Lock> take(const std::string& path) override {
        if (!machine_.locked.insert(path).second) return nullptr;
        struct Held : Lock {
            Held(std::set<std::string>& all, std::string path) : all_(all), path_(std::move(path)) {}
            ~Held() override { all_.erase(path_); }
            std::set<std::string>& all_;
            std::string path_;
        };
        return std::make_unique<Held>(machine_.locked, path);
    }

    void edit(float length) {
        rescued.designCase.spv(1) = length;
        dataChanged = true;
    }
    void wait(seconds time) {
        for (; time > seconds(0); time -= Rescue::lookInterval) {
            machine_.now += Rescue::lookInterval;
            rescue.look();
        }
    }

    Machine& machine_;
    RescuedCase rescued;
    std::string shownTitle = "Nytt";
    bool dataChanged = false;
    std::vector<RescuedCase> opened;
    int openError = 0;
    FakeMessageBoxes boxes;
    Rescue rescue{*this, machine_.disk, machine_, *this, boxes, machine_};
};

float lengthIn(const Machine& machine, const std::string& instance) {
    const auto found = machine.disk.content.find(std::string(folder) + "\\" + instance + ".raddning");
    if (found == machine.disk.content.end()) return 0;
    const auto rescued = readRescue(found->second);
    return rescued ? rescued->designCase.spv(1) : -1;
}

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
    EXPECT_LE(std::ranges::count(machine.disk.calls, std::string("replace ") + folder + "\\a.raddning.~tmp"),
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
    next.boxes.answers = {MessageAnswer::yes};
    next.rescue.offer();
    EXPECT_EQ(next.shownTitle, "Hus, 4 plan");
}

TEST(Rescue, SavedOrGivenUpCaseIsRemovedAtOnce) {
    Machine machine;
    Running program(machine, "a");
    program.edit(6);
    program.wait(seconds(1));
    EXPECT_EQ(lengthIn(machine, "a"), 6);
    program.dataChanged = false;
    program.rescue.look();
    EXPECT_TRUE(machine.disk.content.empty());

    program.edit(7);
    program.wait(seconds(1));
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
    program.edit(6);
    program.wait(seconds(1));
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
    program.edit(6);
    program.wait(seconds(1));
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
        program.edit(6);
        program.wait(seconds(1));
    }
    Running next(machine, "b");
    next.boxes.answers = {MessageAnswer::yes};
    next.rescue.offer();
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
    next.edit(8);
    next.wait(seconds(1));
    EXPECT_EQ(lengthIn(machine, "a"), 8) << "in the file that was taken over";
    next.dataChanged = false;
    next.rescue.look();
    EXPECT_TRUE(machine.disk.content.empty());
}

TEST(Rescue, AcceptedCaseSurvivesTheNextKillToo) {
    Machine machine;
    {
        Running program(machine, "a");
        program.edit(6);
        program.wait(seconds(1));
    }
    {
        Running second(machine, "b");
        second.boxes.answers = {MessageAnswer::yes};
        second.rescue.offer();
    }
    Running third(machine, "c");
    third.boxes.answers = {MessageAnswer::yes};
    third.rescue.offer();
    ASSERT_EQ(third.opened.size(), 1u);
    EXPECT_EQ(third.opened.front().designCase.spv(1), 6);
}

TEST(Rescue, NoThrowsItAwayAndCancelAsksAgain) {
    Machine machine;
    {
        Running program(machine, "a");
        program.edit(6);
        program.wait(seconds(1));
    }
    {
        Running second(machine, "b");
        second.boxes.answers = {MessageAnswer::cancel};
        second.rescue.offer();
        EXPECT_TRUE(second.opened.empty());
    }
    EXPECT_EQ(lengthIn(machine, "a"), 6);
    {
        Running third(machine, "c");
        third.boxes.answers = {MessageAnswer::no};
        third.rescue.offer();
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
        c.edit(1);
        c.wait(seconds(1));
        a.edit(3);
        b.edit(2);
        b.wait(seconds(1));
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
    a.edit(6);
    a.wait(seconds(1));
    Running b(machine, "b");
    b.rescue.offer();
    EXPECT_TRUE(b.boxes.shown.empty());
    b.edit(7);
    b.wait(seconds(1));
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
        program.edit(6);
        program.wait(seconds(1));
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
    const CaseFile saved = testing::sampleCase();
    for (const bool freeLoads : {false, true}) {
        Machine machine;
        machine.disk.content["C:\\arbete\\HUS1.IND"] = testing::writtenCase(saved);
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
        next.boxes.answers = {MessageAnswer::cancel};
        next.rescue.offer();
        EXPECT_EQ(next.boxes.shown.size(), freeLoads ? 1u : 0u);
        EXPECT_EQ(machine.disk.content.size(), freeLoads ? 2u : 1u) << "worth nothing, so it is gone";
    }
}

TEST(Rescue, DamagedFileIsNeitherOfferedNorRemoved) {
    Machine machine;
    machine.disk.content[std::string(folder) + "\\x.raddning"] = "varno raddning 2\r\nett nyare program";
    Running program(machine, "a");
    program.rescue.offer();
    EXPECT_TRUE(program.boxes.shown.empty());
    EXPECT_EQ(machine.disk.content.size(), 1u);
}

TEST(Rescue, CaseThatCannotBeOpenedIsKept) {
    Machine machine;
    {
        Running program(machine, "a");
        program.edit(6);
        program.wait(seconds(1));
    }
    Running next(machine, "b");
    next.openError = 9;
    next.boxes.answers = {MessageAnswer::yes};
    EXPECT_EQ(testing::errorOf([&] { next.rescue.offer(); }), 9);
    next.wait(seconds(5));
    EXPECT_EQ(lengthIn(machine, "a"), 6);
}

TEST(Rescue, FallingProgramWritesAtOnce) {
    Machine machine;
    {
        Running program(machine, "a");
        program.shownTitle = "Före";
        program.edit(6);
        program.wait(seconds(1));
        program.edit(7);
        program.shownTitle = "En fallen ruta svarar inte";
        program.rescue.atOnce();
    }
    EXPECT_EQ(lengthIn(machine, "a"), 7);
    Running next(machine, "b");
    next.boxes.answers = {MessageAnswer::yes};
    next.rescue.offer();
    EXPECT_EQ(next.shownTitle, "Före");
}

TEST(Rescue, EndOfTheSessionWritesAtOnceWithTheTitle) {
    Machine machine;
    {
        Running program(machine, "a");
        program.edit(6);
        program.wait(seconds(1));
        program.edit(7);
        program.shownTitle = "Nyss skriven";
        program.rescue.sessionEnds();
    }
    EXPECT_EQ(lengthIn(machine, "a"), 7);
    Running next(machine, "b");
    next.boxes.answers = {MessageAnswer::yes};
    next.rescue.offer();
    EXPECT_EQ(next.shownTitle, "Nyss skriven");
}

TEST(Rescue, FallOfAnUnchangedProgramLeavesNothing) {
    Machine machine;
    Running program(machine, "a");
    program.rescue.atOnce();
    EXPECT_TRUE(machine.disk.content.empty());
}

} // namespace
} // namespace varno
