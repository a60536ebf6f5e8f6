// The calculator's sketch of the chosen cross-section, its dimensions named as the boxes are.
#pragma once

#include "sections/section_calculator.h"
#include "ui/common/picture.h"

namespace flexley {

// The sketch's extent in drawing units: 2.5 by 1.875 inches.
inline constexpr int kSketchWidth = 3600;
inline constexpr int kSketchHeight = 2700;

// The captions of the calculator's dimension boxes; the sketch labels its dimensions with the
// same words, so a student can match each box to what it measures.
inline constexpr const char* kOuterDiameterCaption = "Outer Diameter";
inline constexpr const char* kInnerDiameterCaption = "Inner Diameter";
inline constexpr const char* kHeightCaption = "Height";
inline constexpr const char* kWidthCaption = "Width";
inline constexpr const char* kWallCaption = "Wall Thickness";

// A schematic, not to scale: the section hatched, a tube's hollow left clear, and a dimension
// line for every box the section uses, with its caption to the right of the outline. Height is
// drawn upright, the direction bending is assumed to act in.
drawing::Picture section_sketch(CrossSection shape, bool tube);

}  // namespace flexley
