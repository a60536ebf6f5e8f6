// What analyze and table print: the summary, the JSON object and the CSV of every grid point.
#include "cli/results_output.h"

#include <charconv>
#include <nlohmann/json.hpp>
#include <string>

#include "analysis/reaction_text.h"
#include "analysis/support_reactions.h"
#include "model/display.h"
#include "model/features.h"
#include "model/grid.h"
#include "report/maximum_values.h"
#include "report/point_values.h"
#include "report/unit_choice.h"

namespace flexley::cli {
namespace {

using Json = nlohmann::ordered_json;

std::string position_text(const BeamModel& model, double position) {
    return value_text(position_value(position, model.metric_units, model.positions_in_inches),
                      model.sig_figs);
}

struct PointValues {
    double moment, stress, slope, deflection;
};

PointValues physical_values(const BeamModel& model, int k) {
    const double ei = stored_ei(model);
    return {model.moment[k], model.stress[k], model.slope[k] / ei, -model.deflection[k] / ei};
}

Json reactions_json(const BeamModel& model) {
    Json reactions = Json::array();
    for (const SupportReaction& reaction : support_reactions(model)) {
        reactions.push_back({{"feature", reaction.feature_number},
                             {"position", reaction.position},
                             {"kind", reaction.fixed ? "cant" : "simp"},
                             {"force", reaction.force},
                             {"moment", reaction.moment ? Json(*reaction.moment) : Json(nullptr)}});
    }
    return reactions;
}

Json maxima_json(const BeamModel& model) {
    const double ei = stored_ei(model);
    auto entry = [](double value, double at) { return Json{{"value", value}, {"at", at}}; };
    return {{"moment", entry(model.max_moment, model.max_moment_at)},
            {"stress", entry(model.max_stress, model.max_stress_at)},
            {"deflection", entry(-model.max_deflection / ei, model.max_deflection_at)},
            {"slope", entry(model.max_slope / ei, model.max_slope_at)}};
}

std::string shortest(double value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

}  // namespace

void print_summary(const BeamModel& model, std::ostream& out) {
    out << "Beam length " << position_text(model, model.beam_length) << ", "
        << (model.metric_units ? "metric" : "English") << " units, resolution "
        << number_text(model.resolution) << "\n\nReactions\n";
    for (const auto& reaction : show_reactions(model)) {
        const auto feature = lookup_feature(model, reaction.feature_number);
        const int index = feature ? feature->index : 0;
        out << "  Feature " << reaction.feature_number << ", "
            << (model.su_type[index] == "cant" ? "cantilever" : "simple")
            << " support at x=" << position_text(model, model.su_loc[index]) << ": "
            << reaction.text << "\n";
    }
    const auto maxima = maximum_value_texts(model).texts;
    out << "\nMaximum values\n"
        << "  Bending moment  " << maxima.moment << " at x=" << maxima.moment_at << "\n"
        << "  Bending stress  " << maxima.stress << " at x=" << maxima.stress_at << "\n"
        << "  Deflection      " << maxima.deflection << " at x=" << maxima.deflection_at << "\n"
        << "  Slope           " << maxima.slope << " at x=" << maxima.slope_at << "\n";
}

void print_json(const BeamModel& model, const std::vector<double>& at, const Status& status,
                std::ostream& out) {
    Json points = Json::array();
    for (const double x : at) {
        const auto values = physical_values(model, nearest_point(model, x));
        points.push_back({{"x", x},
                          {"moment", values.moment},
                          {"stress", values.stress},
                          {"slope", values.slope},
                          {"deflection", values.deflection}});
    }
    const Json result = {
        {"units", model.metric_units ? "metric" : "english"},
        {"beam_length", model.beam_length},
        {"resolution", model.resolution},
        {"integration",
         model.integration_method == IntegrationMethod::exact ? "exact" : "trapezoid"},
        {"converged", !status.is_warning()},
        {"warning", status.is_warning() ? Json(status.message()) : Json(nullptr)},
        {"reactions", reactions_json(model)},
        {"max", maxima_json(model)},
        {"at", points}};
    out << result.dump(2) << "\n";
}

void print_table(const BeamModel& model, std::ostream& out) {
    const Grid grid = analysis_grid(model);
    out << "x,moment,stress,slope,deflection\n";
    for (int i = 0; i <= grid.last; ++i) {
        const auto values = physical_values(model, i);
        out << shortest(grid.x(i)) << ',' << shortest(values.moment) << ','
            << shortest(values.stress) << ',' << shortest(values.slope) << ','
            << shortest(values.deflection) << '\n';
    }
}

}  // namespace flexley::cli
