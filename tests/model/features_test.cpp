// Feature list upkeep: numbering, scale tracking, capacities and clearing.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "model/feature_rules.h"
#include "model/features.h"

namespace flexley {
namespace {

TEST(FeatureEntry, ParsesKindAndIndex) {
    const auto parsed = parse_feature_entry("di50");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->kind, FeatureKind::distributed_load);
    EXPECT_EQ(parsed->index, 50);
    for (const char* entry : {"pt", "xx3", "pt0", "pt-1", "pt3a", "PT3", "pt99999999999"}) {
        EXPECT_FALSE(parse_feature_entry(entry)) << entry;
    }
}

TEST(AddFeature, NumbersFeaturesAcrossKindsInOrderOfAdding) {
    BeamModel model;
    model.beam_length = 120;
    ASSERT_TRUE(add_point_load(model, 100, 60, "ft", "lb").ok());
    ASSERT_TRUE(add_support(model, 0, "simp", "in", "lb").ok());
    ASSERT_TRUE(add_distributed_load(model, 0, 120, 1, 2, "in", "pi").ok());
    ASSERT_TRUE(add_moment(model, -50, 30, "ft", "pf").ok());
    ASSERT_TRUE(add_point_load(model, 200, 90, "in", "lb").ok());

    EXPECT_EQ(model.feature_count, 5);
    const char* expected[] = {"", "pt1", "su1", "di1", "mo1", "pt2"};
    for (int n = 1; n <= 5; ++n)
        EXPECT_EQ(model.feature_list[n], expected[n]);
    EXPECT_EQ(model.loc_unit[4], "ft");
    EXPECT_EQ(model.mag_unit[4], "pf");
    const auto fifth = lookup_feature(model, 5);
    ASSERT_TRUE(fifth);
    EXPECT_EQ(fifth->index, 2);
    EXPECT_FALSE(lookup_feature(model, 0));
    EXPECT_FALSE(lookup_feature(model, 6));
    EXPECT_EQ(feature_number_of(model, {FeatureKind::distributed_load, 1}), 3);
    EXPECT_EQ(feature_number_of(model, {FeatureKind::moment, 2}), 0);
}

TEST(AddFeature, TracksTheLargestMagnitudeOfEachKind) {
    BeamModel model;
    model.beam_length = 10;
    struct Step {
        double magnitude;
        double maxmag;
        double scalemag;
    };
    // The first load always becomes the largest; an equal one moves the old largest to the scale.
    const Step steps[] = {{-5, 5, 0}, {3, 5, 0}, {-5, 5, 5}, {8, 8, 5}, {-2, 8, 5}};
    for (const auto& step : steps) {
        ASSERT_TRUE(add_point_load(model, step.magnitude, 1, "in", "lb").ok());
        EXPECT_EQ(model.pt_maxmag, step.maxmag);
        EXPECT_EQ(model.pt_scalemag, step.scalemag);
    }
    ASSERT_TRUE(add_distributed_load(model, 0, 1, 2, -7, "in", "pi").ok());
    ASSERT_TRUE(add_distributed_load(model, 0, 1, 6, 0, "in", "pi").ok());
    EXPECT_EQ(model.di_maxmag, 7);
    ASSERT_TRUE(add_moment(model, 40, 1, "in", "pi").ok());
    ASSERT_TRUE(add_moment(model, -40, 1, "in", "pi").ok());
    EXPECT_EQ(model.mo_maxmag, 40);
    EXPECT_EQ(model.mo_scalemag, 40);
}

TEST(AddFeature, RefusesBeyondCapacityAndLeavesTablesUnchanged) {
    BeamModel model;
    model.beam_length = 100;
    for (int i = 0; i < kMaxSupports; ++i)
        ASSERT_TRUE(add_support(model, i, "simp", "", "").ok());
    const auto refused = add_support(model, 3, "simp", "", "");
    EXPECT_EQ(refused.message(), "No more supports can be added: a beam holds at most 20.");
    EXPECT_EQ(model.su_count, kMaxSupports);
    EXPECT_EQ(model.feature_count, kMaxSupports);

    for (int i = 0; i < kMaxPointLoads; ++i)
        ASSERT_TRUE(add_point_load(model, 1, 0, "", "").ok());
    EXPECT_EQ(add_point_load(model, 99, 0, "", "").message(),
              "No more point loads can be added: a beam holds at most 50.");
    EXPECT_EQ(model.pt_maxmag, 1);

    // A file can bring a full feature list with room left in a table.
    model.feature_count = kMaxFeatures;
    EXPECT_EQ(add_moment(model, 1, 0, "", "").message(),
              "No more features can be added: a beam holds at most 170.");
    EXPECT_EQ(model.mo_count, 0);
}

// The edges of the rules on a 240 in. beam with a cantilever at the left end and a removed simple
// support at 120; the refused geometries are checked through the load file reader as well.
TEST(AddFeature, AcceptsTheEdgesOfTheRulesAndRefusesNullMagnitudes) {
    const double nan = std::nan("");
    const struct {
        const char* name;
        std::function<Status(BeamModel&)> add;
        const char* refusal;  // empty: accepted
    } rows[] = {
        {"load_at_left_end", [](auto& m) { return add_point_load(m, 5, 0, "in", "lb"); }, ""},
        {"load_at_right_end", [](auto& m) { return add_point_load(m, -5, 240, "in", "lb"); }, ""},
        {"moment_at_right_end", [](auto& m) { return add_moment(m, 5, 240, "in", "pi"); }, ""},
        {"full_length_triangle",
         [](auto& m) { return add_distributed_load(m, 0, 240, 0, 3, "in", "pi"); }, ""},
        {"second_cantilever_at_right_end",
         [](auto& m) { return add_support(m, 240, "cant", "", "lb"); }, ""},
        {"where_a_removed_support_stood",
         [](auto& m) { return add_support(m, 120, "simp", "in", "lb"); }, ""},
        {"zero_load", [](auto& m) { return add_point_load(m, 0, 10, "in", "lb"); }, kNonZeroLoad},
        {"zero_moment", [](auto& m) { return add_moment(m, 0, 10, "in", "pi"); }, kNonZeroMoment},
        {"zero_intensities",
         [](auto& m) { return add_distributed_load(m, 0, 10, 0, 0, "in", "pi"); }, kNonZeroLoad},
        {"load_not_a_number", [&](auto& m) { return add_point_load(m, nan, 10, "in", "lb"); },
         kInvalidLoadMagnitude},
        {"location_not_a_number", [&](auto& m) { return add_moment(m, 1, nan, "in", "pi"); },
         kInvalidMomentLocation},
        {"infinite_intensity",
         [](auto& m) { return add_distributed_load(m, 0, 10, 1, HUGE_VAL, "in", "pi"); },
         kInvalidLoadMagnitude},
    };
    for (const auto& row : rows) {
        BeamModel model;
        model.beam_length = 240;
        ASSERT_TRUE(add_support(model, 0, "cant", "", "lb").ok());
        ASSERT_TRUE(add_support(model, 120, "simp", "in", "lb").ok());
        ASSERT_TRUE(remove_feature(model, 2).ok());
        const Status added = row.add(model);
        EXPECT_EQ(added.message(), row.refusal) << row.name;
        EXPECT_EQ(model.feature_count, *row.refusal ? 2 : 3) << row.name;
    }
}

TEST(ClearBeam, EmptiesTablesButKeepsLengthUnitsAndPrecision) {
    BeamModel model;
    model.metric_units = true;
    model.beam_length = 5;
    model.sig_figs = 6;
    model.resolution = 500;
    model.moment_of_inertia = 1e-5f;
    model.pt_drawn = 1;
    ASSERT_TRUE(add_point_load(model, 2000, 2, "m", "N").ok());
    ASSERT_TRUE(add_support(model, 0, "simp", "", "").ok());

    clear_beam(model);

    EXPECT_EQ(model.pt_count + model.su_count + model.feature_count + model.pt_drawn, 0);
    EXPECT_EQ(model.pt_mag[1] + model.pt_maxmag + model.moment_of_inertia, 0);
    EXPECT_EQ(model.su_type[1] + model.feature_list[1] + model.mag_unit[1], "");
    EXPECT_EQ(model.resolution, kDefaultResolution);
    EXPECT_TRUE(model.metric_units);
    EXPECT_EQ(model.beam_length, 5);
    EXPECT_EQ(model.sig_figs, 6);

    // A file that failed half-way can leave counts beyond the tables.
    model.pt_count = model.feature_count = 32000;
    clear_beam(model);
    EXPECT_EQ(model.pt_count + model.feature_count, 0);
}

}  // namespace
}  // namespace flexley
