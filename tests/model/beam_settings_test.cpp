// Beam settings: the setters' refusals, and results going stale with every change of the beam.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "model/beam_settings.h"
#include "model/feature_edits.h"
#include "model/features.h"
#include "model/units.h"

namespace flexley {
namespace {

TEST(BeamSettings, ResultsGoStaleWithEveryChangeAndOnlyThen) {
    const struct {
        const char* name;
        std::function<Status(BeamModel&)> change;
        bool stale;
    } rows[] = {
        {"add", [](auto& m) { return add_moment(m, 5, 60, "in", "pi"); }, true},
        {"edit", [](auto& m) { return edit_point_load(m, 1, 7, 30, "in", "lb"); }, true},
        {"remove", [](auto& m) { return remove_feature(m, 2); }, true},
        {"clear", [](auto& m) { return clear_beam(m), Status::success(); }, true},
        {"convert", [](auto& m) { return convert_units(m, "eng_to_met"), Status::success(); },
         true},
        {"section", [](auto& m) { return set_section_properties(m, 100, 29e6, 4); }, true},
        {"resolution", [](auto& m) { return set_resolution(m, 5000); }, true},
        {"length_of_an_emptied_beam",
         [](auto& m) {
             clear_beam(m);
             m.results_valid = m.results_partial = true;
             return set_beam_length(m, 48);
         },
         true},
        {"refused_add",
         [](auto& m) { return add_point_load(m, 5, 130, "in", "lb"), Status::success(); }, false},
        {"same_system", [](auto& m) { return convert_units(m, "met_to_eng"), Status::success(); },
         false},
        {"same_section", [](auto& m) { return set_section_properties(m, 100, 29e6, 5); }, false},
        {"same_resolution", [](auto& m) { return set_resolution(m, 10000); }, false},
    };
    for (const auto& row : rows) {
        BeamModel model;
        model.beam_length = 120;
        ASSERT_TRUE(set_section_properties(model, 100, 29e6, 5).ok());
        ASSERT_TRUE(add_point_load(model, 5, 60, "in", "lb").ok());
        ASSERT_TRUE(add_support(model, 0, "cant", "in", "lb").ok());
        model.results_valid = model.results_partial = true;
        ASSERT_TRUE(row.change(model).ok()) << row.name;
        EXPECT_EQ(model.results_valid, !row.stale) << row.name;
        EXPECT_EQ(model.results_partial, !row.stale) << row.name;
    }
}

TEST(BeamSettings, ResolutionIsAWholeNumberFrom10To200000) {
    const struct {
        double typed;
        bool accepted;
    } rows[] = {{10, true},      {200000, true}, {9.99, false},        {200001, false},
                {5000.5, false}, {-10, false},   {std::nan(""), false}};
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
    EXPECT_EQ(model.moment_of_inertia, 0.1f);
    EXPECT_EQ(model.elastic_modulus, 0.0f);
    EXPECT_EQ(model.fibre_distance, 2.5f);
    for (double bad : {-1.0, 1e39, HUGE_VAL, std::nan("")}) {
        EXPECT_EQ(set_section_properties(model, 1, bad, 1).message(), kInvalidSectionProperties)
            << bad;
        EXPECT_EQ(model.elastic_modulus, 0.0f) << bad;
    }
}

TEST(BeamSettings, LengthIsPositiveAndChangesOnlyUnderAnEmptyBeam) {
    BeamModel model;
    EXPECT_EQ(set_beam_length(model, 0).message(), kInvalidBeamLength);
    EXPECT_EQ(set_beam_length(model, -5).message(), kInvalidBeamLength);
    ASSERT_TRUE(set_beam_length(model, 47.9).ok());
    EXPECT_TRUE(model.positions_in_inches);
    ASSERT_TRUE(set_beam_length(model, 48).ok());
    EXPECT_FALSE(model.positions_in_inches);

    ASSERT_TRUE(add_support(model, 48, "simp", "in", "lb").ok());
    EXPECT_EQ(set_beam_length(model, 24).message(), kLengthWithFeatures);
    EXPECT_EQ(model.beam_length, 48);
    ASSERT_TRUE(remove_feature(model, 1).ok());
    EXPECT_TRUE(set_beam_length(model, 24).ok());
}

}  // namespace
}  // namespace flexley
