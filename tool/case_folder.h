#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "base/text.h"
#include "tool/engine_host.h"

namespace varno::tool {

std::filesystem::path pathOf(const std::string& utf8);
std::string utf8Of(const std::filesystem::path& path);

/// The folder that one case is calculated in, and the result stays in: NAME under the folder of the run. While the engine
/// works it is called NAME.~tmp, so that what is called NAME is always whole; one that failed is called NAME.fel.
class CaseFolder {
  public:
    /// `inputName` is what the copy of the case file is called in it.
    CaseFolder(const std::filesystem::path& runFolder, const std::string& name, std::string inputName);
    ~CaseFolder();
    CaseFolder(CaseFolder&&) noexcept = default;
    CaseFolder& operator=(CaseFolder&&) = delete;

    enum class Begun {
        ready,      ///< for the engine
        calculated, ///< the result of the same input is there
        taken,      ///< another process is at work on it
    };
    /// Makes the folder anew and puts the case into it.
    Begun begin(EngineHost& host, const Bytes& input);
    /// Where the engine works, while it works.
    std::string workPath() const { return utf8Of(work_); }

    bool hasResult() const;
    bool hasMoments() const;

    /// The work is done: the folder gets its name.
    void keep();
    /// It failed: what there is stays for a look, under the name that says so.
    std::string keepFailed();

    /// What the engine printed, when it printed something.
    static constexpr const char* outputName = "motor.txt";

  private:
    bool holds(const Bytes& input) const;
    void moveTo(const std::filesystem::path& target);

    std::filesystem::path folder_;
    std::filesystem::path work_;
    std::filesystem::path failed_;
    std::filesystem::path lockPath_;
    std::string inputName_;
    std::unique_ptr<EngineHost::Lock> lock_;
    bool atWork_ = false;
};

} // namespace varno::tool
