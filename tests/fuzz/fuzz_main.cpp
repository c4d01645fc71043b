// One reader under libFuzzer, which brings its own main.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fuzz/readers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const varno::fuzz::Reader& reader : varno::fuzz::readers()) {
        if (reader.name != VARNO_FUZZ_READER) continue;
        reader.run({reinterpret_cast<const char*>(data), size});
        return 0;
    }
    std::abort();
}
