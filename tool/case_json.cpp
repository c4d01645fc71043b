#include "tool/case_json.h"

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

void addLoads(JsonObject& json, const DesignCase& c) {
    json.add("loadCode", c.loadCode);
    json.add("safetyClass", c.safetyClass);
    json.add("nfack", c.nfack);
    json.add("spv", c.spv);
    json.add("ptjl", c.ptjl);
    json.add("upl", c.upl);
    json.add("plast", c.plast);
    json.add("flast", c.flast);
    json.add("konsv", c.konsv);
    json.add("konsh", c.konsh);
    json.add("lokt", c.lokt);
    json.add("lambdaG", c.lambdaG);
    json.add("ksi", c.ksi);
    json.add("lambdaQ", c.lambdaQ);
    json.add("psi0", c.psi0);
    json.add("psi1", c.psi1);
    json.add("psi2", c.psi2);
    json.add("lastkomb", c.lastkomb);
    json.add("brukskomb", c.brukskomb);
}

void addMaterials(JsonObject& json, const DesignCase& c) {
    json.add("btg", c.btg);
    json.add("aok", c.aok);
    json.add("dok", c.dok);
    json.add("kavko", c.kavko);
    json.add("ktack", c.ktack);
    json.add("auk", c.auk);
    json.add("duk", c.duk);
    json.add("duarm", c.duarm);
    json.add("brandk", c.brandk);
    json.add("brandb", c.brandb);
    json.add("kutak", c.kutak);
    json.add("overhojning", c.overhojning);
    json.add("initiell", c.initiell);
    json.add("tillkommande", c.tillkommande);
    json.add("reservedValue", c.reservedValue);
}

} // namespace

std::string caseJson(const CaseFile& loaded) {
    const DesignCase& c = loaded.designCase;
    JsonObject json;
    json.add("currentFileName", loaded.name);
    json.add("rubrik", loaded.title);
    addLoads(json, c);
    addMaterials(json, c);
    json.add("nllast", c.nllast);
    json.add("llfnr", c.llfnr);
    json.add("avst", c.avst);
    json.add("lllast", c.lllast);
    return json.text();
}

} // namespace varno::tool
