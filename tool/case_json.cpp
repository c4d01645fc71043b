#include "model/record_fields.h"
#include "tool/commands.h"
#include "tool/json_text.h"

namespace varno::tool {

namespace {

using tool::jsonOf;

std::string jsonOf(const Factor& factor) {
    return factor ? jsonOf(*factor) : "null";
}

template <typename T, int First, int Last>
std::string jsonOf(const BoundedArray<T, First, Last>& array) {
    static_assert(First == 0, "the place in the JSON array is the index");
    std::string out;
    for (const T& cell : array)
        out += (out.empty() ? "" : ", ") + jsonOf(cell);
    return "[" + out + "]";
}

std::string jsonOf(const FactorPerCategory& table) {
    std::string out;
    for (int ruleSet = 0; ruleSet <= maxLoadCode; ++ruleSet)
        out += (out.empty() ? "\n    " : ",\n    ") + jsonOf(table(ruleSet));
    return "[" + out + "\n  ]";
}

} // namespace

std::string caseJson(const CaseFile& loaded) {
    std::string members;
    const auto add = [&](const char* name, const auto& value) {
        members += (members.empty() ? "" : ",\n  ") + jsonOf(std::string(name)) + ": " + jsonOf(value);
    };
    add("currentFileName", loaded.name);
    add("rubrik", loaded.title);
    forEachField(fileFields, [&](const char* name, auto field) { add(name, loaded.designCase.*field); });
    return "{\n  " + members + "\n}\n";
}

} // namespace varno::tool
