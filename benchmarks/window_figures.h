#pragma once

#include <map>
#include <regex>
#include <string>
#include <vector>

namespace varno::benchmarks {

/// What was measured, by name, written as Google Benchmark writes its figures.
class WindowFigures {
  public:
    explicit WindowFigures(const std::string& filter) : filter_(filter) {}

    bool wanted(const std::string& name) const { return std::regex_search(name, filter_); }
    void addTime(const std::string& name, double milliseconds) { times_[name].push_back(milliseconds); }
    void addBytes(const std::string& name, std::size_t bytes) { bytes_[name].push_back(bytes); }
    void save(const std::string& path) const;

  private:
    std::regex filter_;
    std::map<std::string, std::vector<double>> times_;
    std::map<std::string, std::vector<std::size_t>> bytes_;
};

} // namespace varno::benchmarks
