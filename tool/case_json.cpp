#include <algorithm>

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

// Elements `first` to `last` by their index.
template <typename Array>
std::string elements(const Array& array, int first, int last, const auto& textOf) {
    std::string out;
    for (int i = first; i <= std::min(last, Array::last); ++i)
        out += (out.empty() ? "\"" : ", \"") + std::to_string(i) + "\": " + textOf(array(i));
    return "{" + out + "}";
}

// What a case has in use of a field of the record.
class Used {
  public:
    explicit Used(const DesignCase& designCase) : case_(designCase) {}

    template <typename Number>
    requires std::is_arithmetic_v<Number> std::string operator()(Number DesignCase::*field) const {
        return jsonOf(case_.*field);
    }
    std::string operator()(SpanArray DesignCase::*field) const {
        // The end supports have no width.
        const int last = field == &DesignCase::upl ? case_.nfack - 1 : case_.nfack;
        return some(case_.*field, 1, last);
    }
    std::string operator()(LineLoadReals DesignCase::*field) const { return lineLoads(field); }
    std::string operator()(LineLoadIntegers DesignCase::*field) const { return lineLoads(field); }
    std::string operator()(FactorPerCategory DesignCase::*field) const {
        const auto cell = [&](const auto& row) { return some(row, case_.lokt, case_.lokt); };
        const FactorPerCategory& table = case_.*field;
        return "{\"" + std::to_string(case_.loadCode) + "\": " + cell(table(case_.loadCode)) + "}";
    }
    template <typename Array>
    std::string operator()(Array DesignCase::*field) const {
        return some(case_.*field, case_.loadCode, case_.loadCode);
    }

  private:
    template <typename Array>
    static std::string some(const Array& array, int first, int last) {
        return elements(array, first, last, [](const auto& element) { return jsonOf(element); });
    }
    std::string lineLoads(auto field) const { return some(case_.*field, 1, case_.nllast); }

    const DesignCase& case_;
};

template <typename Value>
std::string objectOf(const CaseFile& loaded, const Value& value) {
    std::string members;
    const auto add = [&](const char* name, const std::string& json) {
        members += (members.empty() ? "" : ",\n  ") + jsonOf(std::string(name)) + ": " + json;
    };
    add("currentFileName", jsonOf(loaded.name));
    add("rubrik", jsonOf(loaded.title));
    forEachField(fileFields, [&](const char* name, auto field) { add(name, value(field)); });
    return "{\n  " + members + "\n}\n";
}

} // namespace

std::string caseJson(const CaseFile& loaded) {
    return objectOf(loaded, [&](auto field) { return jsonOf(loaded.designCase.*field); });
}

std::string usedCaseJson(const CaseFile& loaded) {
    return objectOf(loaded, Used(loaded.designCase));
}

} // namespace varno::tool
