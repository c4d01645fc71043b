#pragma once

namespace varno {

// The picture area of the diagram, twips.
inline constexpr double diagramWidth = 9600;
inline constexpr double diagramHeight = 4800;
inline constexpr double momentBaseline = 2000;
inline constexpr double highestMoment = 2000 - 100; ///< from the base line, of the largest moment
inline constexpr float shortestCantilever = 0.1f;   ///< m; one this short is not drawn

} // namespace varno
