// The text report line by line in both unit systems, the unit thresholds of its read-outs and the
// grid point a typed position is read at.
#include "report/report.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "analysis/results_state.h"
#include "analysis/run.h"
#include "model/features.h"
#include "model/units.h"
#include "report/maximum_values.h"
#include "report/point_values.h"
#include "report/unit_choice.h"

namespace flexley {
namespace {

const std::string kDate = "06/01/24";

// The whole expected report: the nine header lines, the body, then two empty lines and the date.
std::string report(const std::string& title, const std::string& body) {
    const std::string rule = "    " + std::string(114, '-') + "\n";
    return "\n\n" + rule + std::string(43, ' ') + "FLEXLEY V2.2 REPORT\n" + rule + "\n    " +
           title + "\n\n" + rule + body + "\n\n" + kDate + "\n";
}

// The report as one text, so that a failed comparison shows gtest's line diff.
// A 20 ft beam on simple supports at its ends with 5000 lb at mid-span, all entered in feet.
BeamModel simple_english_beam() {
    BeamModel model;
    model.beam_length = 240.0;
    model.sig_figs = 3;
    model.elastic_modulus = 29e6f;
    model.moment_of_inertia = 100.0f;
    model.fibre_distance = 5.0f;
    add_point_load(model, 5000.0, 120.0, "ft", "lb");
    add_support(model, 0.0, "simp", "ft", "lb");
    add_support(model, 240.0, "simp", "ft", "lb");
    return model;
}

std::string printed(const BeamModel& model, const ReportOptions& options) {
    std::string all;
    for (const auto& line : report_lines(model, options, kDate))
        all += line + "\n";
    return all;
}

// The same stored results for both beams, each report showing them in its own units: maxima, and
// the results at grid point k. Slope and deflection are stored as E x I times the shown values.
void set_results(BeamModel& model, int k) {
    const double ei = static_cast<double>(model.elastic_modulus) * model.moment_of_inertia;
    model.max_moment = -1500.0;
    model.max_moment_at = 1.5;
    model.max_stress = 999999.0;  // kPa or ksi: the unit is chosen before display rounding
    model.max_stress_at = 1.0;
    model.max_deflection = 0.5 * ei;
    model.max_deflection_at = 2.0;
    model.max_slope = 0.01 * ei;
    model.moment[k] = -999.0;
    model.stress[k] = 1e6;
    model.deflection[k] = -0.001 * ei;
    model.slope[k] = -0.01 * ei;
    model.results_valid = true;
}

// A 20 ft beam shown with 8 figures: each load kind in inch and foot units crosswise, a triangular
// load rising from 0, a cantilever at the left end and two simple supports. The maximum positions
// follow the model's inch choice and the point heading the dialog's feet choice: set apart here so
// that a mix-up shows. With 8 figures the two read-outs' roundings of pi give different slopes.
TEST(Report, EnglishBeamWithEverySectionThenWithoutLoads) {
    BeamModel model;
    model.beam_length = 240.0;
    model.positions_in_inches = true;
    model.sig_figs = 8;
    model.moment_of_inertia = 100.0f;
    model.elastic_modulus = 29e6f;
    model.fibre_distance = 5.0f;
    add_point_load(model, -1000.0, 60.0, "in", "lb");
    add_distributed_load(model, 0.0, 120.0, 0.0, -50.0, "ft", "pi");
    add_distributed_load(model, 120.0, 240.0, -10.0, -10.0, "in", "pf");
    add_moment(model, -1200.0, 180.0, "ft", "pi");
    add_moment(model, 1000.0, 200.0, "in", "pf");
    add_support(model, 0.0, "cant", "in", "lb");
    add_support(model, 120.0, "simp", "ft", "lb");
    add_support(model, 180.0, "simp", "in", "lb");
    model.reaction_count = 3;
    model.cantilever_count = 1;
    model.reaction_feature = {0, 6, 7, 8};
    model.reaction = {0, -25000.0, 1500.0, 2000.0, 1000.0 / 3};
    set_results(model, 2500);  // 5 ft of 20 at the default 10000 intervals
    EXPECT_EQ(printed(model, {"Beam", true, true, true, true, true, "5.0", 60}), report("Beam", R"(

    BEAM PROPERTIES
    -------------------------------

        Beam Length = 20 ft.
        Moment of Inertia = 100 in^4
        Modulus of Elasticity = 29000000 psi
        Distance From Neutral Axis to Furthest Fiber = 5 in.


    LOAD CONFIGURATION
    ------------------------------------

        Point Loads
        ------------------
        -1000 lb., x=60 in.

        Distributed Loads
        ---------------------------
        Start=0 lb./in., x=0 ft.; End=-50 lb./in., x=10 ft.
        Start=-120 lb./ft., x=120 in.; End=-120 lb./ft., x=240 in.

        Moments
        ---------------
        -1200 lb.-in., x=15 ft.
        83.333333 lb.-ft., x=200 in.

        Supports
        ----------------
        Cantilever support; 0 in., Reaction=1500 lb., -25000 lb.-in.
        Simple support; 10 ft., Reaction=2000 lb.
        Simple support; 180 in., Reaction=333.33333 lb.


    MAXIMUM VALUES
    -----------------------------

        Maximum Bending Moment = -125 lb.-ft. at x=1.5 in.
        Maximum Bending Stress = 999.999 ksi at x=1 in.
        Maximum Deflection = -0.5 in. at x=2 in.
        Maximum Slope = 0.57295779 degrees at x=0 in.


    VALUES AT A POINT (X=5.0 ft.)
    ----------------------------------------------

        Bending Moment=-999 lb.-in.
        Bending Stress=1000 ksi
        Deflection=0.001 in.
        Slope=-0.5729578 degrees
)"));
    // The values-at-a-point dialog reads the same point from the typed text.
    EXPECT_EQ(find_point_values(model, "5.0", true).texts.moment, "-999 lb.-in.");

    // Every load and the cantilever removed, and a support added since the last run: each heading
    // stays, with nothing under it, and no support shows a reaction of the earlier beam.
    for (int feature = 1; feature <= 6; ++feature)
        remove_feature(model, feature);
    add_support(model, 240.0, "simp", "ft", "lb");
    EXPECT_EQ(printed(model, {.load_text = true, .support_reactions = true}), report("", R"(

    LOAD CONFIGURATION
    ------------------------------------

        Point Loads
        ------------------

        Distributed Loads
        ---------------------------

        Moments
        ---------------

        Supports
        ----------------
        Simple support; 10 ft.
        Simple support; 180 in.
        Simple support; 20 ft.
)"));
}

// A unit switch changes the beam: its report leaves out the English reactions and results until
// the beam is calculated again in metric units.
TEST(Report, UnitSwitchWaitsForTheNextRun) {
    BeamModel model = simple_english_beam();
    ASSERT_TRUE(run_calculation(model, {}).ok());
    convert_units(model, "eng_to_met");
    const ReportOptions options{
        .load_text = true, .support_reactions = true, .maximum_values = true};
    const auto stale = printed(model, options);
    EXPECT_EQ(stale.find("Reaction="), std::string::npos) << stale;
    EXPECT_EQ(stale.find("MAXIMUM VALUES"), std::string::npos) << stale;
    EXPECT_EQ(maximum_value_texts(model).status.message(), kResultsOutOfDate);
    EXPECT_EQ(find_point_values(model, "1", false).status.message(), kResultsOutOfDate);
    ASSERT_TRUE(recalculate(model, {}).ok());
    EXPECT_NE(printed(model, options).find("Simple support; 0 m, Reaction=11100 N"),
              std::string::npos);
    EXPECT_EQ(maximum_value_texts(model).texts.moment, "33900 N-m");
}

// A beam of 3.14159 m shown with the default 3 figures, which its length ignores: newton and
// kilogram features, a triangular load rising from 0, and two cantilevers whose supports were
// entered out of system order.
TEST(Report, MetricBeamWithEverySectionAndNoTitle) {
    BeamModel model;
    model.metric_units = true;
    model.beam_length = 3.14159;
    model.moment_of_inertia = 8e-6f;
    model.elastic_modulus = 2e11f;
    model.fibre_distance = 0.1f;
    add_point_load(model, -2000.0, 1.0, "m", "N");
    add_point_load(model, -98.0665, 2.0, "m", "kg");
    add_distributed_load(model, 0.0, 2.0, 0.0, -1500.0, "m", "N");
    add_distributed_load(model, 2.0, 3.14159, -196.133, -196.133, "m", "kg");
    add_moment(model, 500.0, 0.5, "m", "N");
    add_moment(model, -980.665, 1.5, "m", "kg");
    add_support(model, 1.0, "simp", "m", "N");
    add_support(model, 0.0, "cant", "m", "N");
    add_support(model, 3.14159, "cant", "m", "N");
    add_support(model, 2.0, "simp", "m", "N");
    // System order: first cantilever, the simple supports in feature order, second cantilever.
    model.reaction_count = 4;
    model.cantilever_count = 2;
    model.reaction_feature = {0, 8, 7, 10, 9};
    model.reaction = {0, -800.0, 300.0, 1000.0, 1500.0, 2500.0, 1251.0};
    set_results(model, 6366);  // 2 m is grid position 6366.2
    EXPECT_EQ(printed(model, {"", true, true, true, true, true, "2.0", 2.0}), report("", R"(

    BEAM PROPERTIES
    -------------------------------

        Beam Length = 3.14159 m
        Moment of Inertia = 8000000 mm^4
        Modulus of Elasticity = 200000 MPa
        Distance From Neutral Axis to Furthest Fiber = 100 mm


    LOAD CONFIGURATION
    ------------------------------------

        Point Loads
        ------------------
        -2000 N, x=1 m
        -10 kg, x=2 m

        Distributed Loads
        ---------------------------
        Start=0 N/m, x=0 m; End=-1500 N/m, x=2 m
        Start=-20 kg/m, x=2 m; End=-20 kg/m, x=3.14 m

        Moments
        ---------------
        500 N-m, x=0.5 m
        -100 kg-m, x=1.5 m

        Supports
        ----------------
        Simple support; 1 m, Reaction=1500 N
        Cantilever support; 0 m, Reaction=1000 N, -800 N-m
        Cantilever support; 3.14 m, Reaction=1250 N, 300 N-m
        Simple support; 2 m, Reaction=2500 N


    MAXIMUM VALUES
    -----------------------------

        Maximum Bending Moment = -1500 N-m at x=1.5 m
        Maximum Bending Stress = 1000 kPa at x=1 m
        Maximum Deflection = -500 mm at x=2 m
        Maximum Slope = 0.573 degrees at x=0 m


    VALUES AT A POINT (X=2.0 m)
    ----------------------------------------------

        Bending Moment=-999 N-m
        Bending Stress=1 MPa
        Deflection=1 mm
        Slope=-0.573 degrees
)"));
}

// Reactions alone are no section; a title alone brings the header and the date.
TEST(Report, HeaderAndDateComeWithATitleOrASection) {
    EXPECT_EQ("", printed({}, {.support_reactions = true}));
    EXPECT_EQ(report("Only a title", ""), printed({}, {.title = "Only a title"}));
}

// Just below each threshold the smaller unit, at it the larger one; the signs alternate so that
// each function meets a negative value on the larger side.
TEST(UnitChoice, ThresholdTakesTheLargerUnitAtTheBoundary) {
    using Scale = ScaledValue (*)(double, bool);
    const std::tuple<Scale, bool, double, const char*, double, const char*> rows[] = {
        {moment_value, false, 999.99, "999.99 lb.-in.", -1000.0, "-83.3333333333333 lb.-ft."},
        {stress_value, true, -999.99, "-999.99 Pa", 1000.0, "1 kPa"},
        {stress_value, true, 999999.99, "999.99999 kPa", -1e6, "-1 MPa"},
        {stress_value, false, -9999.99, "-9999.99 psi", 10000.0, "10 ksi"},
    };
    for (const auto& [scale, metric, below, below_text, at, at_text] : rows) {
        EXPECT_EQ(value_text(scale(below, metric), 15), below_text);
        EXPECT_EQ(value_text(scale(at, metric), 15), at_text);
    }
}

// A 120 in. beam of 10 intervals: the grid point a text is read at, or -1 when it is refused. A
// position midway between two points takes the even one; 10 ft. is the right end itself; a metric
// position is in metres whatever the feet choice.
TEST(PointValues, ReadsTheNearestPointOrRefusesTheText) {
    BeamModel model;
    model.beam_length = 120.0;
    model.resolution = 10.0f;
    const std::tuple<const char*, bool, bool, int> rows[] = {
        {"6", false, false, 0},    {"18", false, false, 2},    {"10", false, true, 10},
        {"10.5", false, true, -1}, {"-0.1", false, false, -1}, {"18", true, true, 2},
    };
    for (const auto& [text, metric, in_feet, point] : rows) {
        model.metric_units = metric;
        const auto position = position_on_beam(model, text, in_feet);
        EXPECT_EQ(position ? nearest_point(model, *position) : -1, point) << text;
    }
    EXPECT_EQ(find_point_values(model, "nan", false).status.message(), kInvalidLocation);
}

}  // namespace
}  // namespace flexley
