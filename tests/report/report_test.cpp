// The text report line by line in both unit systems, with the unit thresholds of its read-outs.
#include "report/report.h"

#include <gtest/gtest.h>

#include <string>

#include "analysis/results_state.h"
#include "model/beam_settings.h"
#include "model/features.h"
#include "report/maximum_values.h"
#include "report/point_values.h"

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
std::string printed(const BeamModel& model, const ReportOptions& options) {
    std::string all;
    for (const auto& line : report_lines(model, options, kDate))
        all += line + "\n";
    return all;
}

// The same stored results for both beams, each report showing them in its own units: maxima, and
// the results at grid point k. Slope and deflection are stored as E x I times the shown values.
// The moments stand just below and at the English threshold, the stresses at each beam's own.
void set_results(BeamModel& model, int k, double max_stress, double stress) {
    const double ei = static_cast<double>(model.elastic_modulus) * model.moment_of_inertia;
    model.max_moment = -1000.0;
    model.max_moment_at = 1.5;
    model.max_stress = max_stress;
    model.max_stress_at = 1.0;
    model.max_deflection = 0.5 * ei;
    model.max_deflection_at = 2.0;
    model.max_slope = 0.01 * ei;
    model.moment[k] = 999.99;
    model.stress[k] = stress;
    model.deflection[k] = -0.001 * ei;
    model.slope[k] = -0.01 * ei;
    model.results_valid = true;
}

// A 20 ft beam shown with 8 figures: each load kind in inch and foot units crosswise, a triangular
// load rising from 0, a cantilever at the left end and a simple support. The maximum positions
// follow the model's inch choice and the point heading the dialog's feet choice: set apart here so
// that a mix-up shows. With 8 figures the two read-outs' roundings of pi give different slopes.
TEST(Report, EnglishBeamWithEverySectionThenStale) {
    BeamModel model;
    model.beam_length = 240.0;
    model.positions_in_inches = true;
    model.sig_figs = 8;
    set_section_properties(model, 100.0, 29e6, 5.0);
    add_point_load(model, -1000.0, 60.0, "in", "lb");
    add_distributed_load(model, 0.0, 120.0, 0.0, -50.0, "ft", "pi");
    add_distributed_load(model, 120.0, 240.0, -10.0, -10.0, "in", "pf");
    add_moment(model, -1200.0, 180.0, "ft", "pi");
    add_moment(model, 1000.0, 200.0, "in", "pf");
    add_support(model, 0.0, "cant", "in", "lb");
    add_support(model, 120.0, "simp", "ft", "lb");
    model.reaction_count = 2;
    model.cantilever_count = 1;
    model.reaction_feature = {0, 6, 7};
    model.reaction = {0, -25000.0, 1500.0, 1000.0 / 3};
    set_results(model, 2500, 9999.99, -1e4);  // 5 ft of 20 at the default 10000 intervals
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
        Simple support; 10 ft., Reaction=333.33333 lb.


    MAXIMUM VALUES
    -----------------------------

        Maximum Bending Moment = -83.333333 lb.-ft. at x=1.5 in.
        Maximum Bending Stress = 9999.99 psi at x=1 in.
        Maximum Deflection = -0.5 in. at x=2 in.
        Maximum Slope = 0.57295779 degrees at x=0 in.


    VALUES AT A POINT (X=5.0 ft.)
    ----------------------------------------------

        Bending Moment=999.99 lb.-in.
        Bending Stress=-10 ksi
        Deflection=0.001 in.
        Slope=-0.5729578 degrees
)"));
    // A support added since the run: nothing of the earlier results shows, and the read-outs
    // refuse until the beam is calculated again.
    add_support(model, 240.0, "simp", "ft", "lb");
    const auto stale = printed(model, {"Beam", true, true, true, true, true, "5.0", 60});
    EXPECT_EQ(stale.find("Reaction="), std::string::npos) << stale;
    EXPECT_EQ(stale.find("VALUES"), std::string::npos) << stale;
    EXPECT_EQ(maximum_value_texts(model).status.message(), kResultsOutOfDate);
}

// A beam of 3.14159 m shown with the default 3 figures, which its length ignores: newton and
// kilogram features, a triangular load rising from 0, and two cantilevers whose supports were
// entered out of system order.
TEST(Report, MetricBeamWithEverySectionAndNoTitleThenOnlyATitle) {
    BeamModel model;
    model.metric_units = true;
    model.beam_length = 3.14159;
    set_section_properties(model, 8e-6, 2e11, 0.1);
    add_point_load(model, -2000.0, 1.0, "m", "N");
    add_distributed_load(model, 0.0, 2.0, 0.0, -1500.0, "m", "N");
    add_distributed_load(model, 2.0, 3.14159, -196.133, -196.133, "m", "kg");
    add_moment(model, 500.0, 0.5, "m", "N");
    add_moment(model, -980.665, 1.5, "m", "kg");
    add_support(model, 1.0, "simp", "m", "N");
    add_support(model, 0.0, "cant", "m", "N");
    add_support(model, 3.14159, "cant", "m", "N");
    // System order: first cantilever, the simple supports in feature order, second cantilever.
    model.reaction_count = 3;
    model.cantilever_count = 2;
    model.reaction_feature = {0, 7, 6, 8};
    model.reaction = {0, -800.0, 300.0, 1000.0, 1500.0, 1251.0};
    // 2 m is grid position 6366.2; the largest stress shows that the unit is chosen before
    // display rounding.
    set_results(model, 6366, 999999.0, 1e6);
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


    MAXIMUM VALUES
    -----------------------------

        Maximum Bending Moment = -1000 N-m at x=1.5 m
        Maximum Bending Stress = 1000 kPa at x=1 m
        Maximum Deflection = -500 mm at x=2 m
        Maximum Slope = 0.573 degrees at x=0 m


    VALUES AT A POINT (X=2.0 m)
    ----------------------------------------------

        Bending Moment=1000 N-m
        Bending Stress=1 MPa
        Deflection=1 mm
        Slope=-0.573 degrees
)"));
    // Reactions alone are no section; a title alone brings the header and the date.
    EXPECT_EQ("", printed({}, {.support_reactions = true}));
    EXPECT_EQ(report("Only a title", ""), printed({}, {.title = "Only a title"}));
}

}  // namespace
}  // namespace flexley
