// Beams for the analysis tests, built through the model's own feature operations.
#pragma once

#include "model/beam_model.h"

namespace flexley::testing_beams {

inline constexpr double kLength = 240.0;
inline constexpr float kModulus = 29.0e6f;
inline constexpr float kInertia = 100.0f;
inline constexpr float kFibre = 5.0f;

// An English beam of `length` with E, I and c entered and the default resolution.
BeamModel beam(double length = kLength);

void point_load(BeamModel& model, double magnitude, double at);
void distributed_load(BeamModel& model, double start, double end, double w_start, double w_end);
void couple(BeamModel& model, double magnitude, double at);
void simple_support(BeamModel& model, double at);
void fixed_support(BeamModel& model, double at);

// E x I as the run uses it, from the single-precision fields.
double flexural_rigidity(const BeamModel& model);

}  // namespace flexley::testing_beams
