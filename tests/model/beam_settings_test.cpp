// Beam settings: the setters' refusals, unit switching, and results going stale with every change
// of the beam.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "model/beam_settings.h"
#include "model/feature_edits.h"
#include "model/features.h"
#include "model/units.h"

namespace flexley {
namespace {

// How many of the two results flags are still raised after the change, both being raised before.
// A refused change leaves both raised, so none left also shows that the change went through.
int flags_left_after(BeamModel& model, const std::function<void()>& change) {
    model.results_valid = model.results_partial = true;
    change();
    return model.results_valid + model.results_partial;
}

TEST(BeamSettings, ResultsGoStaleWithEveryChangeAndOnlyThen) {
    BeamModel m;
    m.beam_length = 120;
    ASSERT_TRUE(set_section_properties(m, 100, 29e6, 5).ok());
    ASSERT_TRUE(add_point_load(m, 5, 60, "in", "lb").ok());
    ASSERT_TRUE(add_support(m, 0, "cant", "in", "lb").ok());
    EXPECT_EQ(flags_left_after(m, [&] { add_point_load(m, 5, 130, "in", "lb"); }), 2);  // refused
    EXPECT_EQ(flags_left_after(m, [&] { set_section_properties(m, 100, 29e6, 5); }), 2);
    EXPECT_EQ(flags_left_after(m, [&] { convert_units(m, "met_to_eng"); }), 2);
    EXPECT_EQ(flags_left_after(m, [&] { set_section_properties(m, 100, 29e6, 4); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { set_resolution(m, 5000); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { add_moment(m, 5, 60, "in", "pi"); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { edit_point_load(m, 1, 7, 30, "in", "lb"); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { remove_feature(m, 2); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { convert_units(m, "eng_to_met"); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { clear_beam(m); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { set_beam_length(m, 48); }), 0);
}

TEST(BeamSettings, ResolutionIsAWholeNumberFrom10To200000) {
    BeamModel m;
    for (double refused : {9.99, 200001.0, 5000.5, std::nan("")})
        EXPECT_EQ(set_resolution(m, refused).message(), kInvalidResolution) << refused;
    EXPECT_EQ(m.resolution, kDefaultResolution);
    for (double allowed : {10.0, 200000.0}) {
        ASSERT_TRUE(set_resolution(m, allowed).ok());
        EXPECT_EQ(m.resolution, allowed);
    }
}

TEST(BeamSettings, SectionPropertiesAreZeroOrPositiveAndFitSinglePrecision) {
    BeamModel m;
    ASSERT_TRUE(set_section_properties(m, 0.1, 0, 2.5).ok());
    EXPECT_EQ(std::tie(m.moment_of_inertia, m.elastic_modulus, m.fibre_distance),
              std::make_tuple(0.1f, 0.0f, 2.5f));
    for (double bad : {-1.0, 1e39, HUGE_VAL, std::nan("")}) {
        EXPECT_EQ(set_section_properties(m, 1, bad, 1).message(), kInvalidSectionProperties) << bad;
        EXPECT_EQ(m.elastic_modulus, 0.0f) << bad;
    }
}

TEST(BeamSettings, LengthIsPositiveAndChangesOnlyUnderAnEmptyBeam) {
    BeamModel m;
    EXPECT_EQ(set_beam_length(m, 0).message(), kInvalidBeamLength);
    ASSERT_TRUE(set_beam_length(m, 47.9).ok());
    EXPECT_TRUE(m.positions_in_inches);
    ASSERT_TRUE(set_beam_length(m, 48).ok());
    EXPECT_FALSE(m.positions_in_inches);
    ASSERT_TRUE(add_support(m, 48, "simp", "in", "lb").ok());
    EXPECT_EQ(set_beam_length(m, 24).message(), kLengthWithFeatures);
    EXPECT_EQ(m.beam_length, 48);
    ASSERT_TRUE(remove_feature(m, 1).ok());
    EXPECT_TRUE(set_beam_length(m, 24).ok());
}

constexpr double kMetresPerInch = 0.0254, kNewtonsPerPound = 4.448222;

// Each feature's position and magnitude unit codes, in feature order.
std::string unit_codes(const BeamModel& model) {
    std::string codes;
    for (int n = 1; n <= model.feature_count; ++n)
        codes += model.loc_unit[n] + model.mag_unit[n] + " ";
    return codes;
}

// A switch to the system in use, or an unknown one, converts nothing; every switch erases and
// redraws the Loading Screen. A round trip is not corrected: lengths come back times 0.0254 x
// 39.37..., forces likewise.
TEST(ConvertUnits, UsesTheTwoFactorsOnlyWhenTheSystemChangesAndRewritesCodesByKind) {
    BeamModel m;
    m.beam_length = 240;
    ASSERT_TRUE(set_section_properties(m, 100, 29e6, 5).ok());
    ASSERT_TRUE(add_point_load(m, 1000, 120, "ft", "lb").ok());
    ASSERT_TRUE(add_distributed_load(m, 0, 240, 10, 20, "ft", "pf").ok());
    ASSERT_TRUE(add_moment(m, 500, 60, "in", "pi").ok());
    ASSERT_TRUE(add_support(m, 0, "simp", "ft", "lb").ok());
    ASSERT_TRUE(add_support(m, 240, "simp", "in", "lb").ok());
    ASSERT_TRUE(remove_feature(m, 4).ok());
    std::vector<int> pen_modes;
    const auto redraw = [&](int mode) { pen_modes.push_back(mode); };
    const BeamModel before = m;
    for (const char* direction : {"met_to_eng", "sideways"})
        convert_units(m, direction, redraw);
    EXPECT_EQ(std::tie(m.metric_units, m.beam_length, m.pt_mag, m.di_mag_end, m.mag_unit),
              std::tie(before.metric_units, before.beam_length, before.pt_mag, before.di_mag_end,
                       before.mag_unit));

    convert_units(m, "eng_to_met", redraw);
    EXPECT_EQ(pen_modes,
              (std::vector<int>{kPenErase, kPenDraw, kPenErase, kPenDraw, kPenErase, kPenDraw}));
    EXPECT_TRUE(m.metric_units);
    EXPECT_DOUBLE_EQ(m.beam_length, 240 * kMetresPerInch);
    EXPECT_DOUBLE_EQ(m.pt_mag[1], 1000 * kNewtonsPerPound);
    EXPECT_DOUBLE_EQ(m.pt_maxmag, 1000 * kNewtonsPerPound);
    EXPECT_DOUBLE_EQ(m.mo_mag[1], 500 * kNewtonsPerPound * kMetresPerInch);
    EXPECT_DOUBLE_EQ(m.di_mag_end[1], 20 * kNewtonsPerPound / kMetresPerInch);
    EXPECT_DOUBLE_EQ(m.di_maxmag, 20 * kNewtonsPerPound / kMetresPerInch);
    EXPECT_DOUBLE_EQ(m.di_end[1], 240 * kMetresPerInch);
    EXPECT_EQ(m.su_loc[1], -1.0);  // a removed support stays removed
    EXPECT_DOUBLE_EQ(m.su_loc[2], 240 * kMetresPerInch);
    EXPECT_EQ(m.moment_of_inertia, static_cast<float>(100.0 * std::pow(kMetresPerInch, 4.0)));
    EXPECT_EQ(m.elastic_modulus,
              static_cast<float>(29e6 * kNewtonsPerPound / std::pow(kMetresPerInch, 2.0)));
    EXPECT_EQ(m.fibre_distance, static_cast<float>(5.0 * kMetresPerInch));
    EXPECT_EQ(unit_codes(m), "mN mN mN mN mN ");

    convert_units(m, "met_to_eng");
    EXPECT_FALSE(m.metric_units);
    EXPECT_EQ(unit_codes(m), "inlb inpi inpi inlb inlb ");
    EXPECT_DOUBLE_EQ(m.beam_length, 240 * kMetresPerInch * 39.3700787401575);
    EXPECT_DOUBLE_EQ(m.pt_mag[1], 1000 * kNewtonsPerPound * 0.224808923655339);
}

}  // namespace
}  // namespace flexley
