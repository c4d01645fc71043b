#pragma once

#include <filesystem>
#include <string>

#include "base/text.h"

namespace varno::testing {

/// An empty folder called "Åäö prov" that is removed with everything in it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// The path of a file in it, UTF-8, with the separators of the system.
    std::string path(const std::string& name) const;
    std::filesystem::path file(const std::string& name) const;
    const std::filesystem::path& folder() const { return folder_; }

    void write(const std::string& name, const Bytes& bytes) const;
    Bytes read(const std::string& name) const;
    /// How many files and folders stand in it.
    std::size_t count() const;

  private:
    std::filesystem::path outer_;
    std::filesystem::path folder_;
};

/// The whole content of a file; fails the test when it cannot be read.
Bytes contentOf(const std::filesystem::path& path);

} // namespace varno::testing
