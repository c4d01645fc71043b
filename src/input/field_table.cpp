#include "input/field_table.h"

#include <algorithm>

#include "base/text.h"
#include "input/number_box.h"

namespace varno {

namespace {

template <typename Table>
const typename Table::value_type* rowOf(const Table& table, Field field) {
    const auto row = std::ranges::find(table, field, [](const auto& candidate) { return candidate.field; });
    return row == table.end() ? nullptr : &*row;
}

// What stands between the brackets at the end of a caption.
std::string_view bracketed(std::string_view caption) {
    const auto open = caption.find('(');
    return open == std::string_view::npos ? "" : caption.substr(open + 1, caption.size() - open - 2);
}

std::string_view spokenCaption(const FieldRow& row) {
    return row.spoken.empty() || row.spoken.starts_with(',') ? row.caption : row.spoken;
}

} // namespace

const FieldRow* fieldRow(Field field) {
    if (const TextField* row = textField(field)) return row;
    if (const ChoiceField* row = choiceField(field)) return row;
    return rowOf(otherFields, field == Field::spin1 ? Field::nfack : field);
}
const TextField* textField(Field field) {
    return rowOf(textFields, field);
}
const ChoiceField* choiceField(Field field) {
    return rowOf(choiceFields, field);
}

std::optional<double> numberOf(const DesignCase& designCase, const TextField& row, int index) {
    const int set = designCase.loadCode;
    if (const auto* cells = std::get_if<SpanArray DesignCase::*>(&row.place))
        return digitsOf((designCase.**cells)(index));
    if (const auto* single = std::get_if<float DesignCase::*>(&row.place))
        return digitsOf(designCase.**single);
    if (const auto* factor = std::get_if<FactorPerRuleSet DesignCase::*>(&row.place))
        return (designCase.**factor)(set);
    if (const auto* factor = std::get_if<FactorPerCategory DesignCase::*>(&row.place))
        return (designCase.**factor)(set, designCase.lokt);
    return designCase.*std::get<std::int16_t DesignCase::*>(row.place);
}

std::span<const std::string_view> fireOptions(int fireClass) {
    return fireClass == 2 ? fireLoads : fireResistances;
}

std::optional<std::string> choiceText(Field field, const DesignCase& designCase) {
    const ChoiceField& row = *choiceField(field);
    const auto options = field == Field::brandb ? fireOptions(designCase.brandk) : row.options;
    const int place = designCase.*row.place - row.firstNumber;
    if (place < 0 || place >= static_cast<int>(options.size())) return {};
    std::string words = trimBlanks(options[static_cast<std::size_t>(place)]);
    // Some rows are padded within.
    const auto pad = words.find("  ");
    return pad == std::string::npos ? words : words.erase(pad, 1);
}

std::string accessibleName(Control control) {
    const FieldRow* const row = fieldRow(control.field);
    const ChoiceField* const choice = choiceField(control.field);
    if (row == nullptr || (choice != nullptr && choice->kind != ChoiceKind::list)) return {};
    std::string name = trimBlanks(spokenCaption(*row));
    if (name.ends_with(':')) name.pop_back();
    if (row->spoken.starts_with(',')) name += row->spoken;
    if (!row->unit.empty()) name += " (" + std::string(row->unit) + ")";
    if (const TextField* text = textField(control.field); text != nullptr && text->isPerSpan())
        name += (control.field == Field::upl ? ", stöd " : ", fack ") + std::to_string(control.index);
    return name;
}

std::string fieldTopic(Field field) {
    const FieldRow* const row = fieldRow(field);
    if (row == nullptr) return {};
    std::string topic = "falt-";
    for (const char c : row->name)
        topic += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    return topic;
}

std::string plainCaption(Field field) {
    const std::string_view caption = spokenCaption(*fieldRow(field));
    return trimBlanks(caption.substr(0, caption.find('(')));
}

std::string unitOf(Field field) {
    const FieldRow& row = *fieldRow(field);
    return std::string(row.unit.empty() ? bracketed(row.caption) : row.unit);
}

} // namespace varno
