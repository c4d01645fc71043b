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

/// What a command works on. Paths are UTF-8.
struct Request {
    std::string file;         ///< that is read
    std::string moments = {}; ///< the moment curve file
    std::string target = {};  ///< the file that is written
    bool list = false; ///< a drawing command prints its display list (`tool/drawing_list.h`), not an SVG file
};

/// A command prints UTF-8 with LF. \throws RunTimeError 52 for a file that did not open, and what the readers, the
/// sketch and the diagram raise. A list is printed as far as it came, a file is not written then.
using Command = void(FileOpener& opener, const Request& request, std::ostream& out);

Command printJson;
/// Reads a case and writes it again; both may be the same file.
Command rewriteCase;
/// The text of a result file as the result viewer shows it.
Command printResult;
/// The texts of the pages that a result file is printed on, as a JSON array.
Command printPages;
/// The case as a person would like to read it.
Command printReport;
/// A full refresh of the sketch: surfaces "strip" and "load".
Command drawSketch;
/// The curves of a moment curve file along the slab of a case: surface "diagram".
Command drawDiagram;

/// The case of a file, read over the presets as "Öppna" does.
CaseFile loadCase(FileOpener& opener, const std::string& path);

/// The case as one JSON object, UTF-8: the record's fields by their names, arrays in their full index range
/// from 0. A number is the shortest decimal that reads back as the same single or double, an empty factor
/// cell is null.
std::string caseJson(const CaseFile& loaded);

/// The case in readable Swedish, UTF-8 with LF: choices in words, spans, supports and line loads as tables,
/// decimal commas. Only what is in use is shown; numbers that the file can hold are not rounded away.
std::string caseReport(const CaseFile& loaded);

} // namespace varno::tool
