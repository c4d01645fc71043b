#pragma once

#include <string>
#include <vector>

#include "base/text.h"

namespace varno::gui {

/// The folder of the built programs: the environment variable VARNO_TEST_PROGRAMS, or the build folder that
/// this program lies in. No backslash at the end.
std::string programsFolder();
/// The folder of the sample cases.
std::string samplesFolder();

/// A file's bytes. \throws GuiError when it cannot be read.
Bytes readFile(const std::string& path);
void writeFile(const std::string& path, const Bytes& bytes);
bool fileExists(const std::string& path);

/// A fresh folder with what an installation has: `varno.ini` that names it, `varno.def`, the engine, the
/// samples, and a `varno.ver` that keeps the version notice away. Gone with its object.
class Scene {
  public:
    /// \param name of the folder
    explicit Scene(const std::string& name = "prov");
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    const std::string& folder() const { return folder_; }
    std::string path(const std::string& name) const { return folder_ + "\\" + name; }
    /// A folder beside it, made when it is not there.
    std::string beside(const std::string& name) const;

    void write(const std::string& name, const Bytes& bytes) const { writeFile(path(name), bytes); }
    Bytes read(const std::string& name) const { return readFile(path(name)); }
    bool has(const std::string& name) const { return fileExists(path(name)); }
    void remove(const std::string& name) const;
    void makeFolder(const std::string& name) const;
    /// `varno.ini` with this first line, UTF-8.
    void writeIni(const std::string& line) const;
    /// `varno.ver` with this version.
    void writeVersion(float version) const;
    void copyEngineTo(const std::string& folder) const;

  private:
    std::string root_;
    std::string folder_;
};

/// The lines of a text that ends them with CR LF, without the ends.
std::vector<Bytes> linesOf(const Bytes& text);
/// The text with line `number` (from 1) exchanged.
Bytes withLine(const Bytes& text, std::size_t number, const Bytes& line);

} // namespace varno::gui
