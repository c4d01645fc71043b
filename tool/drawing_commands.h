#pragma once

#include <iosfwd>
#include <string>

#include "base/open_file.h"

namespace varno::tool {

// The commands that draw, and the pages of a printed result. Paths are UTF-8. \throws RunTimeError as the
// readers, the sketch and the diagram do; a list is printed as far as it came, an SVG file is not written
// then.

/// The display list of a full refresh of the sketch: surfaces "strip" and "load".
void listSketch(FileOpener& opener, const std::string& path, std::ostream& out);
/// The same picture as SVG.
void drawSketch(FileOpener& opener, const std::string& path, const std::string& svgPath);

/// The display list of the moment diagram, surface "diagram": the curves of a moment curve file along the
/// slab of a case.
void listDiagram(FileOpener& opener, const std::string& path, const std::string& momentPath,
                 std::ostream& out);
void drawDiagram(FileOpener& opener, const std::string& path, const std::string& momentPath,
                 const std::string& svgPath);

/// The texts of the pages that a result file is printed on, as a JSON array.
void printPages(FileOpener& opener, const std::string& path, std::ostream& out);

} // namespace varno::tool
