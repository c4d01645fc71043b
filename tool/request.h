#pragma once

#include <string>
#include <vector>

namespace varno::tool {

/// What a command works on, as the command line says it. Paths are UTF-8; a file "-" is the standard input.
struct Request {
    std::string file = {};               ///< that is read
    std::vector<std::string> files = {}; ///< that are read, one after the other
    std::string other = {};              ///< a second case, to compare with
    std::string base = {};               ///< a case whose values stay where nothing else is said
    std::string moments = {};            ///< the moment curve file
    std::string result = {};             ///< the result file
    std::string target = {};             ///< the file that is written
    std::string engine = {};             ///< the command line of the calculation engine
    std::string folder = ".";            ///< where the folders of the cases go
    int jobs = 0;                        ///< calculations at once, 0: as many as the machine has cores
    double timeout = 0;                  ///< seconds for one calculation, 0: as long as it takes
    bool list = false; ///< a drawing command prints its display list (`tool/drawing_list.h`), not an SVG file
    bool json = false; ///< findings as JSON
    bool used = false; ///< only what is in use
    bool spreadsheet = false; ///< numbers as a Swedish spreadsheet reads them
};

} // namespace varno::tool
