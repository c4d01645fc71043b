#include "tool/commands.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <nlohmann/json.hpp>

#include "support/case_files.h"

namespace varno {

namespace {

using nlohmann::ordered_json;

ordered_json jsonOf(const CaseFile& loaded) {
    return ordered_json::parse(tool::caseJson(loaded));
}

TEST(CaseJson, HasTheFieldsInTheirOrder) {
    const ordered_json json = jsonOf(testing::sampleCase());
    std::vector<std::string> keys;
    for (const auto& item : json.items())
        keys.push_back(item.key());
    EXPECT_EQ(keys, (std::vector<std::string>{"currentFileName",
                                              "rubrik",
                                              "loadCode",
                                              "safetyClass",
                                              "nfack",
                                              "spv",
                                              "ptjl",
                                              "upl",
                                              "plast",
                                              "flast",
                                              "konsv",
                                              "konsh",
                                              "lokt",
                                              "lambdaG",
                                              "ksi",
                                              "lambdaQ",
                                              "psi0",
                                              "psi1",
                                              "psi2",
                                              "lastkomb",
                                              "brukskomb",
                                              "btg",
                                              "aok",
                                              "dok",
                                              "kavko",
                                              "ktack",
                                              "auk",
                                              "duk",
                                              "duarm",
                                              "brandk",
                                              "brandb",
                                              "kutak",
                                              "overhojning",
                                              "initiell",
                                              "tillkommande",
                                              "reservedValue",
                                              "nllast",
                                              "llfnr",
                                              "avst",
                                              "lllast"}));
}

TEST(CaseJson, HasTheValuesOfTheRecord) {
    const ordered_json json = jsonOf(testing::sampleCase());
    EXPECT_EQ(json["currentFileName"], "NAMNLÖS");
    EXPECT_EQ(json["rubrik"], "Bärlägg för Ångström");
    const std::map<std::string, int> integers{
        {"loadCode", 3}, {"nfack", 3},        {"lokt", 2},       {"lastkomb", 3},       {"brukskomb", 2},
        {"btg", 2},      {"aok", 1},          {"dok", 4},        {"kavko", -1},         {"ktack", 22},
        {"auk", 3},      {"duk", 5},          {"duarm", 42},     {"brandk", 1},         {"brandb", 2},
        {"kutak", 1},    {"overhojning", 20}, {"initiell", 400}, {"tillkommande", 300}, {"reservedValue", -7},
        {"nllast", 2},
    };
    for (const auto& [key, value] : integers)
        EXPECT_EQ(json[key], value) << key;
    EXPECT_EQ(json["safetyClass"], ordered_json::parse("[0, 0, 0, 2, 0, 0, 0]"));
    EXPECT_EQ(json["spv"],
              ordered_json::parse("[0, 6, 12.5, 0.25, 5.5, 5.5, 5.5, 5.5, 5.5, 5.5, 5.5, 0, 0, 0, 0, 0]"));
    EXPECT_EQ(json["upl"],
              ordered_json::parse("[0, 0.1, 0.25, 0, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0, 0, 0, 0, 0, 0]"));
    EXPECT_EQ(json["ptjl"][3], 0.175);
    EXPECT_EQ(json["plast"][3], -1.5);
    EXPECT_EQ(json["flast"][2], 3.0);
    EXPECT_EQ(json["konsv"], 1.2);
    EXPECT_EQ(json["konsh"], 0);
    EXPECT_EQ(json["llfnr"], ordered_json::parse("[0, 1, 3, 2, 0, 0]"));
    EXPECT_EQ(json["avst"], ordered_json::parse("[0, 2.5, 0.125, 1, 0, 0]"));
    EXPECT_EQ(json["lllast"], ordered_json::parse("[0, 10, 7.75, -5, 0, 0]"));
}

TEST(CaseJson, HasArraysInTheirFullIndexRange) {
    const ordered_json json = jsonOf(testing::sampleCase());
    for (const char* key : {"spv", "ptjl", "upl", "plast", "flast"})
        EXPECT_EQ(json[key].size(), 16u) << key;
    for (const char* key : {"safetyClass", "lambdaG", "ksi", "lambdaQ"})
        EXPECT_EQ(json[key].size(), maxLoadCode + 1u) << key;
    for (const char* key : {"llfnr", "avst", "lllast"})
        EXPECT_EQ(json[key].size(), 6u) << key;
    for (const char* key : {"psi0", "psi1", "psi2"}) {
        ASSERT_EQ(json[key].size(), maxLoadCode + 1u) << key;
        for (const auto& row : json[key])
            EXPECT_EQ(row.size(), 10u) << key;
    }
}

TEST(CaseJson, ShowsEmptyFactorsAsNull) {
    const ordered_json json = jsonOf(testing::sampleCase());
    EXPECT_EQ(json["lambdaG"], ordered_json::parse("[null, 1.35, 1.35, 1.35, 1.35, 1.2, 1.35]"));
    for (const auto& cell : json["psi0"][0])
        EXPECT_TRUE(cell.is_null());
    EXPECT_EQ(json["psi2"][4], ordered_json::parse("[0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.3, 0.6, 0.6]"));
}

TEST(CaseJson, WritesTheShortestNumberThatReadsBack) {
    CaseFile loaded = testing::sampleCase();
    loaded.designCase.konsv = 5.3f;
    loaded.designCase.spv(1) = 0.1f;
    loaded.designCase.spv(2) = 16777216.0f;
    loaded.designCase.spv(3) = std::numeric_limits<float>::denorm_min();
    loaded.designCase.ksi(1) = 0.1 + 0.2;
    const std::string text = tool::caseJson(loaded);
    EXPECT_NE(text.find("\"konsv\": 5.3,\n"), std::string::npos);
    EXPECT_NE(text.find("\"spv\": [0, 0.1, 1.6777216E+07, 1E-45, 5.5,"), std::string::npos);
    EXPECT_NE(text.find("\"ksi\": [null, 0.30000000000000004, 0.85,"), std::string::npos);
    const ordered_json json = ordered_json::parse(text);
    EXPECT_EQ(static_cast<float>(json["konsv"].get<double>()), 5.3f);
    EXPECT_EQ(static_cast<float>(json["spv"][3].get<double>()), std::numeric_limits<float>::denorm_min());
}

TEST(CaseJson, LeavesOutWhatIsNotInUse) {
    const ordered_json json = ordered_json::parse(tool::usedCaseJson(testing::sampleCase()));
    EXPECT_EQ(json.size(), jsonOf(testing::sampleCase()).size());
    EXPECT_EQ(json["spv"], ordered_json::parse(R"({"1": 6, "2": 12.5, "3": 0.25})"));
    EXPECT_EQ(json["upl"], ordered_json::parse(R"({"1": 0.1, "2": 0.25})"));
    EXPECT_EQ(json["safetyClass"], ordered_json::parse(R"({"3": 2})"));
    EXPECT_EQ(json["lambdaG"], ordered_json::parse(R"({"3": 1.35})"));
    EXPECT_EQ(json["psi1"], ordered_json::parse(R"({"3": {"2": 0.5}})"));
    EXPECT_EQ(json["llfnr"], ordered_json::parse(R"({"1": 1, "2": 3})"));
    EXPECT_EQ(json["lllast"], ordered_json::parse(R"({"1": 10, "2": 7.75})"));
    EXPECT_EQ(json["konsv"], 1.2);
    CaseFile none = testing::sampleCase();
    none.designCase.nllast = 0;
    none.designCase.loadCode = 0;
    const ordered_json bare = ordered_json::parse(tool::usedCaseJson(none));
    EXPECT_EQ(bare["avst"], ordered_json::object());
    EXPECT_TRUE(bare["ksi"]["0"].is_null());
}

TEST(CaseJson, KeepsTheSignOfZero) {
    CaseFile loaded = testing::sampleCase();
    loaded.designCase.konsh = -0.0f;
    EXPECT_NE(tool::caseJson(loaded).find("\"konsh\": -0.0,"), std::string::npos);
}

TEST(CaseJson, EscapesWhatJsonReserves) {
    CaseFile loaded = testing::sampleCase();
    loaded.title = std::string("a\"b\\c/\t\0", 8) + "\x1F\x7F €\u0081";
    const std::string text = tool::caseJson(loaded);
    EXPECT_NE(text.find("a\\\"b\\\\c/\\u0009\\u0000\\u001f\\u007f €\u0081"), std::string::npos) << text;
    EXPECT_EQ(ordered_json::parse(text)["rubrik"], loaded.title);
}

} // namespace

} // namespace varno
