// Result quantities in the units they are shown in, shared by read-outs, plots and the report.
#pragma once

#include <string>
#include <string_view>

#include "model/beam_model.h"

namespace flexley {

// A number in the unit it is shown in; the unit text carries its leading blank (" kPa").
struct ScaledValue {
    double value;
    std::string_view unit;
};

// The unit for a quantity of this absolute size: shown value = value / divisor. A size equal to
// a threshold takes the larger unit. Plots choose once from the maximum and apply it to every
// grid line, so the choice is available apart from the scaling.
struct UnitChoice {
    double divisor;
    std::string_view unit;
};
UnitChoice moment_unit(double magnitude, bool metric);
UnitChoice stress_unit(double magnitude, bool metric);

// A moment or stress in the unit chosen from its own size, keeping its sign.
ScaledValue moment_value(double moment, bool metric);
ScaledValue stress_value(double stress, bool metric);

// The stored slope and deflection hold E x I times the physical values, and the stored deflection
// has the opposite sign of the one shown. Deflection in mm (metric) or in.; slope in degrees
// with the caller's constant for pi (the read-outs do not agree on one).
// EI is the model's E x I taken as a double.
double stored_ei(const BeamModel& model);
ScaledValue deflection_value(double stored, double ei, bool metric);
ScaledValue slope_value(double stored, double ei, double pi);

// A position along the beam: metres, or in English inches or feet.
ScaledValue position_value(double position, bool metric, bool in_inches);

// A load's magnitude in the unit its feature was entered in (`mag_unit`: "lb", "N", "kg", "pi",
// "pf"), as labels and the report show it. Metric loads not entered in newtons are shown in
// kilograms-force, English moments and intensities not entered per inch are shown per foot.
ScaledValue point_load_shown(double magnitude, bool metric, std::string_view mag_unit);
ScaledValue intensity_shown(double magnitude, bool metric, std::string_view mag_unit);
ScaledValue moment_load_shown(double magnitude, bool metric, std::string_view mag_unit);

// The display text: the number to `sig_figs` significant figures followed by its unit.
std::string value_text(ScaledValue value, int sig_figs);

}  // namespace flexley
