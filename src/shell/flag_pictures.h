#pragma once

#include <span>

namespace varno {

/// A filled shape of a flag, in hundredths of the flag's height; a flag is 160 wide and 100 high. RGB as
/// 0xRRGGBB.
struct FlagShape {
    enum Kind { rectangle, star } kind;
    unsigned colour;
    double x; ///< left edge, or the centre of a star
    double y;
    double width; ///< or the radius of a star
    double height;
};

/// The shapes of flag 1 to 6, back to front; any other number is the neutral picture of a case without load
/// rules. Flags 1 and 2 are both Swedish: the second, for the Eurocode, carries a ring of stars in its
/// corner.
std::span<const FlagShape> flagShapes(int flag);

} // namespace varno
