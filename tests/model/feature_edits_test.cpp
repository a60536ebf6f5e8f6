// Editing and removing features: the drawing scale afterwards, refusals that change nothing,
// moving supports.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
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

// The largest and the previous largest magnitude of point loads, distributed loads and moments.
std::array<double, 6> scales(const BeamModel& m) {
    return {m.pt_maxmag, m.pt_scalemag, m.di_maxmag, m.di_scalemag, m.mo_maxmag, m.mo_scalemag};
}

// The new magnitude is tracked as an addition would be; when the edited load held the largest,
// the kind is rescanned afterwards and its scale value cleared.
TEST(EditFeature, KeepsTheDrawingScaleOfEachKind) {
    BeamModel m = edit_beam();
    ASSERT_TRUE(edit_point_load(m, 1, 40, 1, "in", "lb").ok());  // grows past the largest
    EXPECT_EQ(scales(m), (std::array<double, 6>{40, 30, 9, 0, 7, 0}));
    ASSERT_TRUE(edit_point_load(m, 1, 5, 1, "in", "lb").ok());  // the largest shrinks
    EXPECT_EQ(scales(m), (std::array<double, 6>{30, 0, 9, 0, 7, 0}));
    ASSERT_TRUE(edit_distributed_load(m, 4, 0, 5, 1, -2, "in", "pi").ok());
    EXPECT_EQ(scales(m), (std::array<double, 6>{30, 0, 6, 0, 7, 0}));
    ASSERT_TRUE(edit_moment(m, 7, -8, 1, "in", "pi").ok());
    EXPECT_EQ(scales(m), (std::array<double, 6>{30, 0, 6, 0, 8, 7}));
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

// The message of a refused edit, which must leave every table as it was.
std::string refusal(BeamModel& m, const std::function<Status()>& edit) {
    const BeamModel before = m;
    const std::string message = edit().message();
    EXPECT_EQ(std::tie(m.pt_mag, m.pt_loc, m.di_end, m.mo_mag, m.su_loc, m.loc_unit, m.pt_maxmag,
                       m.pt_scalemag),
              std::tie(before.pt_mag, before.pt_loc, before.di_end, before.mo_mag, before.su_loc,
                       before.loc_unit, before.pt_maxmag, before.pt_scalemag))
        << message;
    return message;
}

TEST(EditFeature, RefusesWhatIsNotALiveFeatureOfItsKindOrBreaksTheRules) {
    BeamModel m = edit_beam();
    ASSERT_TRUE(remove_feature(m, 3).ok());
    EXPECT_EQ(refusal(m, [&] { return edit_support(m, 11, 1, ""); }), kInvalidFeatureNumber);
    EXPECT_EQ(refusal(m, [&] { return edit_moment(m, 1, 1, 1, "", ""); }), kInvalidFeatureNumber);
    EXPECT_EQ(refusal(m, [&] { return edit_point_load(m, 3, 1, 1, "", ""); }),  // removed
              kInvalidFeatureNumber);
    EXPECT_EQ(refusal(m, [&] { return edit_support(m, 9, 10, ""); }), kCantileverCannotMove);
    EXPECT_EQ(refusal(m, [&] { return edit_support(m, 10, 0, ""); }), kSupportExists);
    EXPECT_EQ(refusal(m, [&] { return edit_point_load(m, 1, 1, -1, "", ""); }),
              kInvalidLoadLocation);
    EXPECT_EQ(refusal(m, [&] { return edit_distributed_load(m, 4, 6, 2, 1, 1, "", ""); }),
              kInvalidEndingLocation);
    EXPECT_EQ(refusal(m, [&] { return edit_moment(m, 6, 0, 1, "", ""); }), kNonZeroMoment);
}

TEST(RemoveFeature, NeutralisesInPlaceAndRescansTheLargest) {
    BeamModel m = edit_beam();
    // Not the largest: the scale stays; then the largest: rescan, scale value reset.
    ASSERT_TRUE(remove_feature(m, 1).ok());
    EXPECT_EQ(std::tie(m.pt_mag[1], m.pt_loc[1], m.pt_maxmag, m.pt_scalemag),
              std::make_tuple(0.0, 1.0, 30.0, 10.0));
    ASSERT_TRUE(remove_feature(m, 2).ok());
    EXPECT_EQ(std::tie(m.pt_maxmag, m.pt_scalemag), std::make_tuple(20.0, 0.0));
    ASSERT_TRUE(remove_feature(m, 4).ok());
    EXPECT_EQ(std::tie(m.di_mag_start[1], m.di_mag_end[1], m.di_maxmag),
              std::make_tuple(0.0, 0.0, 6.0));
    ASSERT_TRUE(remove_feature(m, 6).ok());
    ASSERT_TRUE(remove_feature(m, 7).ok());  // the last moment
    EXPECT_EQ(m.mo_maxmag, 0);
    ASSERT_TRUE(remove_feature(m, 9).ok());
    EXPECT_EQ(m.su_loc[2], -1);
    EXPECT_EQ(m.su_type[2], "cant");
    EXPECT_TRUE(is_removed(m, {FeatureKind::support, 2}));

    EXPECT_EQ(remove_feature(m, 11).message(), "Invalid feature number.");
    EXPECT_EQ(std::tie(m.pt_count, m.feature_count), std::make_tuple(3, 10));
    ASSERT_TRUE(add_moment(m, 1, 1, "in", "pi").ok());
    EXPECT_EQ(m.feature_list[11], "mo3");  // feature numbers are never reused
}

}  // namespace
}  // namespace flexley
