#include "tool/nearest.h"

#include <algorithm>
#include <numeric>

namespace varno::tool {

namespace {

char lower(char c) {
    return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

// How many letters must be put in, taken out or exchanged; the case of a letter counts for nothing.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t exchanged = diagonal + (lower(a[i - 1]) == lower(b[j - 1]) ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({exchanged, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string nearestName(std::string_view word, const std::vector<std::string>& names) {
    // Beyond half of its letters a word is another one.
    std::size_t best = word.size() / 2 + 1;
    std::string nearest;
    for (const std::string& name : names) {
        const std::size_t far = distance(word, name);
        if (far >= best) continue;
        best = far;
        nearest = name;
    }
    return nearest;
}

std::string suggestion(std::string_view word, const std::vector<std::string>& names) {
    const std::string nearest = nearestName(word, names);
    return nearest.empty() ? "." : "; menade Du \"" + nearest + "\"?";
}

} // namespace varno::tool
