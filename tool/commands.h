#pragma once

#include <iosfwd>
#include <stdexcept>
#include <string>

#include "base/message_boxes.h"
#include "base/open_file.h"
#include "model/design_input_file.h"
#include "tool/engine_host.h"
#include "tool/request.h"

namespace varno::tool {

/// What varnotool ends with.
enum ExitCode {
    done = 0,
    runTimeError = 1, ///< told on the error stream
    wrongUsage = 2,   ///< explained on the error stream
    found = 3, ///< done, and there is something to see to: `check` found something, two cases differ, a
               ///< calculation failed
    interrupted = 130, ///< ended by Ctrl+C, as shells count it
};

/// The arguments make no sense. The text is Swedish, names the argument.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What was read makes no sense, or cannot be written as it is. The text is Swedish and names what it is about.
class InputError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Message boxes of a program without windows: the text goes to the error stream. The answer is never one
/// that tries again, since nobody is there to put the disk in.
class ConsoleBoxes : public MessageBoxes {
  public:
    explicit ConsoleBoxes(std::ostream& err) : err_(err) {}
    MessageAnswer show(const std::string& text, int style, const std::string& title) override;

  private:
    std::ostream& err_;
};

/// What a command reads with, prints on (UTF-8 with LF) and calculates with.
struct Session {
    FileOpener& opener;
    std::ostream& out;
    std::ostream& err;
    EngineHost& host;
    bool terminal; ///< somebody watches the error stream
};

/// \throws RunTimeError 52 for a file that did not open, and what the readers, the sketch and the diagram raise. A list
/// is printed as far as it came, a file is not written then.
using Command = ExitCode(const Session& session, const Request& request);

Command printJson;
/// Reads a case and writes it again; both may be the same file.
Command rewriteCase;
/// Writes a case that a JSON object describes.
Command writeCase;
/// The text of a result file as the result viewer shows it.
Command printResult;
/// The texts of the pages that a result file is printed on, as a JSON array.
Command printPages;
/// The case as a person would like to read it.
Command printReport;
/// A case with its sketch, its moments and its result as an HTML page.
Command printHtmlReport;
/// What the program tells of a file when it is opened, and what is implausible in it.
Command checkCases;
/// The inputs in which two cases differ; of one case, all of them.
Command compareCases;
/// The curves of a moment curve file as comma-separated values.
Command printMoments;
/// Calculates cases without windows, each in a folder of its own.
Command runCases;
/// A full refresh of the sketch: surfaces "strip" and "load".
Command drawSketch;
/// The curves of a moment curve file along the slab of a case: surface "diagram".
Command drawDiagram;

/// The case of a file, read over the presets as "Öppna" does.
CaseFile loadCase(FileOpener& opener, const std::string& path);

/// Writes a text with line ends CR LF. \throws RunTimeError; the old file then stays.
void writeLines(FileOpener& opener, const std::string& path, const std::string& text);

/// The case as one JSON object, UTF-8: the record's fields by their names, arrays in their full index range
/// from 0. A number is the shortest decimal that reads back as the same single or double, an empty factor
/// cell is null.
std::string caseJson(const CaseFile& loaded);
/// Only what is in use: of an array an object of its elements by their index, {"1": 6, "2": 5.5}.
std::string usedCaseJson(const CaseFile& loaded);

/// The case that a JSON object in either form describes; what it does not name stays as it is in `base`. \throws
/// InputError, with the nearest name for one that is unknown.
CaseFile caseFromJson(const std::string& json, const CaseFile& base);

/// The case in readable Swedish, UTF-8 with LF: choices in words, spans, supports and line loads as tables,
/// decimal commas. Only what is in use is shown; numbers that the file can hold are not rounded away.
std::string caseReport(const CaseFile& loaded);

} // namespace varno::tool
