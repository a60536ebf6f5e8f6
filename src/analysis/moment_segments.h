// The bending moment as a cubic polynomial on each run of grid points between two points where a
// load or reaction starts to act.
#pragma once

#include <array>

#include "model/beam_model.h"
#include "model/limits.h"

namespace flexley {

// c0 + c1 t + c2 t^2 + c3 t^3.
struct Cubic {
    double c0 = 0.0, c1 = 0.0, c2 = 0.0, c3 = 0.0;

    double at(double t) const { return ((c3 * t + c2) * t + c1) * t + c0; }

    // Adds coefficient x (d + t)^power, power 1..3.
    void add_power(double coefficient, double d, int power);
};

// Grid points first..last, where the moment is moment.at(x - x0) and x0 is the point `first`.
struct MomentSegment {
    int first;
    int last;
    double x0;
    Cubic moment;
};

// Every point load, distributed-load start and end, couple and reaction can start a segment.
inline constexpr int kMaxMomentTerms =
    kMaxPointLoads + 2 * kMaxDistributedLoads + kMaxMoments + kMaxSupports;

struct MomentSegments {
    std::array<MomentSegment, kMaxMomentTerms + 1> items;
    int count = 0;

    const MomentSegment* begin() const { return items.data(); }
    const MomentSegment* end() const { return items.data() + count; }
};

// Splits grid points 0..last into segments from the loads and the solved reactions. A point load
// or reaction acts only beyond its position, a couple from its position on, except a couple at
// the beam's right end: the moment there is the limit from inside the beam, which a fixed support
// at that end takes up without it.
MomentSegments moment_segments(const BeamModel& model);

}  // namespace flexley
