#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/file_calls.h"

namespace varno {

/// The cases that were opened or saved last, in a file of the user's that all running programs share. Where it cannot be
/// read or written there are none; that is no reason to stop anything.
class RecentCases {
  public:
    static constexpr std::size_t most = 8;

    explicit RecentCases(FileCalls& calls) : calls_(calls) {}

    /// Where the file is; without a folder nothing is kept.
    void start(const std::string& folder);
    /// Full paths, the last used first.
    std::vector<std::string> list();
    void add(const std::string& path);
    /// A file that is gone leaves the list.
    void dropMissing(const std::string& path);

  private:
    void keep(const std::vector<std::string>& paths);

    FileCalls& calls_;
    std::string file_;
};

/// The row of an empty menu.
inline constexpr const char* noRecentCases = "Inget fall har öppnats";

/// The captions of the paths as a menu shows them, numbered for the keyboard.
std::vector<std::string> recentCaptions(const std::vector<std::string>& paths);

} // namespace varno
