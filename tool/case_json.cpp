#include "tool/case_json.h"

#include <cmath>
#include <cstdio>

#include "base/numbers.h"

namespace varno::tool {

namespace {

std::string jsonOf(const std::string& utf8) {
    std::string out = "\"";
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(byte));
            out += escape;
        } else {
            out += c;
        }
    }
    return out + '"';
}

std::string jsonOf(std::int16_t value) {
    return std::to_string(value);
}

// The general form has no sign for a zero, a single may have one.
template <typename Real>
std::string jsonOfReal(Real value) {
    return value == 0 && std::signbit(value) ? "-0.0" : generalForm(value);
}
std::string jsonOf(float value) {
    return jsonOfReal(value);
}
std::string jsonOf(const Factor& factor) {
    return factor ? jsonOfReal(*factor) : "null";
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

std::string caseJson(const LoadedCase& loaded) {
    const DesignCase& c = loaded.designCase;
    JsonObject json;
    json.add("currentFileName", loaded.document.currentFileName);
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
