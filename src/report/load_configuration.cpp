// Lists every load and support in the units the user entered it in, with optional reactions.
#include "report/load_configuration.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "analysis/support_reactions.h"
#include "model/features.h"
#include "model/limits.h"
#include "model/units.h"
#include "report/layout.h"
#include "report/unit_choice.h"

namespace flexley {

namespace {

// Every loop below stops at the table's capacity, whatever its count says.

struct FeatureUnits {
    std::string_view loc;
    std::string_view mag;
};

// The unit codes of a feature number; none for 0, which stands for no feature.
FeatureUnits units_of(const BeamModel& model, int feature) {
    if (feature == 0) return {};
    return {model.loc_unit[feature], model.mag_unit[feature]};
}

// The units of a table entry are those of the first feature that names it.
FeatureUnits units_of(const BeamModel& model, FeatureRef entry) {
    return units_of(model, feature_number_of(model, entry));
}

// Positions of loads and supports follow the feature's position code, not the beam's length.
std::string position_text(const BeamModel& model, double position, FeatureUnits units) {
    return value_text(position_value(position, model.metric_units, units.loc == "in"),
                      model.sig_figs);
}

void append_heading(std::vector<std::string>& lines, const char* heading, std::size_t rule) {
    lines.emplace_back();
    lines.emplace_back(std::string(kItemIndent) + heading);
    lines.push_back(subsection_rule(rule));
}

// Point loads and moments print alike: the magnitude in the feature's unit, then its position.
template <std::size_t N>
void append_concentrated(std::vector<std::string>& lines, const BeamModel& model, FeatureKind kind,
                         int count, const std::array<double, N>& magnitudes,
                         const std::array<double, N>& positions,
                         ScaledValue (*shown)(double, bool, std::string_view)) {
    for (int k = 1; k <= std::min<int>(count, N - 1); ++k) {
        const FeatureRef entry{kind, k};
        if (is_removed(model, entry)) continue;
        const auto units = units_of(model, entry);
        lines.push_back(
            kItemIndent +
            value_text(shown(magnitudes[k], model.metric_units, units.mag), model.sig_figs) +
            ", x=" + position_text(model, positions[k], units));
    }
}

void append_point_loads(std::vector<std::string>& lines, const BeamModel& model) {
    append_heading(lines, "Point Loads", 18);
    append_concentrated(lines, model, FeatureKind::point_load, model.pt_count, model.pt_mag,
                        model.pt_loc, point_load_shown);
}

void append_distributed_loads(std::vector<std::string>& lines, const BeamModel& model) {
    append_heading(lines, "Distributed Loads", 27);
    for (int k = 1; k <= std::min<int>(model.di_count, kMaxDistributedLoads); ++k) {
        const FeatureRef entry{FeatureKind::distributed_load, k};
        if (is_removed(model, entry)) continue;
        const auto units = units_of(model, entry);
        auto end_text = [&](double magnitude, double position) {
            return value_text(intensity_shown(magnitude, model.metric_units, units.mag),
                              model.sig_figs) +
                   ", x=" + position_text(model, position, units);
        };
        lines.push_back(kItemIndent + std::string("Start=") +
                        end_text(model.di_mag_start[k], model.di_start[k]) +
                        "; End=" + end_text(model.di_mag_end[k], model.di_end[k]));
    }
}

void append_moments(std::vector<std::string>& lines, const BeamModel& model) {
    append_heading(lines, "Moments", 15);
    append_concentrated(lines, model, FeatureKind::moment, model.mo_count, model.mo_mag,
                        model.mo_loc, moment_load_shown);
}

// The reactions of the last run, by support feature; a support added since has none.
std::string reaction_text(const std::vector<SupportReaction>& reactions, int feature,
                          const BeamModel& model) {
    const auto found = std::find_if(reactions.begin(), reactions.end(), [&](const auto& reaction) {
        return reaction.feature_number == feature;
    });
    if (feature == 0 || found == reactions.end()) return {};
    const std::string_view force_unit = model.metric_units ? " N" : " lb.";
    const std::string_view moment_unit = model.metric_units ? " N-m" : " lb.-in.";
    std::string text = ", Reaction=" + value_text({found->force, force_unit}, model.sig_figs);
    if (found->moment) text += ", " + value_text({*found->moment, moment_unit}, model.sig_figs);
    return text;
}

void append_supports(std::vector<std::string>& lines, const BeamModel& model, bool with_reactions) {
    append_heading(lines, "Supports", 16);
    const std::vector<SupportReaction> reactions =
        with_reactions ? support_reactions(model) : std::vector<SupportReaction>{};
    for (int k = 1; k <= std::min<int>(model.su_count, kMaxSupports); ++k) {
        const FeatureRef entry{FeatureKind::support, k};
        if (is_removed(model, entry)) continue;
        const int feature = feature_number_of(model, entry);
        const auto units = units_of(model, feature);
        std::string line = kItemIndent;
        line += model.su_type[k] == "simp" ? "Simple support; " : "Cantilever support; ";
        line += position_text(model, model.su_loc[k], units);
        line += reaction_text(reactions, feature, model);
        lines.push_back(std::move(line));
    }
}

}  // namespace

void append_load_configuration(std::vector<std::string>& lines, const BeamModel& model,
                               bool with_reactions) {
    open_section(lines, "LOAD CONFIGURATION", 36);
    append_point_loads(lines, model);
    append_distributed_loads(lines, model);
    append_moments(lines, model);
    append_supports(lines, model, with_reactions);
}

}  // namespace flexley
