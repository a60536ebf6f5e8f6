// The hover tip over a plot: the nearest calculated point's position and value.
#pragma once

#include <optional>
#include <string>

#include "model/beam_model.h"
#include "ui/common/picture.h"
#include "ui/loading/screen_geometry.h"

namespace flexley {

// Over a plot's frame, "x = 10 ft." and "Moment = 25000 lb.-ft." on two lines for the
// calculated point nearest across, in the units of the plot's labels; nothing elsewhere.
std::optional<std::string> hover_tip(const BeamModel& model, const ScreenGeometry& geometry,
                                     drawing::Point at);

}  // namespace flexley
