// The texts of the maximum values read-out.
#include "report/maximum_values.h"

#include <gtest/gtest.h>

namespace flexley {
namespace {

BeamModel english_beam_of_30_feet() {
    BeamModel model;
    model.beam_length = 360.0;
    model.sig_figs = 4;
    model.elastic_modulus = 1000.0f;
    model.moment_of_inertia = 2.0f;
    return model;
}

TEST(MaximumValues, EnglishPositionsInFeetUnlessShownInInches) {
    auto model = english_beam_of_30_feet();
    model.max_moment_at = 180.0;
    EXPECT_EQ(maximum_value_texts(model).moment_at, "15 ft.");
    model.positions_in_inches = true;
    EXPECT_EQ(maximum_value_texts(model).moment_at, "180 in.");
}

TEST(MaximumValues, SlopeUsesTheShorterPi) {
    auto model = english_beam_of_30_feet();
    model.sig_figs = 8;
    model.max_slope = 2000.0;  // one radian times E x I
    EXPECT_EQ(maximum_value_texts(model).slope, "57.295779 degrees");
}

}  // namespace
}  // namespace flexley
