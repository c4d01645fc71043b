#pragma once

#include <span>
#include <string_view>

#include "win32/unique.h"

namespace varno::win32 {

/// The picture of a toolbar button, by its key string, `size` pixels square; "folder" is a closed folder.
UniqueIcon toolbarPicture(std::string_view key, int size);
/// Those of several buttons, one beside the other; `faded` is how they look when they do nothing.
UniqueBitmap toolbarPictures(std::span<const std::string_view> keys, int size, bool faded);

} // namespace varno::win32
