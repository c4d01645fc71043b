// A second way to the same moments: the displacement method with two-noded beam elements, deflection and
// rotation in every node, solved as a dense system. It has nothing in common with the three-moment equation:
// supports are deflections held at zero, cantilevers are ordinary elements with a free end.
#pragma once

#include "engine/beam.h"

#include <vector>

namespace varno::engine::test {

class StiffnessBeam {
  public:
    // Nodes at the ends, the supports and at `nodes` (m from the left end), where point loads may stand.
    StiffnessBeam(const Beam& beam, std::vector<double> nodes);

    struct Answer {
        std::vector<double> x;        // nodes from left to right
        std::vector<double> moment;   // at the nodes, positive sagging
        std::vector<double> reaction; // supports 0 to n
    };
    // Distributed load `qv` on the left cantilever, `q[i]` on span i, `qh` on the right one; points at nodes
    // only.
    Answer solve(const std::vector<double>& q, double qv, double qh,
                 const std::vector<PointLoad>& points) const;

  private:
    std::size_t nodeAt(double x) const;

    std::vector<double> x_;
    std::vector<double> supportX_;
    std::vector<std::size_t> supports_;
    std::vector<std::vector<double>> k_; // the whole matrix, supports not yet held
};

} // namespace varno::engine::test
