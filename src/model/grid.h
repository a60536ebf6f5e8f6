// The analysis grid: N intervals of width h over the beam, and positions rounded to grid indices.
#pragma once

#include <cmath>

#include "model/beam_model.h"
#include "model/limits.h"

namespace flexley {

struct Grid {
    double intervals;  // N, the resolution; may be fractional
    double spacing;    // h = beam_length / N
    int last;          // the last grid index: the integer part of N

    double x(int i) const { return i * spacing; }
};

// The resolution is single precision and a fractional N ends the grid at its integer part.
inline Grid analysis_grid(const BeamModel& model) {
    const double n = model.resolution;
    return Grid{n, model.beam_length / n, static_cast<int>(std::floor(n))};
}

// The grid index nearest to `scaled_position` (a position times N / beam_length), halves to even.
// Clamped to the result arrays, so that a support off the beam cannot reach outside them.
inline int nearest_index(double scaled_position) {
    if (!(scaled_position > 0.0)) return 0;
    if (scaled_position >= kResultPoints - 1) return kResultPoints - 1;
    double whole = std::floor(scaled_position);
    const double fraction = scaled_position - whole;
    if (fraction > 0.5 || (fraction == 0.5 && std::fmod(whole, 2.0) != 0.0)) whole += 1.0;
    return static_cast<int>(whole);
}

}  // namespace flexley
