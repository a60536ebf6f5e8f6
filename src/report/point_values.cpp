// Reads a typed position and picks the calculated point nearest to it; nothing is interpolated.
#include "report/point_values.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "model/limits.h"
#include "model/units.h"
#include "report/unit_choice.h"

namespace flexley {

namespace {

// The point read-out has always used this rounding of pi; the maximum values use a shorter one.
constexpr double kPi = 3.14159265;

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    const auto last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

std::optional<double> parse_number(std::string_view text) {
    text = trimmed(text);
    // from_chars takes no leading plus sign, but a user may type one.
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
    if (text.empty()) return {};
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) {
        return {};
    }
    return value;
}

double round_half_even(double value) {
    if (std::abs(value - std::trunc(value)) == 0.5) return 2.0 * std::round(value / 2.0);
    return std::round(value);
}

}  // namespace

std::optional<double> typed_position(std::string_view text, bool metric, bool in_feet) {
    const auto value = parse_number(text);
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
    const double k = round_half_even(n * position / model.beam_length);
    // The index must stay within the last run's grid and the result arrays, whatever it is given.
    if (!(k > 0.0)) return 0;
    return static_cast<int>(std::min({k, std::trunc(n), double{kResultPoints - 1}}));
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
    return {Status::success(), point_value_texts(model, *position)};
}

}  // namespace flexley
