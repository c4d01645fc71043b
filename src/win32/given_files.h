#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <vector>

namespace varno::win32 {

/// A path as it is from the process's current directory.
std::string fullPath(const std::string& path);
/// The same, the file's name in the letters that the disk has it in, however it was typed.
std::string pathOnDisk(const std::string& path);
/// What the program was started with: [/work FOLDER] [FILE...].
struct CommandLine {
    /// The folder to be started in, where the settings lie. A double click on a case starts a program in the folder of the
    /// case. Empty: where it is.
    std::string folder;
    std::vector<std::string> files; ///< full paths, from where it was started
};
CommandLine commandLine(const wchar_t* arguments);
/// The files of a drop, which is over then.
std::vector<std::string> filesDropped(HDROP drop);
/// Windows' own list of what was used last.
void tellRecentDocument(const std::string& path);

} // namespace varno::win32
