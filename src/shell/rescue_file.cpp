#include "shell/rescue_file.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <utility>

#include "base/numbers.h"
#include "model/record_fields.h"

namespace varno {

namespace {

constexpr std::string_view head = "varno raddning 1";
constexpr std::string_view endKey = "slut=";
constexpr std::string_view lineEnd = "\r\n";

// FNV-1a: tells a whole file from one that a disk gave back in part.
std::string checksum(std::string_view text) {
    std::uint32_t sum = 2166136261u;
    for (const char c : text)
        sum = (sum ^ static_cast<unsigned char>(c)) * 16777619u;
    return std::to_string(sum);
}

struct TextLine {
    const char* name;
    std::string RescuedCase::*field;
};
constexpr TextLine textLines[]{
    {"rubrik", &RescuedCase::title},
    {"currentFileName", &RescuedCase::currentFileName},
    {"savedFileName", &RescuedCase::savedFileName},
    {"readFrom", &RescuedCase::readFrom},
    {"savedTo", &RescuedCase::savedTo},
    {"directory", &RescuedCase::directory},
    {"changed", &RescuedCase::changed},
};
constexpr const char* caseSavedName = "caseSaved";

// Writing

std::string escaped(const std::string& text) {
    std::string out;
    for (const char c : text) {
        if (c == '\\')
            out += "\\\\";
        else if (c == '\n')
            out += "\\n";
        else if (c == '\r')
            out += "\\r";
        else
            out += c;
    }
    return out;
}

std::string valueText(std::int16_t value) {
    return std::to_string(value);
}
std::string valueText(float value) {
    return generalForm(value);
}
std::string valueText(const Factor& value) {
    return value ? generalForm(*value) : "-";
}
template <typename T, int First, int Last>
std::string valueText(const BoundedArray<T, First, Last>& array) {
    std::string out;
    for (const T& cell : array)
        out += (out.empty() ? "" : " ") + valueText(cell);
    return out;
}
std::string valueText(const FactorPerCategory& table) {
    std::string out;
    for (int ruleSet = 0; ruleSet <= maxLoadCode; ++ruleSet) {
        for (int category = 0; category <= maxLoadCategory; ++category)
            out += (out.empty() ? "" : " ") + valueText(table(ruleSet, category));
    }
    return out;
}

// Reading. A value that does not read leaves the file unread: half a case is no case.

struct Damaged {};

class Words {
  public:
    explicit Words(std::string_view text) : text_(text) {}
    std::string_view next() {
        const auto end = std::min(text_.find(' '), text_.size());
        const std::string_view word = text_.substr(0, end);
        text_.remove_prefix(std::min(end + 1, text_.size()));
        return word;
    }

  private:
    std::string_view text_;
};

template <typename Number>
Number numberOf(std::string_view word) {
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) throw Damaged();
    return number;
}

void take(Words& words, std::int16_t& value) {
    value = numberOf<std::int16_t>(words.next());
}
void take(Words& words, float& value) {
    value = numberOf<float>(words.next());
}
void take(Words& words, Factor& value) {
    const std::string_view word = words.next();
    if (word == "-")
        value.reset();
    else
        value = numberOf<double>(word);
}
template <typename T, int First, int Last>
void take(Words& words, BoundedArray<T, First, Last>& array) {
    for (int i = First; i <= Last; ++i)
        take(words, array(i));
}
void take(Words& words, FactorPerCategory& table) {
    for (int ruleSet = 0; ruleSet <= maxLoadCode; ++ruleSet) {
        for (int category = 0; category <= maxLoadCategory; ++category)
            take(words, table(ruleSet, category));
    }
}

std::string unescaped(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            out += text[i];
            continue;
        }
        const char c = text[++i];
        out += c == 'n' ? '\n' : c == 'r' ? '\r' : c;
    }
    return out;
}

using Values = std::map<std::string_view, std::string_view>;

// The lines between the first and the last; nothing when those two are not what they should be.
std::optional<Values> valuesOf(std::string_view text) {
    if (!text.starts_with(std::string(head) + std::string(lineEnd))) return std::nullopt;
    const auto end = text.rfind(endKey);
    if (end == std::string_view::npos) return std::nullopt;
    std::string_view last = text.substr(end + endKey.size());
    if (last.ends_with(lineEnd)) last.remove_suffix(lineEnd.size());
    if (last != checksum(text.substr(0, end))) return std::nullopt;
    text = text.substr(0, end);
    Values values;
    while (!text.empty()) {
        const auto length = text.find(lineEnd);
        if (length == std::string_view::npos) return std::nullopt;
        const std::string_view line = text.substr(0, length);
        text.remove_prefix(length + lineEnd.size());
        const auto equals = line.find('=');
        if (equals != std::string_view::npos) values[line.substr(0, equals)] = line.substr(equals + 1);
    }
    return values;
}

// The numbers that choose elements of arrays.
bool fitsTheProgram(const DesignCase& c) {
    const auto within = [](int number, int first, int last) { return number >= first && number <= last; };
    return within(c.nfack, 1, maxSpans) && within(c.loadCode, 0, maxLoadCode) &&
           within(c.lokt, 0, maxLoadCategory) && within(c.nllast, 0, maxLineLoads) &&
           within(c.nllastf, 0, maxLineLoads);
}

} // namespace

Bytes rescueText(const RescuedCase& rescued) {
    Bytes out(head);
    out += lineEnd;
    const auto line = [&out](const char* name, const std::string& value) {
        out += std::string(name) + "=" + value + std::string(lineEnd);
    };
    for (const TextLine& text : textLines)
        line(text.name, escaped(rescued.*text.field));
    line(caseSavedName, valueText(static_cast<std::int16_t>(rescued.caseSaved)));
    forEachRecordField(
        [&](const char* name, auto field) { line(name, valueText(rescued.designCase.*field)); });
    return out + std::string(endKey) + checksum(out);
}

std::optional<RescuedCase> readRescue(const Bytes& text) {
    const std::optional<Values> values = valuesOf(text);
    if (!values) return std::nullopt;
    RescuedCase rescued;
    const auto given = [&](const char* name, auto read) {
        if (const auto found = values->find(name); found != values->end()) read(found->second);
    };
    for (const TextLine& field : textLines)
        given(field.name, [&](std::string_view value) { rescued.*field.field = unescaped(value); });
    try {
        given(caseSavedName,
              [&](std::string_view value) { rescued.caseSaved = numberOf<std::int16_t>(value) != 0; });
        forEachRecordField([&](const char* name, auto field) {
            given(name, [&](std::string_view value) {
                Words words(value);
                take(words, rescued.designCase.*field);
            });
        });
    } catch (const Damaged&) {
        return std::nullopt;
    }
    return fitsTheProgram(rescued.designCase) ? std::optional(rescued) : std::nullopt;
}

} // namespace varno
