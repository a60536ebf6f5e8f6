// Unit factors and the switch of the whole model between English and metric units.
#pragma once

#include <functional>
#include <string_view>

#include "model/beam_model.h"

namespace flexley {

inline constexpr double kMetreToInch = 39.3700787401575;
inline constexpr double kNewtonToPound = 0.224808923655339;
inline constexpr double kInchToMetre = 0.0254;
inline constexpr double kPoundToNewton = 4.448222;
inline constexpr double kFootToInch = 12.0;
inline constexpr double kKilogramToNewton = 9.80665;
// Shown values in kilograms use this literal rather than the exact reciprocal of 9.80665.
inline constexpr double kNewtonToKilogram = 0.101971621297793;

// Pen modes of a redraw: erase paints the old picture in the background colour.
inline constexpr int kPenErase = 15;
inline constexpr int kPenDraw = 13;
using RedrawHook = std::function<void(int pen_mode)>;

// Converts every stored value to the other unit system and rewrites every feature's unit codes;
// the results, left in the old units, become stale. direction is "met_to_eng" or "eng_to_met"; any
// other text, or the system already in force, converts nothing. The redraw hook, when given, is
// called with kPenErase first and kPenDraw last, in every case.
void convert_units(BeamModel& model, std::string_view direction, const RedrawHook& redraw = {});

}  // namespace flexley
