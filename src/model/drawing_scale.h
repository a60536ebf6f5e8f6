// The drawing scale of each load kind: its largest magnitude, and the value that largest held
// before it last grew, which tells the Loading Screen that older labels must be restacked.
#pragma once

#include "model/beam_model.h"
#include "model/features.h"

namespace flexley {

// What sets a load's drawn size: |P|, |M|, or the larger absolute intensity of a distributed
// load. Supports have no size: 0.
double scale_magnitude(const BeamModel& model, FeatureRef feature);

// A load of `magnitude` is being added or edited: when it is the first of its kind or at least as
// large as the kind's largest, the largest moves to the scale value and this one becomes the
// largest. Call it before the table grows.
void track_scale(BeamModel& model, FeatureKind kind, double magnitude);

// Recomputes the kind's largest magnitude from its whole table and clears its scale value, as
// needed when the load that held the largest is removed or edited.
void rescan_scale(BeamModel& model, FeatureKind kind);

// Whether the load holds its kind's largest magnitude, so that changing it calls for a rescan.
bool holds_largest_magnitude(const BeamModel& model, FeatureRef feature);

}  // namespace flexley
