#pragma once

#include <string>
#include <vector>

namespace varno::tool {

/// The arguments of the program without its name, as UTF-8.
std::vector<std::string> utf8Arguments(int count, char** values);

/// For as long as it lives, what is written to the standard output arrives byte for byte, and a console takes
/// it for UTF-8.
class Utf8Output {
  public:
    Utf8Output();
    ~Utf8Output();
    Utf8Output(const Utf8Output&) = delete;
    Utf8Output& operator=(const Utf8Output&) = delete;

  private:
    [[maybe_unused]] unsigned codePageBefore_ = 0;
};

} // namespace varno::tool
