#include "shell/window_places.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace varno::testing {
namespace {

const std::vector<Screen> two{{{0, 0, 1920, 1040}, 96}, {{1920, 0, 2560, 1400}, 144}};

std::optional<Area> placed(const Area& area, int dpi = 96) {
    return placeOnScreens({area, dpi, false}, two);
}

TEST(PlaceOnScreens, AWindowComesBackWhereItWas) {
    EXPECT_EQ(placed({100, 80, 940, 690}), (Area{100, 80, 940, 690}));
    EXPECT_EQ(placed({2000, 80, 940, 690}, 144), (Area{2000, 80, 940, 690}));
}

TEST(PlaceOnScreens, NoPartOfItIsOutside) {
    EXPECT_EQ(placed({-200, -50, 940, 690}), (Area{0, 0, 940, 690}));
    EXPECT_EQ(placed({1500, 900, 500, 300}), (Area{1420, 740, 500, 300}));
    EXPECT_EQ(placed({100, 80, 5000, 3000}), (Area{1920, 0, 2560, 1400})) << "most of it was there";
    EXPECT_EQ(placed({0, 0, 1900, 3000}), (Area{0, 0, 1900, 1040}));
}

TEST(PlaceOnScreens, AScreenThatIsGoneIsNotLookedFor) {
    EXPECT_EQ(placed({-3000, 80, 940, 690}), std::nullopt);
    EXPECT_EQ(placed({100, 80, 0, 0}), std::nullopt);
    EXPECT_EQ(placed({100, 80, 940, 690}, 0), std::nullopt);
    EXPECT_EQ(placed({2147483647, 2147483647, 2147483647, 2147483647}), std::nullopt);
    EXPECT_EQ(placeOnScreens({{100, 80, 940, 690}, 96, false}, {}), std::nullopt);
}

TEST(PlaceOnScreens, ItsSizeFollowsTheResolution) {
    EXPECT_EQ(placed({2000, 80, 800, 600}, 96), (Area{2000, 80, 1200, 900}));
}

TEST(WindowPlacesTest, TheNextRunKnowsThem) {
    MemoryFiles files;
    WindowPlaces places(files);
    places.start("C:\\lokalt\\Varno");
    EXPECT_EQ(places.of("VarnoMain"), std::nullopt);
    const WindowPlace main{{-8, 40, 940, 690}, 144, true};
    places.keep({{"VarnoMain", {{1, 2, 3, 4}, 96, false}}, {"VarnoForm6", {{10, 20, 300, 400}, 96, false}}});
    places.keep({{"VarnoMain", main}});
    WindowPlaces next(files);
    next.start("C:\\lokalt\\Varno");
    EXPECT_EQ(next.of("VarnoMain"), main);
    EXPECT_EQ(next.of("VarnoForm6"), (WindowPlace{{10, 20, 300, 400}, 96, false}));
    EXPECT_EQ(next.of("VarnoMomkurva"), std::nullopt);
}

TEST(WindowPlacesTest, ADamagedOrMissingFileStopsNothing) {
    MemoryFiles files;
    files.content["C:\\V\\fonster.txt"] =
        "VarnoMain 1 2 x\r\n\r\nVarnoForm6 10 20 300 400 96 0\r\nVarnoMomkurva 99999999999 1 1 1 96 0\r\n";
    WindowPlaces places(files);
    places.start("C:\\V");
    EXPECT_EQ(places.of("VarnoMain"), std::nullopt);
    EXPECT_EQ(places.of("VarnoMomkurva"), std::nullopt);
    EXPECT_NE(places.of("VarnoForm6"), std::nullopt);
    files.fault = [](const std::string&, const std::string&) { return int{errDiskFull}; };
    places.keep({{"VarnoMain", {{1, 2, 3, 4}, 96, false}}});
    EXPECT_NE(places.of("VarnoMain"), std::nullopt);
    WindowPlaces nowhere(files);
    nowhere.start("");
    nowhere.keep({{"VarnoMain", {{1, 2, 3, 4}, 96, false}}});
}

class PlacesLookedAt : public ::testing::Test {
  protected:
    PlacesLookedAt() { places.start("C:\\V"); }
    void look(const WindowPlaces::Places& now) { places.look(now); }
    bool written() const { return files.content.contains("C:\\V\\fonster.txt"); }
    std::optional<WindowPlace> kept(const std::string& window) {
        WindowPlaces next(files);
        next.start("C:\\V");
        return next.of(window);
    }
    static WindowPlace at(int x) { return {{x, 20, 300, 400}, 96, false}; }

    MemoryFiles files;
    WindowPlaces places{files};
};

TEST_F(PlacesLookedAt, AWindowThatNobodyMovedIsNotKept) {
    for (int i = 0; i < 3; ++i)
        look({{"VarnoMain", at(10)}});
    for (int i = 0; i < 3; ++i)
        look({{"VarnoMain", at(10)}, {"VarnoForm6", at(50)}});
    EXPECT_FALSE(written());
}

TEST_F(PlacesLookedAt, AWindowIsKeptOnceItStands) {
    look({{"VarnoMain", at(10)}});
    look({{"VarnoMain", at(11)}});
    look({{"VarnoMain", at(12)}});
    EXPECT_FALSE(written()) << "it is on its way";
    look({{"VarnoMain", at(12)}});
    EXPECT_EQ(kept("VarnoMain"), at(12));
    look({{"VarnoMain", at(10)}});
    look({{"VarnoMain", at(10)}});
    EXPECT_EQ(kept("VarnoMain"), at(10)) << "back again";
}

TEST_F(PlacesLookedAt, WhatCannotBeWrittenIsNotTriedAgainAllTheTime) {
    look({{"VarnoMain", at(10)}});
    look({{"VarnoMain", at(12)}});
    int tries = 0;
    files.fault = [&](const std::string&, const std::string&) { return ++tries, int{errDiskFull}; };
    look({{"VarnoMain", at(12)}});
    EXPECT_GT(tries, 0);
    tries = 0;
    look({{"VarnoMain", at(12)}});
    look({{"VarnoMain", at(12)}});
    EXPECT_EQ(tries, 0);
    files.fault = nullptr;
    look({{"VarnoMain", at(14)}});
    look({{"VarnoMain", at(14)}});
    EXPECT_EQ(kept("VarnoMain"), at(14));
}

} // namespace
} // namespace varno::testing
