// Unit switching: factors, order of redraws, removed supports, unit codes and round trips.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "model/features.h"
#include "model/units.h"

namespace flexley {
namespace {

constexpr double kMetresPerInch = 0.0254, kNewtonsPerPound = 4.448222;

BeamModel english_beam() {
    BeamModel model;
    model.beam_length = 240;
    model.moment_of_inertia = 100.0f;
    model.elastic_modulus = 29e6f;
    model.fibre_distance = 5.0f;
    EXPECT_TRUE(add_point_load(model, 1000, 120, "ft", "lb").ok());
    EXPECT_TRUE(add_distributed_load(model, 0, 240, 10, 20, "ft", "pf").ok());
    EXPECT_TRUE(add_moment(model, 500, 60, "in", "pi").ok());
    EXPECT_TRUE(add_support(model, 0, "simp", "ft", "lb").ok());
    EXPECT_TRUE(add_support(model, 240, "simp", "in", "lb").ok());
    EXPECT_TRUE(remove_feature(model, 4).ok());
    return model;
}

// Each feature's position and magnitude unit codes, in feature order.
std::string unit_codes(const BeamModel& model) {
    std::string codes;
    for (int n = 1; n <= model.feature_count; ++n)
        codes += model.loc_unit[n] + model.mag_unit[n] + " ";
    return codes;
}

TEST(ConvertUnits, EnglishToMetricUsesTheTwoFactorsAndBackRewritesCodesByKind) {
    BeamModel model = english_beam();
    std::vector<int> pen_modes;
    convert_units(model, "eng_to_met", [&](int mode) { pen_modes.push_back(mode); });

    EXPECT_EQ(pen_modes, (std::vector<int>{kPenErase, kPenDraw}));
    EXPECT_TRUE(model.metric_units);
    EXPECT_DOUBLE_EQ(model.beam_length, 240 * kMetresPerInch);
    EXPECT_DOUBLE_EQ(model.pt_mag[1], 1000 * kNewtonsPerPound);
    EXPECT_DOUBLE_EQ(model.pt_maxmag, 1000 * kNewtonsPerPound);
    EXPECT_DOUBLE_EQ(model.mo_mag[1], 500 * kNewtonsPerPound * kMetresPerInch);
    EXPECT_DOUBLE_EQ(model.di_mag_end[1], 20 * kNewtonsPerPound / kMetresPerInch);
    EXPECT_DOUBLE_EQ(model.di_maxmag, 20 * kNewtonsPerPound / kMetresPerInch);
    EXPECT_DOUBLE_EQ(model.di_end[1], 240 * kMetresPerInch);
    EXPECT_EQ(model.su_loc[1], -1.0);  // removed support stays removed
    EXPECT_DOUBLE_EQ(model.su_loc[2], 240 * kMetresPerInch);
    EXPECT_EQ(model.moment_of_inertia, static_cast<float>(100.0 * std::pow(kMetresPerInch, 4.0)));
    EXPECT_EQ(model.elastic_modulus,
              static_cast<float>(29e6 * kNewtonsPerPound / std::pow(kMetresPerInch, 2.0)));
    EXPECT_EQ(model.fibre_distance, static_cast<float>(5.0 * kMetresPerInch));
    EXPECT_EQ(unit_codes(model), "mN mN mN mN mN ");

    convert_units(model, "met_to_eng");
    EXPECT_FALSE(model.metric_units);
    EXPECT_EQ(unit_codes(model), "inlb inpi inpi inlb inlb ");
    // A round trip is not corrected: lengths come back times 0.0254 x 39.37..., forces likewise.
    EXPECT_DOUBLE_EQ(model.beam_length, 240 * kMetresPerInch * 39.3700787401575);
    EXPECT_DOUBLE_EQ(model.pt_mag[1], 1000 * kNewtonsPerPound * 0.224808923655339);
    EXPECT_EQ(model.su_loc[1], -1.0);
}

// A second switch in the same direction, or an unknown one, converts nothing but still erases
// and redraws the Loading Screen.
TEST(ConvertUnits, ChangesNothingWhenAlreadyInThatSystem) {
    for (const char* direction : {"met_to_eng", "sideways"}) {
        BeamModel model = english_beam();
        const BeamModel before = model;
        std::vector<int> pen_modes;
        convert_units(model, direction, [&](int mode) { pen_modes.push_back(mode); });
        EXPECT_EQ(pen_modes, (std::vector<int>{kPenErase, kPenDraw})) << direction;
        EXPECT_EQ(model.beam_length, before.beam_length) << direction;
        EXPECT_EQ(model.pt_mag, before.pt_mag) << direction;
        EXPECT_EQ(model.mag_unit, before.mag_unit) << direction;
    }
}

}  // namespace
}  // namespace flexley
