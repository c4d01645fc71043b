#include "tests/engine/support.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <utility>

namespace varno::engine::test {
namespace {

std::string padded(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

std::string real(double value, std::size_t width) {
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.3f", value);
    return padded(buffer.data(), width);
}

std::string row(const std::vector<double>& values, std::size_t width) {
    std::string text;
    for (const double value : values)
        text += real(value, width);
    return text;
}

constexpr std::array<std::pair<unsigned char, unsigned char>, 6> dosAndWindows{
    {{143, 0xC5}, {142, 0xC4}, {153, 0xD6}, {134, 0xE5}, {132, 0xE4}, {148, 0xF6}}};

} // namespace

std::string CaseFile::text(std::string_view end) const {
    std::string all;
    for (const auto& one : lines)
        (all += one) += end;
    return all;
}

CaseFile caseFile(const CaseValues& v) {
    CaseFile file;
    auto& l = file.lines;
    l = {v.name, v.title, "1", "2", std::to_string(v.spv.size())};
    l.push_back(row(v.spv, 7));
    l.push_back(row(v.ptjl, 7));
    l.push_back(row(v.upl, 6));
    l.push_back("1");
    l.push_back(row({v.lambdaG, 0.89, v.lambdaQ, 0.7, 0.5, 0.3}, 7));
    l.push_back("3");
    l.push_back(row(v.plast, 7));
    l.push_back(row(v.flast, 7));
    l.push_back(real(v.konsv, 0));
    l.push_back(real(v.konsh, 0));
    // As a real line is written: no padding.
    l[13] = std::to_string(v.konsv);
    l[14] = std::to_string(v.konsh);
    for (const char* whole :
         {"3", "2", "2", "1", "20", "2", "3", "42", "1", "2", "1", "77", "20", "400", "300", "1"})
        l.emplace_back(whole);
    l.push_back(std::to_string(v.nllast));
    for (std::size_t i = 0; i < 5; ++i) {
        const auto load = i < v.loads.size() ? v.loads[i] : CaseLoad{0, 0, 0};
        l.push_back(padded(std::to_string(load.span), 3) + real(load.distance, 7) + real(load.load, 7));
    }
    return file;
}

CaseValues equalSpans(int n, double length, double plast, double flast) {
    const auto count = static_cast<std::size_t>(n);
    CaseValues v;
    v.spv.assign(count, length);
    v.ptjl.assign(count, 0.17);
    v.upl.assign(count + 1, 0);
    v.plast.assign(count, plast);
    v.flast.assign(count, flast);
    return v;
}

std::filesystem::path path(const std::string& utf8) {
    return {std::u8string{utf8.begin(), utf8.end()}};
}

WorkFolder::WorkFolder(const std::string& name) : before_(std::filesystem::current_path()) {
    // Several test programs may run at once.
    std::random_device random;
    do
        folder_ = std::filesystem::temp_directory_path() / ("varnowb_" + std::to_string(random()));
    while (!std::filesystem::create_directory(folder_));
    std::filesystem::create_directory(folder_ / path(name));
    std::filesystem::current_path(folder_ / path(name));
}

WorkFolder::~WorkFolder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
    std::filesystem::remove_all(folder_, ignored);
}

void write(const std::string& name, std::string_view bytes) {
    std::ofstream file(path(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::optional<std::string> read(const std::string& name) {
    std::ifstream file(path(name), std::ios::binary);
    if (!file) return {};
    return std::string{std::istreambuf_iterator<char>{file}, {}};
}

std::vector<std::string> namesInFolder() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator{"."}) {
        const auto utf8 = entry.path().filename().u8string();
        names.emplace_back(utf8.begin(), utf8.end());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> crLfLines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const auto end = text.find("\r\n", start);
        if (end == std::string::npos) throw std::runtime_error("the last line has no end");
        lines.push_back(text.substr(start, end - start));
        if (lines.back().find_first_of("\r\n") != std::string::npos)
            throw std::runtime_error("a line end that is not CR LF");
        start = end + 2;
    }
    return lines;
}

std::string asShown(const std::string& text) {
    std::string shown;
    for (const auto& line : crLfLines(text)) {
        shown += "\r\n" + line;
        for (const auto& [dos, win] : dosAndWindows)
            if (const auto at = shown.find(static_cast<char>(dos)); at != std::string::npos)
                shown[at] = static_cast<char>(win);
    }
    return shown;
}

std::string windows(std::string_view utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        if (utf8[i] == '\xC3')
            bytes += static_cast<char>(static_cast<unsigned char>(utf8[++i]) + 0x40);
        else
            bytes += utf8[i];
    }
    return bytes;
}

} // namespace varno::engine::test
