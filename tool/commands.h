#pragma once

#include <iosfwd>
#include <string>

#include "base/message_boxes.h"
#include "base/open_file.h"
#include "model/design_input_file.h"

namespace varno::tool {

/// Message boxes of a program without windows: the text goes to the error stream. The answer is never one
/// that tries again, since nobody is there to put the disk in.
class ConsoleBoxes : public MessageBoxes {
  public:
    explicit ConsoleBoxes(std::ostream& err) : err_(err) {}
    MessageAnswer show(const std::string& text, int style, const std::string& title) override;

  private:
    std::ostream& err_;
};

// The commands. Paths are UTF-8, output is UTF-8 with LF. \throws RunTimeError 52 for a file that did not
// open, and what the readers raise.

/// The case of a file, read over the presets as "Öppna" does.
CaseFile loadCase(FileOpener& opener, const std::string& path);

void printJson(FileOpener& opener, const std::string& path, std::ostream& out);
/// Reads a case and writes it again; both may be the same file.
void rewriteCase(FileOpener& opener, const std::string& from, const std::string& to);
/// The text of a result file as the result viewer shows it.
void printResult(FileOpener& opener, const std::string& path, std::ostream& out);
/// The case as a person would like to read it.
void printReport(FileOpener& opener, const std::string& path, std::ostream& out);

} // namespace varno::tool
