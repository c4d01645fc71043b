// What the engine's tests share.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varno::engine::test {

// The 37 lines of a design input file, put together from texts and not by any writer of the project, so that
// the positions of the columns stand here a second time.
struct CaseFile {
    std::vector<std::string> lines;

    std::string& line(int number) { return lines.at(static_cast<std::size_t>(number - 1)); }
    std::string text(std::string_view end = "\r\n") const;
};

struct CaseLoad {
    int span;
    double distance, load;
};

struct CaseValues {
    std::string name = "HUS1";
    std::string title = "Bjalklag over plan 2";
    std::vector<double> spv{5.5}, ptjl{0.17}, upl{0, 0}, plast{3}, flast{2};
    double konsv = 0, konsh = 0;
    double lambdaG = 1, lambdaQ = 1;
    int nllast = 0;
    std::vector<CaseLoad> loads; // filled up to five with zeros
};

CaseFile caseFile(const CaseValues& values);

// `n` equal spans without support width.
CaseValues equalSpans(int n, double length, double plast, double flast);

// A new folder that is the current one as long as this lives.
class WorkFolder {
  public:
    explicit WorkFolder(const std::string& name = "case");
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

  private:
    std::filesystem::path before_, folder_;
};

// Names are UTF-8 on every system.
std::filesystem::path path(const std::string& utf8);
void write(const std::string& name, std::string_view bytes);
std::optional<std::string> read(const std::string& name);
std::vector<std::string> namesInFolder();

// The lines of a text whose every line, the last one too, must end with CR LF.
std::vector<std::string> crLfLines(const std::string& text);

// What the front-end shows of a result file: it joins the lines, each after a CR LF, and after each of them
// turns the first occurrence of each of six DOS bytes into the Windows-1252 letter.
std::string asShown(const std::string& text);

// The 37-line file's letters: UTF-8 written in Windows-1252 (the six letters only).
std::string windows(std::string_view utf8);

} // namespace varno::engine::test
