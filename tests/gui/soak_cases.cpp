// The case files of somebody who uses the program at random: what is typed as their names, and that a file that was
// saved or opened holds what the form shows.
#include <gtest/gtest.h>

#include <cmath>

#include "base/run_time_error.h"
#include "driver/wait.h"
#include "model/case_check.h"
#include "saved_case.h"
#include "soak.h"
#include "win32/strings.h"

namespace varno::gui {

namespace {

constexpr const char* subfolder = "Bygge å";

constexpr std::array savedNames{"soak1",      "SOAK2.IND", "soak3",  "soak4",   "soak5",    "BOSTAD",
                                "kontor.ind", "lång å",    "x.y.z",  "hus,1",   "läsning",  "a<b",
                                "LAS",        "con.txt",   " soak6", subfolder, "\"citat\""};
constexpr std::array openedNames{"SOAK1.IND",  "soak2.ind",   "SOAK3.IND",      "SOAK4.IND", "SOAK5.IND",
                                 "BOSTAD.IND", "KONTOR.IND",  "TIOFACK.IND",    "KORT.IND",  "BREV.IND",
                                 "TOM.IND",    "KOMMA.IND",   "FINNS INTE.IND", "LAS.IND",   "varno.def",
                                 subfolder,    "varnowb.exe", "HUS,1.IND"};
constexpr std::array oddNames{"", " ", "1:", "*.IND", "*.*", "finnsinte\\", "..\\..\\finnsinte\\*.ind"};

} // namespace

bool SoakWalk::comesBack(const std::string& path, const std::string& name, const std::string& title) {
    try {
        const CaseFile whole = readSavedCase(path);
        return whole.name == name && whole.title == title;
    } catch (const RunTimeError&) {
        return false;
    }
}

// The files that are opened: sound ones, those that the program may have deleted, and what is no case.
void SoakWalk::replenish() const {
    const auto keep = [&](const std::string& name, const Bytes& bytes) {
        if (!scene().has(name)) scene().write(name, bytes);
    };
    for (const char* sample : {"BOSTAD.IND", "KONTOR.IND", "TIOFACK.IND"})
        keep(sample, readFile(samplesFolder() + "\\" + sample));
    const Bytes sample = readFile(samplesFolder() + "\\KONTOR.IND");
    keep("KORT.IND", "KORT\r\nEn halv fil\r\n3\r\n2\r\n2\r\n");
    Bytes letter;
    for (int line = 0; line < 60; ++line)
        letter += "Hej alla glada\r\n";
    keep("BREV.IND", letter);
    keep("TOM.IND", "");
    keep("KOMMA.IND", withLine(withLine(sample, 1, "KOMMA"), 2, "Hus, 1 plan"));
    keep("LAS.IND", withLine(sample, 1, "LAS"));
    SetFileAttributesW(win32::wide(scene().path("LAS.IND")).c_str(), FILE_ATTRIBUTE_READONLY);
    scene().makeFolder(subfolder);
    keep(std::string(subfolder) + "\\HUS9.IND", withLine(sample, 1, "HUS9"));
}

std::string SoakWalk::typedFileName(bool forSaving) {
    if (oneIn(12)) return anyOf(oddNames);
    if (oneIn(8)) return scene().folder() + "\\";
    if (oneIn(16)) return scene().path(subfolder) + "\\";
    return forSaving ? anyOf(savedNames) : anyOf(openedNames);
}

SoakWalk::Stamps SoakWalk::stamps() const {
    Stamps all;
    for (const std::string& folder : {scene().folder(), scene().path(subfolder)}) {
        WIN32_FIND_DATAW found{};
        const HANDLE search = FindFirstFileW(win32::wide(folder + "\\*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) continue;
        do {
            const std::string name = win32::narrow(found.cFileName);
            const FILETIME& time = found.ftLastWriteTime;
            if (name.ends_with(".IND")) {
                all[folder + "\\" + name] = {ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime,
                                             found.nFileSizeLow};
            }
            EXPECT_EQ(name.find(".~"), std::string::npos) << "a save left " << name << " behind";
        } while (FindNextFileW(search, &found) != FALSE);
        FindClose(search);
    }
    return all;
}

// What is saved, is what the form shows; what a file cannot hold, is told.
void SoakWalk::saving(int command) {
    const Stamps before = stamps();
    give(command);
    Stamps written = stamps();
    std::erase_if(written, [&](const auto& file) {
        const auto was = before.find(file.first);
        return was != before.end() && was->second == file.second;
    });
    // The name of what is no case may be anything.
    if (strange_) return;
    if (written.empty()) {
        EXPECT_TRUE(refused_ || !said_.empty()) << "nothing was saved, and nothing was said";
        return;
    }
    ASSERT_EQ(written.size(), 1u);
    const std::string path = written.begin()->first;
    EXPECT_EQ(upperCase(path), upperCase(folder_ + "\\" + program().caption()));
    compareSaved(path);
}

void SoakWalk::compareSaved(const std::string& path) {
    lossTold_ = told(" blir ");
    const Bytes bytes = readFile(path);
    ASSERT_EQ(linesOf(bytes).size(), 37u) << path;
    const std::string caption = program().caption();
    const std::string name = caption.substr(0, caption.rfind('.'));
    EXPECT_TRUE(comesBack(path, name, text(Field::rubrik)) || lossTold_)
        << path << " does not hold its name or its title \"" << text(Field::rubrik) << "\"";
    ++saves_;
    // A comma in the title or the name moves all that follows.
    const std::string plain = scene().beside("utan komma") + "\\FALL.IND";
    writeFile(plain, withLine(withLine(bytes, 1, "NAMN"), 2, "Rubrik"));
    const DesignCase stored = readSavedCase(plain).designCase;
    checkShown(stored);
    compareLineLoads(stored);
}

void SoakWalk::compareLineLoads(const DesignCase& stored) const {
    const auto window = program().find(lineLoadClass);
    if (!window || stored.nllast < 1) return;
    const Editor editor(*window);
    for (int row = 1; row <= 5; ++row) {
        ASSERT_EQ(editor.box(LineLoadBox::llfnr, row).visible(), row <= stored.nllast) << "line load " << row;
        if (row > stored.nllast) continue;
        const auto compare = [&](LineLoadBox box, double saved, std::size_t width) {
            std::string text = editor.text(box, row);
            for (const char* blank : {"\u00A0", "\u202F"}) {
                for (auto at = text.find(blank); at != std::string::npos; at = text.find(blank))
                    text.erase(at, std::string(blank).size());
            }
            const double number = shownNumber(text);
            char cell[64];
            const bool fits = std::snprintf(cell, sizeof cell, width == 3 ? "%.0f" : "%.3f", number) <=
                              static_cast<int>(width);
            if (fits)
                EXPECT_NEAR(saved, number, 0.005 + 1e-6 * std::fabs(number)) << "line load " << row;
            else
                EXPECT_TRUE(lossTold_) << "line load " << row << " shows " << text;
        };
        compare(LineLoadBox::llfnr, stored.llfnr(row), 3);
        compare(LineLoadBox::avst, stored.avst(row), 7);
        compare(LineLoadBox::lllast, stored.lllast(row), 7);
    }
}

void SoakWalk::opening(int command) {
    replenish();
    typed_.clear();
    give(command);
    const std::string path = folder_ + "\\" + typed_;
    if (!typed_.empty() && fileExists(path)) compareOpened(path);
}

// A case that was opened is the one of its file, also one that cannot be drawn. What is not sound may be refused, or
// become anything.
void SoakWalk::compareOpened(const std::string& path) {
    Bytes bytes;
    try {
        bytes = readFile(path);
    } catch (const GuiError&) {
        return; // a folder
    }
    // With one of its questions refused the file may have been opened, or not.
    strange_ = !checkFile(bytes).empty() || (refused_ && strange_);
    if (refused_) return;
    strangeNumbers_ = strangeNumbers_ || strange_;
    if (strange_) return;
    const CaseFile opened = readSavedCase(path);
    EXPECT_EQ(program().caption(), upperCase(opened.name) + ".IND");
    EXPECT_EQ(text(Field::rubrik), opened.title);
    lossTold_ = true;
    checkShown(opened.designCase);
    compareLineLoads(opened.designCase);
    ++openings_;
}

} // namespace varno::gui
