#pragma once

#include "base/folders.h"

namespace varno::win32 {

class WindowsFolders : public Folders {
  public:
    std::string current() override;
    std::string currentOf(const std::string& drive) override;
    std::string resolve(const std::string& base, const std::string& path) override;
    std::vector<std::string> drives() override;
    std::vector<std::string> subfolders(const std::string& path) override;
    std::vector<std::string> files(const std::string& path, const std::string& patterns) override;
};

} // namespace varno::win32
