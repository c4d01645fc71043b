// What a JSON object may say of a case:
//   - a field of the record by its name; what is not named stays as it is in the base;
//   - an array as an array from index 0, as long as it likes up to the last index, or as an object that names the
//     elements it is about, {"2": 6.4};
//   - null for a factor that is empty.
// Nothing else is taken: an unknown name, an index that the array does not have, a text for a number, a name that stands
// twice. A script that misspells a name must not get a hundred variants that are all the same.
#include <array>
#include <limits>
#include <nlohmann/json.hpp>
#include <set>

#include "base/numbers.h"
#include "model/record_fields.h"
#include "model/strict_number.h"
#include "tool/commands.h"
#include "tool/nearest.h"

namespace varno::tool {

namespace {

using nlohmann::json;

constexpr const char* nameField = "currentFileName";
constexpr const char* titleField = "rubrik";

[[noreturn]] void refuse(const std::string& field, const std::string& reason) {
    throw InputError("Fältet \"" + field + "\": " + reason + ".");
}

std::vector<std::string> fieldNames() {
    std::vector<std::string> names{nameField, titleField};
    forEachField(fileFields, [&](const char* name, auto) { names.emplace_back(name); });
    return names;
}

// The library keeps the last of two values with one name.
json parsed(const std::string& text) {
    std::vector<std::set<std::string>> names;
    const auto watch = [&](int, json::parse_event_t event, json& value) {
        if (event == json::parse_event_t::object_start) names.emplace_back();
        if (event == json::parse_event_t::object_end) names.pop_back();
        if (event == json::parse_event_t::key && !names.back().insert(value.get<std::string>()).second)
            refuse(value.get<std::string>(), "står två gånger");
        return true;
    };
    try {
        return json::parse(text, watch);
    } catch (const json::parse_error& error) {
        throw InputError("Texten är ingen JSON: felet står vid tecken " + std::to_string(error.byte) + ".");
    } catch (const json::out_of_range&) {
        throw InputError("Texten har ett tal som är för stort.");
    }
}

void take(const std::string& field, const json& value, std::string& target) {
    if (!value.is_string()) refuse(field, "ska vara en text");
    target = value.get<std::string>();
}

void take(const std::string& field, const json& value, std::int16_t& target) {
    using Limit = std::numeric_limits<std::int16_t>;
    const double number = value.is_number() ? value.get<double>() : 0.5;
    if (!(number >= Limit::min() && number <= Limit::max()) || number != std::floor(number))
        refuse(field, "ska vara ett heltal från -32768 till 32767");
    target = static_cast<std::int16_t>(number);
}

// From the text of the number and not by way of a double, which would round twice.
void take(const std::string& field, const json& value, float& target) {
    if (!value.is_number()) refuse(field, "ska vara ett tal");
    float number = 0;
    if (readStrictly(value.dump(), number) == std::errc::result_out_of_range &&
        std::abs(value.get<double>()) > 1)
        refuse(field, "är för stort");
    target = number;
}

void take(const std::string& field, const json& value, Factor& target) {
    if (!value.is_null() && !value.is_number()) refuse(field, "ska vara ett tal eller null");
    target = value.is_null() ? Factor() : Factor(value.get<double>());
}

int indexOf(const std::string& field, const std::string& key, int last) {
    int index = -1;
    if (readStrictly(key, index) != std::errc() || index < 0 || index > last || std::to_string(index) != key)
        refuse(field + "[" + key + "]", "numret ska vara 0 till " + std::to_string(last));
    return index;
}

// Calls `take(name of the element, its value, its index)` for what is said of an array.
template <typename Take>
void takeElements(const std::string& field, const json& value, int last, Take takeElement) {
    if (!value.is_array() && !value.is_object())
        refuse(field, "ska vara en lista, eller ett objekt med element efter nummer");
    if (value.is_array() && value.size() > static_cast<std::size_t>(last) + 1)
        refuse(field, "har fler än " + std::to_string(last + 1) + " element");
    const auto one = [&](const std::string& key, const json& element) {
        takeElement(field + "[" + key + "]", element, indexOf(field, key, last));
    };
    for (const auto& [key, element] : value.items())
        one(key, element);
}

template <typename T, int First, int Last>
void take(const std::string& field, const json& value, BoundedArray<T, First, Last>& target) {
    static_assert(First == 0);
    takeElements(field, value, Last, [&](const std::string& name, const json& element, int i) {
        take(name, element, target(i));
    });
}

void take(const std::string& field, const json& value, FactorPerCategory& target) {
    takeElements(field, value, maxLoadCode, [&](const std::string& row, const json& cells, int ruleSet) {
        takeElements(row, cells, maxLoadCategory,
                     [&](const std::string& name, const json& cell, int category) {
                         take(name, cell, target(ruleSet, category));
                     });
    });
}

bool takeField(const std::string& key, const json& value, CaseFile& target) {
    if (key == nameField) return take(key, value, target.name), true;
    if (key == titleField) return take(key, value, target.title), true;
    bool known = false;
    forEachField(fileFields, [&](const char* name, auto field) {
        if (key != name) return;
        known = true;
        take(key, value, target.designCase.*field);
    });
    return known;
}

} // namespace

CaseFile caseFromJson(const std::string& text, const CaseFile& base) {
    const json object = parsed(text);
    if (!object.is_object()) throw InputError("Texten är inget JSON-objekt.");
    CaseFile read = base;
    for (const auto& [key, value] : object.items()) {
        if (!takeField(key, value, read))
            throw InputError("Fältet \"" + key + "\" finns inte" + suggestion(key, fieldNames()));
    }
    return read;
}

} // namespace varno::tool
