// Features: numbering, scale tracking, the geometry rules, capacities, and edits and removals that
// keep the drawing scale and change nothing when refused.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <string>
#include <tuple>

#include "model/feature_edits.h"
#include "model/feature_rules.h"
#include "model/features.h"

namespace flexley {
namespace {

TEST(FeatureEntry, ParsesKindAndIndex) {
    const FeatureRef parsed = parse_feature_entry("di50").value();
    EXPECT_EQ(std::tie(parsed.kind, parsed.index),
              std::make_tuple(FeatureKind::distributed_load, 50));
    for (const char* entry : {"pt", "xx3", "pt0", "pt-1", "pt3a", "PT3", "pt99999999999"})
        EXPECT_FALSE(parse_feature_entry(entry)) << entry;
}

// The largest and the previous largest magnitude of point loads, distributed loads and moments.
std::array<double, 6> scales(const BeamModel& m) {
    return {m.pt_maxmag, m.pt_scalemag, m.di_maxmag, m.di_scalemag, m.mo_maxmag, m.mo_scalemag};
}

// The first load of a kind becomes the largest; a larger or equal one moves the old largest to
// the scale, a smaller one changes nothing.
TEST(AddFeature, NumbersFeaturesAcrossKindsAndTracksTheLargestOfEach) {
    BeamModel m;
    m.beam_length = 120;
    ASSERT_TRUE(add_point_load(m, 100, 60, "ft", "lb").ok());
    ASSERT_TRUE(add_support(m, 0, "simp", "in", "lb").ok());
    ASSERT_TRUE(add_distributed_load(m, 0, 120, 1, 2, "in", "pi").ok());
    ASSERT_TRUE(add_moment(m, -50, 30, "ft", "pf").ok());
    ASSERT_TRUE(add_point_load(m, 200, 90, "in", "lb").ok());
    ASSERT_TRUE(add_point_load(m, -150, 10, "in", "lb").ok());
    ASSERT_TRUE(add_moment(m, 50, 10, "in", "pi").ok());
    std::string entries;
    for (int n = 1; n <= m.feature_count; ++n)
        entries += m.feature_list[n] + " ";
    EXPECT_EQ(entries + m.loc_unit[4] + m.mag_unit[4], "pt1 su1 di1 mo1 pt2 pt3 mo2 ftpf");
    EXPECT_EQ(scales(m), (std::array<double, 6>{200, 100, 2, 0, 50, 50}));
    EXPECT_EQ(lookup_feature(m, 5).value().index, 2);
    EXPECT_FALSE(lookup_feature(m, 0) || lookup_feature(m, 8));
    EXPECT_EQ(feature_number_of(m, {FeatureKind::distributed_load, 1}), 3);
    EXPECT_EQ(feature_number_of(m, {FeatureKind::moment, 3}), 0);
}

// On a 240 in. beam with a cantilever at 0, a simple support at 120 and a removed one at 60. The
// reasons given with each refusal are checked where users read them, in the load file's errors.
TEST(AddFeature, AcceptsTheEdgesOfTheRulesAndRefusesWhatBreaksThem) {
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
    EXPECT_EQ(add_point_load(m, std::nan(""), 10, "", "").message(), kInvalidLoadMagnitude);
    EXPECT_TRUE(add_point_load(m, -5, 240, "", "").ok());
    EXPECT_EQ(add_moment(m, 1, std::nan(""), "", "").message(), kInvalidMomentLocation);
    EXPECT_EQ(add_moment(m, 0, 10, "", "").message(), kNonZeroMoment);
    EXPECT_EQ(add_distributed_load(m, 240, 240, 1, 1, "", "").message(), kInvalidStartingLocation);
    EXPECT_EQ(add_distributed_load(m, 0, 250, 1, 1, "", "").message(), kInvalidEndingLocation);
    EXPECT_EQ(add_distributed_load(m, 0, 10, 0, 0, "", "").message(), kNonZeroLoad);
    EXPECT_TRUE(add_distributed_load(m, 0, 240, 0, 3, "", "").ok());
    EXPECT_EQ(m.feature_count, 7);  // the refusals added nothing
}

TEST(AddFeature, RefusesBeyondCapacityAndLeavesTablesUnchanged) {
    BeamModel m;
    m.beam_length = 100;
    for (int i = 0; i < kMaxSupports; ++i)
        ASSERT_TRUE(add_support(m, i, "simp", "", "").ok());
    EXPECT_EQ(add_support(m, 30, "simp", "", "").message(),
              "No more supports can be added: a beam holds at most 20.");
    // A file can bring a full feature list with room left in a table.
    m.feature_count = kMaxFeatures;
    EXPECT_EQ(add_moment(m, 1, 0, "", "").message(),
              "No more features can be added: a beam holds at most 170.");
    EXPECT_EQ(std::tie(m.su_count, m.mo_count), std::make_tuple(kMaxSupports, 0));
}

// Features 1-3 point loads 10, -30, 20; 4-5 distributed loads (4, -9) and (6, 1); 6-7 moments
// 7 and 3; 8 a simple support at 0, 9 a cantilever at 10, 10 a simple support at 5.
BeamModel edit_beam() {
    BeamModel m;
    m.beam_length = 10;
    for (double p : {10, -30, 20})
        EXPECT_TRUE(add_point_load(m, p, 1, "in", "lb").ok());
    EXPECT_TRUE(add_distributed_load(m, 0, 5, 4, -9, "in", "pi").ok());
    EXPECT_TRUE(add_distributed_load(m, 0, 5, 6, 1, "in", "pi").ok());
    for (double p : {7, 3})
        EXPECT_TRUE(add_moment(m, p, 1, "in", "pi").ok());
    EXPECT_TRUE(add_support(m, 0, "simp", "in", "lb").ok());
    EXPECT_TRUE(add_support(m, 10, "cant", "", "lb").ok());
    EXPECT_TRUE(add_support(m, 5, "simp", "in", "lb").ok());
    return m;
}

// The new magnitude is tracked as an addition would be; when the edited load held the largest,
// the kind is rescanned afterwards and its scale value cleared.
TEST(EditFeature, RewritesTheEntryAndKeepsTheDrawingScaleOfEachKind) {
    BeamModel m = edit_beam();
    ASSERT_TRUE(edit_point_load(m, 1, 40, 1, "in", "lb").ok());  // grows past the largest
    EXPECT_EQ(scales(m), (std::array<double, 6>{40, 30, 9, 0, 7, 0}));
    ASSERT_TRUE(edit_point_load(m, 1, 5, 1, "in", "lb").ok());  // the largest shrinks
    ASSERT_TRUE(edit_distributed_load(m, 4, 0, 5, 1, -2, "in", "pi").ok());
    ASSERT_TRUE(edit_moment(m, 7, -8, 1, "in", "pi").ok());
    EXPECT_EQ(scales(m), (std::array<double, 6>{30, 0, 6, 0, 8, 7}));
    // The entry and its unit codes are rewritten; a support may move onto its own place.
    ASSERT_TRUE(edit_distributed_load(m, 5, 2, 10, -1, 0, "ft", "pf").ok());
    EXPECT_EQ(std::tie(m.di_start[2], m.di_end[2], m.di_mag_start[2], m.di_mag_end[2]),
              std::make_tuple(2.0, 10.0, -1.0, 0.0));
    ASSERT_TRUE(edit_support(m, 10, 5, "ft").ok());
    ASSERT_TRUE(edit_support(m, 10, 7.5, "ft").ok());
    EXPECT_EQ(std::tie(m.su_loc[3], m.su_type[3]), std::make_tuple(7.5, "simp"));
    EXPECT_EQ(m.loc_unit[5] + m.mag_unit[5] + m.loc_unit[10] + m.mag_unit[10], "ftpfftlb");
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
    for (int number : {2, 4, 6, 7, 9})
        ASSERT_TRUE(remove_feature(m, number).ok());
    EXPECT_EQ(scales(m), (std::array<double, 6>{20, 0, 6, 0, 0, 0}));
    EXPECT_EQ(std::tie(m.di_mag_start[1], m.di_mag_end[1], m.su_loc[2], m.su_type[2]),
              std::make_tuple(0.0, 0.0, -1.0, "cant"));
    EXPECT_TRUE(is_removed(m, {FeatureKind::support, 2}));
    EXPECT_EQ(remove_feature(m, 11).message(), "Invalid feature number.");
    EXPECT_EQ(std::tie(m.pt_count, m.feature_count), std::make_tuple(3, 10));
    ASSERT_TRUE(add_moment(m, 1, 1, "in", "pi").ok());
    EXPECT_EQ(m.feature_list[11], "mo3");  // feature numbers are never reused
}

}  // namespace
}  // namespace flexley
