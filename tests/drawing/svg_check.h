#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace varno::testing {

/// Reads a document of elements and attributes only, and says what is not well-formed about it, or which
/// number is none; empty when it is in order.
class SvgCheck {
  public:
    explicit SvgCheck(std::string_view text) : rest_(text) {}

    std::string fault() {
        bool hadRoot = false;
        for (skipBlanks(); !rest_.empty(); skipBlanks()) {
            if (open_.empty() && hadRoot) return "something after the root element";
            hadRoot = true;
            if (!take("<")) return "text outside elements";
            const std::string wrong = take("/") ? closing() : opening();
            if (!wrong.empty()) return wrong;
        }
        if (!open_.empty()) return "not closed: " + open_.back();
        return hadRoot ? "" : "empty";
    }

  private:
    std::string opening() {
        const std::string name = takeName();
        if (name.empty()) return "no element name";
        std::set<std::string> seen;
        for (skipBlanks(); !rest_.starts_with("/") && !rest_.starts_with(">"); skipBlanks()) {
            const std::string attribute = takeName();
            if (attribute.empty() || !seen.insert(attribute).second) return "attribute of " + name;
            if (!take("=\"")) return "no value: " + attribute;
            const auto end = rest_.find('"');
            if (end == std::string_view::npos) return "value without an end";
            const std::string_view value = rest_.substr(0, end);
            for (const char* no : {"<", "&", "nan", "inf"}) {
                if (value.find(no) != std::string_view::npos) return "value: " + std::string(value);
            }
            rest_.remove_prefix(end + 1);
        }
        const bool empty = take("/");
        if (!take(">")) return "element without an end: " + name;
        if (!empty) open_.push_back(name);
        return "";
    }

    std::string closing() {
        const std::string name = takeName();
        if (open_.empty() || open_.back() != name || !take(">")) return "wrongly closed: " + name;
        open_.pop_back();
        return "";
    }

    bool take(std::string_view expected) {
        if (!rest_.starts_with(expected)) return false;
        rest_.remove_prefix(expected.size());
        return true;
    }
    void skipBlanks() {
        while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\n'))
            rest_.remove_prefix(1);
    }
    std::string takeName() {
        std::size_t length = 0;
        const auto inName = [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-';
        };
        while (length < rest_.size() && inName(rest_[length]))
            ++length;
        const std::string name(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return name;
    }

    std::string_view rest_;
    std::vector<std::string> open_;
};

inline std::string svgFault(std::string_view text) {
    return SvgCheck(text).fault();
}

} // namespace varno::testing
