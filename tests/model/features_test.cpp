// Feature list upkeep: numbering, scale tracking, the geometry rules, capacities and clearing.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "model/feature_rules.h"
#include "model/features.h"

namespace flexley {
namespace {

TEST(FeatureEntry, ParsesKindAndIndex) {
    const auto parsed = parse_feature_entry("di50");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->kind, FeatureKind::distributed_load);
    EXPECT_EQ(parsed->index, 50);
    for (const char* entry : {"pt", "xx3", "pt0", "pt-1", "pt3a", "PT3", "pt99999999999"})
        EXPECT_FALSE(parse_feature_entry(entry)) << entry;
}

TEST(AddFeature, NumbersFeaturesAcrossKindsInOrderOfAdding) {
    BeamModel model;
    model.beam_length = 120;
    ASSERT_TRUE(add_point_load(model, 100, 60, "ft", "lb").ok());
    ASSERT_TRUE(add_support(model, 0, "simp", "in", "lb").ok());
    ASSERT_TRUE(add_distributed_load(model, 0, 120, 1, 2, "in", "pi").ok());
    ASSERT_TRUE(add_moment(model, -50, 30, "ft", "pf").ok());
    ASSERT_TRUE(add_point_load(model, 200, 90, "in", "lb").ok());

    std::string entries;
    for (int n = 1; n <= model.feature_count; ++n)
        entries += model.feature_list[n] + " ";
    EXPECT_EQ(entries, "pt1 su1 di1 mo1 pt2 ");
    EXPECT_EQ(model.loc_unit[4] + model.mag_unit[4], "ftpf");
    EXPECT_EQ(lookup_feature(model, 5).value().index, 2);
    EXPECT_FALSE(lookup_feature(model, 0) || lookup_feature(model, 6));
    EXPECT_EQ(feature_number_of(model, {FeatureKind::distributed_load, 1}), 3);
    EXPECT_EQ(feature_number_of(model, {FeatureKind::moment, 2}), 0);
}

TEST(AddFeature, TracksTheLargestMagnitudeOfEachKind) {
    BeamModel model;
    model.beam_length = 10;
    // The first load always becomes the largest; an equal one moves the old largest to the scale.
    const struct {
        double magnitude, maxmag, scalemag;
    } steps[] = {{-5, 5, 0}, {3, 5, 0}, {-5, 5, 5}, {8, 8, 5}, {-2, 8, 5}};
    for (const auto& step : steps) {
        ASSERT_TRUE(add_point_load(model, step.magnitude, 1, "in", "lb").ok());
        EXPECT_EQ(model.pt_maxmag, step.maxmag);
        EXPECT_EQ(model.pt_scalemag, step.scalemag);
    }
    ASSERT_TRUE(add_distributed_load(model, 0, 1, 2, -7, "in", "pi").ok());
    ASSERT_TRUE(add_distributed_load(model, 0, 1, 6, 0, "in", "pi").ok());
    EXPECT_EQ(model.di_maxmag, 7);
}

// On a 240 in. beam with a cantilever at 0, a simple support at 120 and a removed one at 60. The
// reasons given with each refusal are checked where users read them, in the load file's errors.
TEST(AddFeature, AcceptsTheEdgesOfTheRulesAndRefusesWhatBreaksThem) {
    const double nan = std::nan("");
    BeamModel m;
    m.beam_length = 240;
    ASSERT_TRUE(add_support(m, 0, "cant", "", "lb").ok());
    ASSERT_TRUE(add_support(m, 120, "simp", "in", "lb").ok());
    ASSERT_TRUE(add_support(m, 60, "simp", "in", "lb").ok());
    ASSERT_TRUE(remove_feature(m, 3).ok());
    EXPECT_EQ(add_support(m, 30, "cant", "", "").message(), kCantileverAtEndsOnly);
    EXPECT_EQ(add_support(m, 120, "simp", "", "").message(), kSupportExists);
    EXPECT_EQ(add_support(m, 30, "fixed", "", "").message(), kUnknownSupportKind);
    EXPECT_EQ(add_support(m, 240.01, "simp", "", "").message(), kInvalidSupportLocation);
    EXPECT_TRUE(add_support(m, 60, "simp", "", "").ok());  // where the removed one stood
    EXPECT_TRUE(add_support(m, 240, "cant", "", "").ok());
    EXPECT_EQ(add_point_load(m, 100, -0.01, "", "").message(), kInvalidLoadLocation);
    EXPECT_EQ(add_point_load(m, nan, 10, "", "").message(), kInvalidLoadMagnitude);
    EXPECT_TRUE(add_point_load(m, -5, 240, "", "").ok());
    EXPECT_EQ(add_moment(m, 1, nan, "", "").message(), kInvalidMomentLocation);
    EXPECT_EQ(add_moment(m, 0, 10, "", "").message(), kNonZeroMoment);
    EXPECT_EQ(add_distributed_load(m, 240, 240, 1, 1, "", "").message(), kInvalidStartingLocation);
    EXPECT_EQ(add_distributed_load(m, 0, 250, 1, 1, "", "").message(), kInvalidEndingLocation);
    EXPECT_EQ(add_distributed_load(m, 0, 10, 0, 0, "", "").message(), kNonZeroLoad);
    EXPECT_TRUE(add_distributed_load(m, 0, 240, 0, 3, "", "").ok());
    EXPECT_EQ(m.feature_count, 7);  // the refusals added nothing
}

TEST(AddFeature, RefusesBeyondCapacityAndLeavesTablesUnchanged) {
    BeamModel model;
    model.beam_length = 100;
    for (int i = 0; i < kMaxSupports; ++i)
        ASSERT_TRUE(add_support(model, i, "simp", "", "").ok());
    EXPECT_EQ(add_support(model, 30, "simp", "", "").message(),
              "No more supports can be added: a beam holds at most 20.");
    for (int i = 0; i < kMaxPointLoads; ++i)
        ASSERT_TRUE(add_point_load(model, 1, 0, "", "").ok());
    EXPECT_EQ(add_point_load(model, 99, 0, "", "").message(),
              "No more point loads can be added: a beam holds at most 50.");
    EXPECT_EQ(model.pt_maxmag, 1);
    // A file can bring a full feature list with room left in a table.
    model.feature_count = kMaxFeatures;
    EXPECT_EQ(add_moment(model, 1, 0, "", "").message(),
              "No more features can be added: a beam holds at most 170.");
    EXPECT_EQ(model.su_count + model.pt_count + model.mo_count, kMaxSupports + kMaxPointLoads);
}

TEST(ClearBeam, EmptiesTablesButKeepsLengthUnitsAndPrecision) {
    BeamModel model;
    model.metric_units = true;
    model.beam_length = 5;
    model.sig_figs = 6;
    model.moment_of_inertia = 1e-5f;
    model.resolution = 500;
    model.pt_drawn = 1;
    model.results_valid = model.results_partial = true;
    ASSERT_TRUE(add_point_load(model, 2000, 2, "m", "N").ok());
    ASSERT_TRUE(add_support(model, 0, "simp", "", "").ok());

    clear_beam(model);

    EXPECT_EQ(model.pt_count + model.su_count + model.feature_count + model.pt_drawn, 0);
    EXPECT_EQ(model.pt_mag[1] + model.pt_maxmag + model.moment_of_inertia, 0);
    EXPECT_EQ(model.su_type[1] + model.feature_list[1] + model.mag_unit[1], "");
    EXPECT_EQ(model.resolution, kDefaultResolution);
    EXPECT_FALSE(model.results_valid || model.results_partial);
    EXPECT_TRUE(model.metric_units && model.beam_length == 5 && model.sig_figs == 6);
    // A file that failed half-way can leave counts beyond the tables.
    model.pt_count = model.feature_count = 32000;
    clear_beam(model);
    EXPECT_EQ(model.pt_count + model.feature_count, 0);
}

}  // namespace
}  // namespace flexley
