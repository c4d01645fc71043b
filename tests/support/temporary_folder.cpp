#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace varno::testing {

namespace {

std::filesystem::path fromUtf8(const std::string& text) {
    return {std::u8string(text.begin(), text.end())};
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    do {
        outer_ = std::filesystem::temp_directory_path() / ("varno-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(outer_));
    folder_ = outer_ / fromUtf8("Åäö prov");
    std::filesystem::create_directory(folder_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(outer_, ignored);
}

std::filesystem::path TemporaryFolder::file(const std::string& name) const {
    return (folder_ / fromUtf8(name)).make_preferred();
}

std::string TemporaryFolder::path(const std::string& name) const {
    const std::u8string text = file(name).u8string();
    return {text.begin(), text.end()};
}

void TemporaryFolder::write(const std::string& name, const Bytes& bytes) const {
    std::ofstream out(file(name), std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(out.flush()) << "cannot write " << name;
}

Bytes TemporaryFolder::read(const std::string& name) const {
    return contentOf(file(name));
}

std::size_t TemporaryFolder::count() const {
    const std::filesystem::directory_iterator entries(folder_);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

Bytes contentOf(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in) << "cannot read " << path;
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace varno::testing
