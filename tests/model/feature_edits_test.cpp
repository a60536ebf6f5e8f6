// Editing and removing features: the drawing scale afterwards, refusals that change nothing,
// moving supports.
#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#include "model/feature_edits.h"
#include "model/feature_rules.h"
#include "model/features.h"

namespace flexley {
namespace {

// Features 1-3 point loads 10, -30, 20; 4-5 distributed loads (4, -9) and (6, 1); 6-7 moments
// 7 and 3; 8 a simple support at 0, 9 a cantilever at 10, 10 a simple support at 5.
BeamModel edit_beam() {
    BeamModel m;
    m.beam_length = 10;
    for (double p : {10, -30, 20})
        EXPECT_TRUE(add_point_load(m, p, 1, "in", "lb").ok());
    EXPECT_TRUE(add_distributed_load(m, 0, 5, 4, -9, "in", "pi").ok());
    EXPECT_TRUE(add_distributed_load(m, 0, 5, 6, 1, "in", "pi").ok());
    EXPECT_TRUE(add_moment(m, 7, 1, "in", "pi").ok());
    EXPECT_TRUE(add_moment(m, 3, 1, "in", "pi").ok());
    EXPECT_TRUE(add_support(m, 0, "simp", "in", "lb").ok());
    EXPECT_TRUE(add_support(m, 10, "cant", "", "lb").ok());
    EXPECT_TRUE(add_support(m, 5, "simp", "in", "lb").ok());
    return m;
}

// The new magnitude is tracked as an addition would be; when the edited load held the largest,
// the kind is rescanned afterwards and its scale value cleared.
TEST(EditFeature, KeepsTheDrawingScaleOfTheKind) {
    using Scale = double BeamModel::*;
    const struct {
        const char* name;
        std::function<Status(BeamModel&)> edit;
        Scale largest, previous;
        double want_largest, want_previous;
    } rows[] = {
        {"smaller_load_grows_past_largest",
         [](auto& m) { return edit_point_load(m, 1, 40, 1, "in", "lb"); }, &BeamModel::pt_maxmag,
         &BeamModel::pt_scalemag, 40, 30},
        {"load_reaches_largest", [](auto& m) { return edit_point_load(m, 1, -30, 1, "in", "lb"); },
         &BeamModel::pt_maxmag, &BeamModel::pt_scalemag, 30, 30},
        {"largest_load_shrinks", [](auto& m) { return edit_point_load(m, 2, 5, 1, "in", "lb"); },
         &BeamModel::pt_maxmag, &BeamModel::pt_scalemag, 20, 0},
        {"largest_load_grows", [](auto& m) { return edit_point_load(m, 2, -50, 1, "in", "lb"); },
         &BeamModel::pt_maxmag, &BeamModel::pt_scalemag, 50, 0},
        {"largest_distributed_shrinks",
         [](auto& m) { return edit_distributed_load(m, 4, 0, 5, 1, -2, "in", "pi"); },
         &BeamModel::di_maxmag, &BeamModel::di_scalemag, 6, 0},
        {"smaller_moment_grows", [](auto& m) { return edit_moment(m, 7, -8, 1, "in", "pi"); },
         &BeamModel::mo_maxmag, &BeamModel::mo_scalemag, 8, 7},
    };
    for (const auto& row : rows) {
        BeamModel model = edit_beam();
        ASSERT_TRUE(row.edit(model).ok()) << row.name;
        EXPECT_EQ(model.*row.largest, row.want_largest) << row.name;
        EXPECT_EQ(model.*row.previous, row.want_previous) << row.name;
    }
}

TEST(EditFeature, RewritesTheEntryAndItsUnitCodes) {
    BeamModel model = edit_beam();
    ASSERT_TRUE(edit_distributed_load(model, 5, 2, 10, -1, 0, "ft", "pf").ok());
    EXPECT_EQ(
        std::tie(model.di_start[2], model.di_end[2], model.di_mag_start[2], model.di_mag_end[2]),
        std::make_tuple(2.0, 10.0, -1.0, 0.0));
    EXPECT_EQ(model.loc_unit[5] + model.mag_unit[5], "ftpf");

    ASSERT_TRUE(edit_support(model, 10, 5, "ft").ok());  // onto its own place
    ASSERT_TRUE(edit_support(model, 10, 7.5, "ft").ok());
    EXPECT_EQ(model.su_loc[3], 7.5);
    EXPECT_EQ(model.su_type[3], "simp");
    EXPECT_EQ(model.loc_unit[10] + model.mag_unit[10], "ftlb");
}

TEST(EditFeature, RefusesWhatIsNotALiveFeatureOfItsKindOrBreaksTheRules) {
    const struct {
        const char* name;
        std::function<Status(BeamModel&)> edit;
        const char* message;
    } rows[] = {
        {"number_zero", [](auto& m) { return edit_point_load(m, 0, 1, 1, "", ""); },
         kInvalidFeatureNumber},
        {"beyond_the_list", [](auto& m) { return edit_support(m, 11, 1, ""); },
         kInvalidFeatureNumber},
        {"other_kind", [](auto& m) { return edit_moment(m, 1, 1, 1, "", ""); },
         kInvalidFeatureNumber},
        {"removed_load", [](auto& m) { return edit_point_load(m, 3, 1, 1, "", ""); },
         kInvalidFeatureNumber},
        {"cantilever", [](auto& m) { return edit_support(m, 9, 10, ""); }, kCantileverCannotMove},
        {"onto_another_support", [](auto& m) { return edit_support(m, 10, 0, ""); },
         kSupportExists},
        {"support_off_the_beam", [](auto& m) { return edit_support(m, 10, 10.5, ""); },
         kInvalidSupportLocation},
        {"load_off_the_beam", [](auto& m) { return edit_point_load(m, 1, 1, -1, "", ""); },
         kInvalidLoadLocation},
        {"end_before_start",
         [](auto& m) { return edit_distributed_load(m, 4, 6, 2, 1, 1, "", ""); },
         kInvalidEndingLocation},
        {"zero_moment", [](auto& m) { return edit_moment(m, 6, 0, 1, "", ""); }, kNonZeroMoment},
    };
    for (const auto& row : rows) {
        BeamModel model = edit_beam();
        ASSERT_TRUE(remove_feature(model, 3).ok());
        const BeamModel before = model;
        EXPECT_EQ(row.edit(model).message(), row.message) << row.name;
        EXPECT_EQ(std::tie(model.pt_mag, model.pt_loc, model.di_end, model.mo_mag, model.su_loc,
                           model.loc_unit, model.pt_maxmag, model.pt_scalemag),
                  std::tie(before.pt_mag, before.pt_loc, before.di_end, before.mo_mag,
                           before.su_loc, before.loc_unit, before.pt_maxmag, before.pt_scalemag))
            << row.name;
    }
}

TEST(RemoveFeature, NeutralisesInPlaceAndRescansTheLargest) {
    BeamModel model = edit_beam();
    ASSERT_TRUE(remove_feature(model, 1).ok());  // not the largest: the scale stays
    EXPECT_EQ(model.pt_mag[1], 0);
    EXPECT_EQ(model.pt_loc[1], 1);
    EXPECT_EQ(model.pt_maxmag, 30);
    EXPECT_EQ(model.pt_scalemag, 10);

    ASSERT_TRUE(remove_feature(model, 2).ok());  // the largest: rescan, scale value reset
    EXPECT_EQ(model.pt_maxmag, 20);
    EXPECT_EQ(model.pt_scalemag, 0);

    ASSERT_TRUE(remove_feature(model, 4).ok());
    EXPECT_EQ(model.di_mag_start[1], 0);
    EXPECT_EQ(model.di_mag_end[1], 0);
    EXPECT_EQ(model.di_maxmag, 6);

    ASSERT_TRUE(remove_feature(model, 6).ok());
    EXPECT_EQ(model.mo_maxmag, 3);
    ASSERT_TRUE(remove_feature(model, 7).ok());  // the last moment
    EXPECT_EQ(model.mo_maxmag, 0);

    ASSERT_TRUE(remove_feature(model, 9).ok());
    EXPECT_EQ(model.su_loc[2], -1);
    EXPECT_EQ(model.su_type[2], "cant");
    EXPECT_TRUE(is_removed(model, {FeatureKind::support, 2}));

    EXPECT_EQ(remove_feature(model, 11).message(), "Invalid feature number.");
    EXPECT_EQ(model.pt_count, 3);
    EXPECT_EQ(model.feature_count, 10);
    ASSERT_TRUE(add_moment(model, 1, 1, "in", "pi").ok());
    EXPECT_EQ(model.feature_list[11], "mo3");  // feature numbers are never reused
}

}  // namespace
}  // namespace flexley
