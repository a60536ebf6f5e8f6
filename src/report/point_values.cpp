// Reads a typed position and picks the calculated point nearest to it; nothing is interpolated.
#include "report/point_values.h"

#include <algorithm>

#include "analysis/results_state.h"
#include "model/grid.h"
#include "model/typed_number.h"
#include "model/units.h"
#include "report/unit_choice.h"

namespace flexley {

namespace {

// The point read-out has always used this rounding of pi; the maximum values use a shorter one.
constexpr double kPi = 3.14159265;

}  // namespace

std::optional<double> typed_position(std::string_view text, bool metric, bool in_feet) {
    const auto value = typed_number(text);
    if (value && !metric && in_feet) return *value * kFootToInch;
    return value;
}

std::optional<double> position_on_beam(const BeamModel& model, std::string_view text,
                                       bool in_feet) {
    const auto position = typed_position(text, model.metric_units, in_feet);
    if (!position || *position < 0.0 || *position > model.beam_length) return {};
    return position;
}

int nearest_point(const BeamModel& model, double position) {
    const double n = model.resolution;
    // The index must stay within the last run's grid, whatever it is given.
    return std::min(nearest_index(n * position / model.beam_length), analysis_grid(model).last);
}

PointValueTexts point_value_texts(const BeamModel& model, double position) {
    const auto k = static_cast<std::size_t>(nearest_point(model, position));
    const bool metric = model.metric_units;
    const int figs = model.sig_figs;
    const double ei = stored_ei(model);
    return {
        value_text(moment_value(model.moment[k], metric), figs),
        value_text(stress_value(model.stress[k], metric), figs),
        value_text(deflection_value(model.deflection[k], ei, metric), figs),
        value_text(slope_value(model.slope[k], ei, kPi), figs),
    };
}

PointValuesResult find_point_values(const BeamModel& model, std::string_view text, bool in_feet) {
    const auto position = position_on_beam(model, text, in_feet);
    if (!position) return {Status::failure(kInvalidLocation), {}};
    if (!results_available(model)) return {Status::failure(kResultsOutOfDate), {}};
    return {Status::success(), point_value_texts(model, *position)};
}

}  // namespace flexley
