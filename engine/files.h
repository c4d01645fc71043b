// Files of the current folder, by their UTF-8 names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnowb {

// The whole file. Nothing when it cannot be read or is larger than any design input file can be (1 MB).
std::optional<std::string> readFile(const std::string& name);

// Writes a new file and has it flushed to the disk. What a failure leaves of it is removed.
bool writeFile(const std::string& name, std::string_view bytes);

// Gives `name` to the file `written`, in place of the file that had it. On failure `written` is removed.
bool replaceFile(const std::string& written, const std::string& name);

// True when there is no such file afterwards.
bool removeFile(const std::string& name);

} // namespace varnowb
