#pragma once

#include <string_view>

#include "win32/unique.h"

namespace varno::win32 {

/// The picture of a toolbar button, by its key string, `size` pixels square; "folder" is a closed folder.
UniqueIcon toolbarPicture(std::string_view key, int size, bool faded = false);

} // namespace varno::win32
