#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <vector>

namespace varno::win32 {

/// A path as it is from the process's current directory.
std::string fullPath(const std::string& path);
/// The files that the program was started with, as full paths.
std::vector<std::string> filesOnCommandLine();
/// The files of a drop, which is over then.
std::vector<std::string> filesDropped(HDROP drop);
/// Windows' own list of what was used last.
void tellRecentDocument(const std::string& path);

} // namespace varno::win32
