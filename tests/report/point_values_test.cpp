// The read-outs' unit thresholds and the grid point a typed position is read at.
#include "report/point_values.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "report/unit_choice.h"

namespace flexley {
namespace {

// Just below each threshold the smaller unit, at it the larger one, for either sign.
TEST(UnitChoice, ThresholdTakesTheLargerUnitAtTheBoundary) {
    // The text 0.01 below the boundary, and at it.
    using Row = std::tuple<ScaledValue (*)(double, bool), bool, double, const char*, const char*>;
    const Row rows[] = {
        {moment_value, false, 1000.0, "999.99 lb.-in.", "83.3333333333333 lb.-ft."},
        {stress_value, true, 1000.0, "999.99 Pa", "1 kPa"},
        {stress_value, true, 1e6, "999.99999 kPa", "1 MPa"},
        {stress_value, false, 10000.0, "9999.99 psi", "10 ksi"},
    };
    for (const auto& [scale, metric, boundary, below, at] : rows) {
        for (const std::string sign : {"", "-"}) {
            const double factor = sign.empty() ? 1.0 : -1.0;
            EXPECT_EQ(value_text(scale(factor * (boundary - 0.01), metric), 15), sign + below);
            EXPECT_EQ(value_text(scale(factor * boundary, metric), 15), sign + at);
        }
    }
}

// A 120 in. beam of 10 intervals whose moment at point k is k: the read-out names the point it
// used, or the text is refused. A position midway between two points takes the even one; 10 ft.
// is the right end itself; a metric position is in metres whatever the feet choice.
TEST(PointValues, ReadsTheNearestPointOrRefusesTheText) {
    // The text, metric or not, the feet choice, and the moment text read or nothing when refused.
    const std::tuple<const char*, bool, bool, const char*> rows[] = {
        {"6", false, false, "0 lb.-in."},    {"18", false, false, "2 lb.-in."},
        {"6.12", false, false, "1 lb.-in."}, {"10", false, true, "10 lb.-in."},
        {"10.5", false, true, nullptr},      {"-0.1", false, false, nullptr},
        {"18", true, true, "2 N-m"},         {" 18 ", false, false, "2 lb.-in."},
        {"", false, false, nullptr},         {"1,5", false, false, nullptr},
        {"nan", false, false, nullptr},
    };
    for (const auto& [text, metric, in_feet, moment] : rows) {
        BeamModel model;
        model.metric_units = metric;
        model.beam_length = 120.0;
        model.resolution = 10.0f;
        model.elastic_modulus = model.moment_of_inertia = 1.0f;
        for (int k = 0; k <= 10; ++k)
            model.moment[k] = k;
        const auto result = find_point_values(model, text, in_feet);
        EXPECT_EQ(result.status.message(), moment ? "" : kInvalidLocation) << text;
        EXPECT_EQ(result.texts.moment, moment ? moment : "") << text;
    }
}

}  // namespace
}  // namespace flexley
