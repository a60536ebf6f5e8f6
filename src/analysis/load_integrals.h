// Closed-form totals and integrals of the bending moment due to the applied loads alone.
#pragma once

#include "model/beam_model.h"

namespace flexley {

// The sum of all point loads and of the resultants of all distributed loads.
double total_load(const BeamModel& model);

// The moment of all loads and couples about position x1, positive loads to the right counting
// positive and couples negative.
double load_moment_about(const BeamModel& model, double x1);

// S(x): the integral from 0 to x of the moment due to the loads alone.
double load_slope_integral(const BeamModel& model, double x);

// F(x): the integral from 0 to x of S.
double load_deflection_integral(const BeamModel& model, double x);

// The moment integrated once (S) and twice (F) from 0 to x.
struct MomentIntegrals {
    double once = 0.0;
    double twice = 0.0;
};

// The moment of the loads and of the solved reactions (the cantilever moment at x = 0 included)
// integrated once and twice from 0 to x.
MomentIntegrals moment_integrals(const BeamModel& model, double x);

// A distributed load of zero length carries nothing, and its intensity gradient would be 0/0.
inline bool has_extent(double start, double end) {
    return end != start;
}

}  // namespace flexley
