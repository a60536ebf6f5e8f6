// Beams for the analysis tests, described in one line and built through the model's operations.
#pragma once

#include <string_view>
#include <vector>

#include "model/beam_model.h"

namespace flexley::testing_beams {

inline constexpr double kLength = 240.0;
inline constexpr float kModulus = 29.0e6f;
inline constexpr float kInertia = 100.0f;
inline constexpr float kFibre = 5.0f;
inline constexpr double kRigidity = static_cast<double>(kModulus) * kInertia;  // E x I

// An English beam of `length` with E, I and c entered, built from words applied in order:
//   simp@X  cant@X        a simple or a fixed support at X
//   pt:P@X  mo:C@X        a point load P or a couple C at X
//   di:W1:W2@A:B          a distributed load from intensity W1 at A to W2 at B
//   rm:F                  remove feature F
//   N:R                   resolution R
// A position "#K" is grid point K of the resolution set so far, exactly as the engine computes it.
BeamModel beam(std::string_view description = "", double length = kLength);

// The largest magnitude of values(0..last).
double largest_magnitude(const std::vector<double>& values, int last);

}  // namespace flexley::testing_beams
