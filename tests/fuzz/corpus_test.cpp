#include <gtest/gtest.h>

#include <filesystem>

#include "fuzz/readers.h"
#include "support/temporary_folder.h"

// What the fuzzer found worth keeping, and every input that ever broke a reader, read again.
namespace varno {

namespace {

namespace fs = std::filesystem;

class FuzzCorpus : public ::testing::TestWithParam<fuzz::Reader> {};

TEST_P(FuzzCorpus, IsReadOrRefused) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(VARNO_FUZZ_CORPUS) / GetParam().name)) {
        const Bytes bytes = testing::contentOf(entry.path());
        EXPECT_NO_THROW(GetParam().run(bytes)) << entry.path();
        // What a broken disk makes of it.
        for (std::size_t size = 0; size < bytes.size(); size += 1 + bytes.size() / 50)
            EXPECT_NO_THROW(GetParam().run(bytes.substr(0, size))) << entry.path() << " cut to " << size;
        ++count;
    }
    EXPECT_GT(count, 0) << "the corpus is empty";
}

INSTANTIATE_TEST_SUITE_P(Readers, FuzzCorpus,
                         ::testing::ValuesIn(fuzz::readers().begin(), fuzz::readers().end()),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

} // namespace

} // namespace varno
