#pragma once

#include <span>
#include <stdexcept>
#include <string_view>

namespace varno::fuzz {

/// A reader broke a promise that holds for any bytes whatever.
class BrokenPromise : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};

/// Gives bytes to one reader of the program. Anything thrown is a defect.
struct Reader {
    std::string_view name; ///< also the folder of its corpus
    void (*run)(std::string_view bytes);
};

std::span<const Reader> readers();

} // namespace varno::fuzz
