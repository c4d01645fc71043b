#include "tool/case_json.h"

#include "model/record_fields.h"
#include "tool/json_text.h"

namespace varno::tool {

namespace {

std::string jsonOf(std::int16_t value) {
    return std::to_string(value);
}

std::string jsonOf(const std::string& utf8) {
    return jsonText(utf8);
}
std::string jsonOf(float value) {
    return jsonNumber(value);
}
std::string jsonOf(const Factor& factor) {
    return factor ? jsonNumber(*factor) : "null";
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
    for (int ruleSet = 0; ruleSet <= maxLoadCode; ++ruleSet) {
        out += ruleSet == 0 ? "\n    [" : ",\n    [";
        for (int category = 0; category <= maxLoadCategory; ++category)
            out += (category == 0 ? "" : ", ") + jsonOf(table(ruleSet, category));
        out += "]";
    }
    return "[" + out + "\n  ]";
}

class JsonObject {
  public:
    template <typename Value>
    void add(const char* key, const Value& value) {
        text_ += text_.empty() ? "{\n  " : ",\n  ";
        text_ += jsonOf(std::string(key)) + ": " + jsonOf(value);
    }
    std::string text() const { return text_ + "\n}\n"; }

  private:
    std::string text_;
};

} // namespace

std::string caseJson(const CaseFile& loaded) {
    JsonObject json;
    json.add("currentFileName", loaded.name);
    json.add("rubrik", loaded.title);
    forEachField(fileFields, [&](const char* name, auto field) { json.add(name, loaded.designCase.*field); });
    return json.text();
}

} // namespace varno::tool
