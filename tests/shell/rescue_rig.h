#pragma once

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "shell/rescue.h"
#include "support/fake_folders.h"
#include "support/memory_files.h"

namespace varno::testing {

using std::chrono::seconds;

inline constexpr const char* rescueFolder = "C:\\lokalt\\Varno";

/// A disk that several programs share, with the locks that they hold on it.
struct Machine : FakeFolders, RescueClock {
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
        rescue.start(rescueFolder, instance);
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
    /// An edit that is on the disk.
    void keep(float length) {
        edit(length);
        wait(seconds(1));
    }
    /// The user's answer to what was left behind.
    void offer(MessageAnswer answer) {
        boxes.answers = {answer};
        rescue.offer();
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

/// What the program of this name kept: 0 for nothing, -1 for a damaged file.
inline float lengthIn(const Machine& machine, const std::string& instance) {
    const auto found = machine.disk.content.find(std::string(rescueFolder) + "\\" + instance + ".raddning");
    if (found == machine.disk.content.end()) return 0;
    const auto rescued = readRescue(found->second);
    return rescued ? rescued->designCase.spv(1) : -1;
}

} // namespace varno::testing
