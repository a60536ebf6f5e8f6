// Formats the stored result maxima; nothing is searched here, the analysis run found them.
#include "report/maximum_values.h"

#include "analysis/results_state.h"
#include "report/unit_choice.h"

namespace flexley {

namespace {

// The maximum values have always been shown with this rounding of pi; the point read-out uses
// a longer one, and the two are kept apart so neither display changes.
constexpr double kPi = 3.1415927;

}  // namespace

MaximumValuesResult maximum_value_texts(const BeamModel& model) {
    if (!results_available(model)) return {Status::failure(kResultsOutOfDate), {}};
    const bool metric = model.metric_units;
    const int figs = model.sig_figs;
    const double ei = stored_ei(model);
    auto at = [&](double position) {
        return value_text(position_value(position, metric, model.positions_in_inches), figs);
    };
    return {Status::success(),
            {
                value_text(moment_value(model.max_moment, metric), figs),
                at(model.max_moment_at),
                value_text(stress_value(model.max_stress, metric), figs),
                at(model.max_stress_at),
                value_text(deflection_value(model.max_deflection, ei, metric), figs),
                at(model.max_deflection_at),
                value_text(slope_value(model.max_slope, ei, kPi), figs),
                at(model.max_slope_at),
            }};
}

}  // namespace flexley
