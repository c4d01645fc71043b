#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "base/folders.h"
#include "base/run_time_error.h"
#include "base/text.h"

namespace varno::testing {

/// Two drives with a few folders.
class FakeFolders : public Folders {
  public:
    std::string current() override { return "C:\\arbete"; }
    std::string currentOf(const std::string& drive) override {
        const auto found = drivesAt.find(upperCase(drive));
        if (found == drivesAt.end()) throw RunTimeError(errDeviceUnavailable);
        return found->second;
    }
    std::string resolve(const std::string& base, const std::string& path) override {
        const std::string whole = path.size() > 1 && path[1] == ':' ? path : base + "\\" + path;
        if (std::find(known.begin(), known.end(), whole) == known.end()) throw RunTimeError(errPathNotFound);
        return whole;
    }
    std::vector<std::string> drives() override { return {"A:", "C:"}; }
    std::vector<std::string> subfolders(const std::string& path) override {
        return path == "C:\\arbete" ? std::vector<std::string>{"gammalt"} : std::vector<std::string>{};
    }
    std::vector<std::string> files(const std::string& path, const std::string& patterns) override {
        asked = path + " " + patterns;
        return {"HUS1.IND", "HUS2.IND"};
    }

    std::map<std::string, std::string> drivesAt{{"A:", "A:\\"}, {"C:", "C:\\arbete"}};
    std::vector<std::string> known{"C:\\arbete", "C:\\arbete\\gammalt", "A:\\", "C:\\"};
    std::string asked;
};

} // namespace varno::testing
