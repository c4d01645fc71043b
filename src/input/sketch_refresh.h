#pragma once

namespace varno {

/// What an edit asks of the sketch: one of three sequences, by what it changed. A sequence can end in a
/// run-time error (a slab without length, say), so it comes last in every rule.
class SketchRefresh {
  public:
    virtual ~SketchRefresh() = default;

    /// Geometry, slab strip, span loads, line loads.
    virtual void fullRefresh() = 0;
    /// Geometry and slab strip.
    virtual void geometryRefresh() = 0;
    /// Span loads and line loads, on the geometry as it was computed last.
    virtual void lineLoadRefresh() = 0;
};

} // namespace varno
