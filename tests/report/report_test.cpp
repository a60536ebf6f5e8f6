// The text report line by line, in both unit systems, against hand-derived expectations.
#include "report/report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

#include "model/features.h"
#include "report/line_diff.h"
#include "report/report_date.h"

namespace flexley {
namespace {

using Lines = std::vector<std::string>;
using testing::same_lines;

const std::string kRule114 = "    " + std::string(114, '-');
const std::string kDate = "06/01/24";

Lines header(const std::string& title) {
    return {"",
            "",
            kRule114,
            "                                           FLEXLEY V2.2 REPORT",
            kRule114,
            "",
            "    " + title,
            "",
            kRule114};
}

Lines closing() {
    return {"", "", kDate};
}

Lines joined(std::initializer_list<Lines> parts) {
    Lines all;
    for (const auto& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

ReportOptions every_section() {
    ReportOptions options;
    options.beam_properties = true;
    options.load_text = true;
    options.support_reactions = true;
    options.maximum_values = true;
    options.point_values = true;
    return options;
}

// A 20 ft beam with loads in inches and feet, a rising triangular load, one removed feature of
// each kind, and a cantilever at the left end with three simple supports.
BeamModel english_beam() {
    BeamModel model;
    model.beam_length = 240.0;
    model.sig_figs = 4;
    model.resolution = 10.0f;
    model.moment_of_inertia = 100.0f;
    model.elastic_modulus = 29e6f;
    model.fibre_distance = 5.0f;
    add_point_load(model, -1000.0, 60.0, "in", "lb");
    add_point_load(model, -500.0, 120.0, "ft", "lb");
    add_point_load(model, -250.0, 30.0, "in", "lb");
    add_distributed_load(model, 0.0, 120.0, 0.0, -50.0, "in", "pi");
    add_distributed_load(model, 120.0, 240.0, -10.0, -10.0, "ft", "pf");
    add_distributed_load(model, 24.0, 36.0, -5.0, -7.5, "ft", "pi");
    add_distributed_load(model, 36.0, 48.0, -1.0, -2.0, "in", "pf");
    add_distributed_load(model, 0.0, 10.0, -3.0, -3.0, "in", "pi");
    add_moment(model, 1200.0, 180.0, "in", "pi");
    add_moment(model, -6000.0, 200.0, "ft", "pf");
    add_moment(model, 50.0, 5.0, "in", "pi");
    add_support(model, 0.0, "cant", "in", "lb");
    add_support(model, 120.0, "simp", "ft", "lb");
    add_support(model, 60.0, "simp", "in", "lb");
    add_support(model, 180.0, "simp", "in", "lb");
    add_support(model, 240.0, "simp", "ft", "lb");
    for (int removed : {3, 8, 11, 14})
        remove_feature(model, removed);

    model.reaction_count = 4;
    model.cantilever_count = 1;
    model.reaction_feature = {0, 12, 13, 15, 16};
    model.reaction = {0, -25000.0, 1500.0, 2000.0, 750.5, 1000.0 / 3};

    const double ei = 29e6 * 100.0;
    model.max_moment = -1500.0;
    model.max_moment_at = 60.0;
    model.max_stress = 12340.0;
    model.max_stress_at = 60.0;
    model.max_deflection = 0.5 * ei;
    model.max_deflection_at = 120.0;
    model.max_slope = 0.01 * ei;
    model.max_slope_at = 0.0;

    // 5 ft is grid position 2.5 of 10: the even neighbour, point 2, is reported.
    model.moment[2] = -999.0;
    model.stress[2] = 10000.0;
    model.deflection[2] = 0.25 * ei;
    model.slope[2] = -0.01 * ei;
    model.moment[3] = 5.0;
    return model;
}

TEST(Report, EnglishBeamWithEverySection) {
    auto options = every_section();
    options.title = "Test beam";
    options.point_text = "5.0";
    options.point_position = 60.0;
    options.point_in_feet = true;
    const Lines expected = joined({
        header("Test beam"),
        {
            "",
            "",
            "    BEAM PROPERTIES",
            "    -------------------------------",
            "",
            "        Beam Length = 20 ft.",
            "        Moment of Inertia = 100 in^4",
            "        Modulus of Elasticity = 29000000 psi",
            "        Distance From Neutral Axis to Furthest Fiber = 5 in.",
            "",
            "",
            "    LOAD CONFIGURATION",
            "    ------------------------------------",
            "",
            "        Point Loads",
            "        ------------------",
            "        -1000 lb., x=60 in.",
            "        -500 lb., x=10 ft.",
            "",
            "        Distributed Loads",
            "        ---------------------------",
            "        Start=0 lb./in., x=0 in.; End=-50 lb./in., x=120 in.",
            "        Start=-120 lb./ft., x=10 ft.; End=-120 lb./ft., x=20 ft.",
            "        Start=-5 lb./in., x=2 ft.; End=-7.5 lb./in., x=3 ft.",
            "        Start=-12 lb./ft., x=36 in.; End=-24 lb./ft., x=48 in.",
            "",
            "        Moments",
            "        ---------------",
            "        1200 lb.-in., x=180 in.",
            "        -500 lb.-ft., x=16.67 ft.",
            "",
            "        Supports",
            "        ----------------",
            "        Cantilever support; 0 in., Reaction=1500 lb., -25000 lb.-in.",
            "        Simple support; 10 ft., Reaction=2000 lb.",
            "        Simple support; 180 in., Reaction=750.5 lb.",
            "        Simple support; 20 ft., Reaction=333.3 lb.",
            "",
            "",
            "    MAXIMUM VALUES",
            "    -----------------------------",
            "",
            "        Maximum Bending Moment = -125 lb.-ft. at x=5 ft.",
            "        Maximum Bending Stress = 12.34 ksi at x=5 ft.",
            "        Maximum Deflection = -0.5 in. at x=10 ft.",
            "        Maximum Slope = 0.573 degrees at x=0 ft.",
            "",
            "",
            "    VALUES AT A POINT (X=5.0 ft.)",
            "    ----------------------------------------------",
            "",
            "        Bending Moment=-999 lb.-in.",
            "        Bending Stress=10 ksi",
            "        Deflection=-0.25 in.",
            "        Slope=-0.573 degrees",
        },
        closing(),
    });
    EXPECT_TRUE(same_lines(expected, report_lines(english_beam(), options, kDate)));
}

TEST(Report, EnglishPointHeadingInInches) {
    ReportOptions options;
    options.point_values = true;
    options.point_text = "60";
    options.point_position = 60.0;
    options.point_in_feet = false;
    const auto lines = report_lines(english_beam(), options, kDate);
    ASSERT_GT(lines.size(), 11u);
    EXPECT_EQ(lines[11], "    VALUES AT A POINT (X=60 in.)");
}

// A beam of 3.14159 m with newton and kilogram features, a triangular load rising from 0 and two
// cantilevers whose supports were entered out of system order.
BeamModel metric_beam() {
    BeamModel model;
    model.metric_units = true;
    model.beam_length = 3.14159;
    model.sig_figs = 4;
    model.resolution = 10.0f;
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

    const double ei = static_cast<double>(model.elastic_modulus) * model.moment_of_inertia;
    model.max_moment = 2500.0;
    model.max_moment_at = 1.0;
    model.max_stress = 999999.0;
    model.max_stress_at = 1.0;
    model.max_deflection = 0.004 * ei;
    model.max_deflection_at = 1.5;
    model.max_slope = -0.02 * ei;
    model.max_slope_at = 3.14159;

    // 2 m is grid position 6.37 of 10.
    model.moment[6] = -1234.4;
    model.stress[6] = 1e6;
    model.deflection[6] = -0.001 * ei;
    model.slope[6] = 0.0;
    return model;
}

TEST(Report, MetricBeamWithEverySectionAndNoTitle) {
    auto options = every_section();
    options.point_text = "2.0";
    options.point_position = 2.0;
    const Lines expected = joined({
        header(""),
        {
            "",
            "",
            "    BEAM PROPERTIES",
            "    -------------------------------",
            "",
            "        Beam Length = 3.14159 m",
            "        Moment of Inertia = 8000000 mm^4",
            "        Modulus of Elasticity = 200000 MPa",
            "        Distance From Neutral Axis to Furthest Fiber = 100 mm",
            "",
            "",
            "    LOAD CONFIGURATION",
            "    ------------------------------------",
            "",
            "        Point Loads",
            "        ------------------",
            "        -2000 N, x=1 m",
            "        -10 kg, x=2 m",
            "",
            "        Distributed Loads",
            "        ---------------------------",
            "        Start=0 N/m, x=0 m; End=-1500 N/m, x=2 m",
            "        Start=-20 kg/m, x=2 m; End=-20 kg/m, x=3.142 m",
            "",
            "        Moments",
            "        ---------------",
            "        500 N-m, x=0.5 m",
            "        -100 kg-m, x=1.5 m",
            "",
            "        Supports",
            "        ----------------",
            "        Simple support; 1 m, Reaction=1500 N",
            "        Cantilever support; 0 m, Reaction=1000 N, -800 N-m",
            "        Cantilever support; 3.142 m, Reaction=1251 N, 300 N-m",
            "        Simple support; 2 m, Reaction=2500 N",
            "",
            "",
            "    MAXIMUM VALUES",
            "    -----------------------------",
            "",
            "        Maximum Bending Moment = 2500 N-m at x=1 m",
            "        Maximum Bending Stress = 1000 kPa at x=1 m",
            "        Maximum Deflection = -4 mm at x=1.5 m",
            "        Maximum Slope = -1.146 degrees at x=3.142 m",
            "",
            "",
            "    VALUES AT A POINT (X=2.0 m)",
            "    ----------------------------------------------",
            "",
            "        Bending Moment=-1234 N-m",
            "        Bending Stress=1 MPa",
            "        Deflection=1 mm",
            "        Slope=0 degrees",
        },
        closing(),
    });
    EXPECT_TRUE(same_lines(expected, report_lines(metric_beam(), options, kDate)));
}

// The support lines of a report with only the load configuration text.
Lines support_lines(const BeamModel& model, bool with_reactions) {
    ReportOptions options;
    options.load_text = true;
    options.support_reactions = with_reactions;
    const auto lines = report_lines(model, options, kDate);
    const auto rule = std::find(lines.begin(), lines.end(), "        " + std::string(16, '-'));
    return Lines(rule + 1, lines.end() - 3);
}

TEST(Report, SimpleSupportsOnlyTakeTheirForceInSystemOrder) {
    BeamModel model;
    model.beam_length = 120.0;
    model.sig_figs = 4;
    add_support(model, 0.0, "simp", "in", "lb");
    add_support(model, 60.0, "simp", "in", "lb");
    add_support(model, 120.0, "simp", "ft", "lb");
    model.reaction_count = 3;
    model.cantilever_count = 0;
    model.reaction_feature = {0, 1, 2, 3};
    model.reaction = {0, 100.0, -200.0, 300.0};
    // Added after the last run: not part of the solved system.
    add_support(model, 90.0, "simp", "in", "lb");
    EXPECT_TRUE(same_lines(
        {
            "        Simple support; 0 in., Reaction=100 lb.",
            "        Simple support; 60 in., Reaction=-200 lb.",
            "        Simple support; 10 ft., Reaction=300 lb.",
            "        Simple support; 90 in.",
        },
        support_lines(model, true)));
    EXPECT_TRUE(same_lines(
        {
            "        Simple support; 0 in.",
            "        Simple support; 60 in.",
            "        Simple support; 10 ft.",
            "        Simple support; 90 in.",
        },
        support_lines(model, false)));
}

TEST(Report, EmptyBeamStillPrintsEveryLoadHeading) {
    BeamModel model;
    model.beam_length = 100.0;
    ReportOptions options;
    options.load_text = true;
    const Lines expected = joined({
        header(""),
        {
            "",
            "",
            "    LOAD CONFIGURATION",
            "    ------------------------------------",
            "",
            "        Point Loads",
            "        ------------------",
            "",
            "        Distributed Loads",
            "        ---------------------------",
            "",
            "        Moments",
            "        ---------------",
            "",
            "        Supports",
            "        ----------------",
        },
        closing(),
    });
    EXPECT_TRUE(same_lines(expected, report_lines(model, options, kDate)));
}

TEST(Report, TitleAloneGivesHeaderAndDate) {
    ReportOptions options;
    options.title = "Only a title";
    EXPECT_TRUE(same_lines(joined({header("Only a title"), closing()}),
                           report_lines(english_beam(), options, kDate)));
}

TEST(Report, NothingChosenGivesNoLines) {
    ReportOptions options;
    options.support_reactions = true;  // reactions alone are no section
    EXPECT_TRUE(report_lines(english_beam(), options, kDate).empty());
}

TEST(ReportDate, TodayContainsTheYear) {
    const std::time_t now = std::time(nullptr);
    const std::string year = std::to_string(std::localtime(&now)->tm_year + 1900);
    EXPECT_NE(today_short_date().find(year.substr(2)), std::string::npos);
}

}  // namespace
}  // namespace flexley
