// What a redraw of the Loading Screen paints: the beam bar, its length and every feature's shape.
#pragma once

#include <string>

#include "model/beam_model.h"
#include "ui/common/picture.h"
#include "ui/loading/label_groups.h"
#include "ui/loading/screen_geometry.h"

namespace flexley {

// "Beam Length is " and the length in the beam's display unit.
std::string beam_length_caption(const BeamModel& model);

// The picture for pen mode kPenDraw or kPenErase. The beam bar is always drawn; with kPenErase
// every other shape erases what the same shape drew before. Loads are scaled so that each kind's
// largest magnitude has the full size; removed features draw nothing.
drawing::Picture beam_picture(const BeamModel& model, const ScreenGeometry& geometry, int pen_mode);

// A whole redraw: the labels of features added since the last one are created (which may
// restack older ones), and the picture to show is returned.
drawing::Picture redraw_screen(BeamModel& model, const ScreenGeometry& geometry, int pen_mode,
                               FeatureLabels& labels);

}  // namespace flexley
