// The Loading Screen's and the Calculations Screen's contents as pictures for a printed page.
#pragma once

#include "model/beam_model.h"
#include "ui/dialogs/report_printer.h"
#include "ui/loading/label_groups.h"
#include "ui/loading/screen_geometry.h"

namespace flexley {

// The beam, its features and every feature's labels as the window shows them, over the screen
// work area the window is laid out on (wider or taller when a label stands beyond it). The
// model, geometry and labels must outlive the picture.
WindowPicture loading_screen_picture(const BeamModel& model, const ScreenGeometry& geometry,
                                     const FeatureLabels& labels);

// The three result plots; the model's results must be those of the beam as it is.
WindowPicture calculations_screen_picture(const BeamModel& model, const ScreenGeometry& geometry,
                                          bool outline_only);

}  // namespace flexley
