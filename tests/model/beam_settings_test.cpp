// Beam settings: the setters' refusals, and results going stale with every change of the beam.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <tuple>

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
    EXPECT_EQ(flags_left_after(m, [&] { set_section_properties(m, 100, 29e6, 4); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { set_resolution(m, 5000); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { add_moment(m, 5, 60, "in", "pi"); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { edit_point_load(m, 1, 7, 30, "in", "lb"); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { remove_feature(m, 2); }), 0);
    EXPECT_EQ(flags_left_after(m, [&] { convert_units(m, "eng_to_met"); }), 0);
}

TEST(BeamSettings, ResolutionIsAWholeNumberFrom10To200000) {
    const struct {
        double typed;
        bool accepted;
    } rows[] = {{10, true},      {200000, true},  {9.99, false},
                {200001, false}, {5000.5, false}, {std::nan(""), false}};
    for (const auto& row : rows) {
        BeamModel model;
        const Status set = set_resolution(model, row.typed);
        EXPECT_EQ(set.message(), row.accepted ? "" : kInvalidResolution) << row.typed;
        EXPECT_EQ(model.resolution, row.accepted ? row.typed : kDefaultResolution) << row.typed;
    }
}

TEST(BeamSettings, SectionPropertiesAreZeroOrPositiveAndFitSinglePrecision) {
    BeamModel model;
    ASSERT_TRUE(set_section_properties(model, 0.1, 0, 2.5).ok());
    EXPECT_EQ(std::tie(model.moment_of_inertia, model.elastic_modulus, model.fibre_distance),
              std::make_tuple(0.1f, 0.0f, 2.5f));
    for (double bad : {-1.0, 1e39, HUGE_VAL, std::nan("")}) {
        EXPECT_EQ(set_section_properties(model, 1, bad, 1).message(), kInvalidSectionProperties)
            << bad;
        EXPECT_EQ(model.elastic_modulus, 0.0f) << bad;
    }
}

TEST(BeamSettings, LengthIsPositiveAndChangesOnlyUnderAnEmptyBeam) {
    BeamModel model;
    EXPECT_EQ(set_beam_length(model, 0).message(), kInvalidBeamLength);
    ASSERT_TRUE(set_beam_length(model, 47.9).ok());
    EXPECT_TRUE(model.positions_in_inches);
    ASSERT_TRUE(set_beam_length(model, 48).ok());
    EXPECT_FALSE(model.positions_in_inches);

    ASSERT_TRUE(add_support(model, 48, "simp", "in", "lb").ok());
    EXPECT_EQ(set_beam_length(model, 24).message(), kLengthWithFeatures);
    EXPECT_EQ(model.beam_length, 48);
    ASSERT_TRUE(remove_feature(model, 1).ok());
    model.results_valid = model.results_partial = true;
    EXPECT_TRUE(set_beam_length(model, 24).ok());
    EXPECT_FALSE(model.results_valid || model.results_partial);
}

}  // namespace
}  // namespace flexley
