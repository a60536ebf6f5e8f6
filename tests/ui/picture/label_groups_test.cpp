// Label groups: reaction texts on the supports, relabelling after unit and precision changes.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "analysis/reaction_text.h"
#include "analysis/run.h"
#include "model/features.h"
#include "model/units.h"
#include "ui/picture/loading_screen.h"

namespace flexley {
namespace {

using namespace testing_screen;

struct Feature {
    const char* kind;
    double position;
    double magnitude = 0;
};

void add(BeamModel& model, const Feature& feature) {
    const std::string kind = feature.kind;
    const Status status =
        kind == "pt" ? add_point_load(model, feature.magnitude, feature.position, "in", "lb")
                     : add_support(model, feature.position, kind, "in", "lb");
    ASSERT_TRUE(status.ok()) << status.message();
}

// With no, one and two fixed supports: a force alone, or a force and a moment.
TEST(ReactionTexts, StandOnTheFourthLabelOfEachSupportUntilResultsGoStale) {
    const struct {
        std::vector<Feature> features;
        std::vector<std::pair<int, std::string>> reactions;  // feature number, its label
    } rows[] = {
        {{{"simp", 0}, {"pt", 120, 1000}, {"simp", 240}}, {{1, "500 lb."}, {3, "500 lb."}}},
        {{{"cant", 0}, {"pt", 120, 1000}}, {{1, "1000 lb., 120000 lb.-in."}}},
        {{{"cant", 0}, {"pt", 120, 1000}, {"cant", 240}},
         {{1, "500 lb., 30000 lb.-in."}, {3, "500 lb., -30000 lb.-in."}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.reactions.front().second);
        Screen screen;
        screen.model.moment_of_inertia = 100;
        screen.model.elastic_modulus = 29e6f;
        screen.model.fibre_distance = 5;
        for (const auto& feature : row.features) {
            add(screen.model, feature);
            screen.redraw();
        }
        ASSERT_TRUE(run_calculation(screen.model, [] { return false; }).ok());
        screen.labels.show_reaction_texts(show_reactions(screen.model));

        for (const auto& [number, text] : row.reactions) {
            const Label& label = screen.label(number, kPositionSlot);
            EXPECT_EQ(label.caption, text) << number;
            EXPECT_EQ(label.colour, drawing::kRedBrown);
            EXPECT_TRUE(label.bold);
            // Widened about the support so the text is never clipped.
            EXPECT_GE(label.width, static_cast<int>(text.size()) * 100);
            EXPECT_EQ(label.left + label.width / 2, screen.label(number, kFeatureSlot).left + 500);
        }
        // The load's own position label is no reaction label.
        EXPECT_EQ(screen.label(2, kPositionSlot).caption, "x=120 in.");

        screen.labels.blank_reaction_texts();
        for (const auto& reaction : row.reactions) {
            const Label& label = screen.label(reaction.first, kPositionSlot);
            EXPECT_EQ(label.caption, "");
            EXPECT_EQ(label.width, 1300);
        }
    }
}

TEST(Relabel, ValueAndPositionLabelsFollowUnitSwitchesAndSignificantFigures) {
    Screen screen;
    // Each addition is drawn before the next, as the feature dialogs do.
    auto added = [&](const Status& status) {
        ASSERT_TRUE(status.ok());
        screen.redraw();
    };
    added(add_point_load(screen.model, 1000, 60, "ft", "lb"));
    added(add_distributed_load(screen.model, 0, 120, 1, 2, "in", "pf"));
    added(add_moment(screen.model, -1200, 180, "in", "pf"));
    added(add_support(screen.model, 240, "simp", "ft", "lb"));
    auto captions = [&](int number) {
        return std::pair{screen.label(number, kValueSlot).caption,
                         screen.label(number, kPositionSlot).caption};
    };
    using Captions = std::pair<std::string, std::string>;
    EXPECT_EQ(captions(1), (Captions{"1000 lb.", "x=5 ft."}));
    // Intensities are held per inch and shown per foot when entered so.
    EXPECT_EQ(captions(2), (Captions{"start=12 lb./ft., 0 in.", "end=24 lb./ft., 120 in."}));
    EXPECT_EQ(captions(3), (Captions{"100 lb.-ft.", "x=180 in."}));
    EXPECT_EQ(captions(4), (Captions{"x=20 ft.", ""}));

    convert_units(screen.model, "eng_to_met");
    screen.labels.relabel_features(screen.model);
    EXPECT_EQ(captions(1), (Captions{"4450 N", "x=1.52 m"}));
    EXPECT_EQ(captions(2), (Captions{"start=175 N/m, 0 m", "end=350 N/m, 3.05 m"}));
    EXPECT_EQ(captions(3), (Captions{"136 N-m", "x=4.57 m"}));
    EXPECT_EQ(captions(4), (Captions{"x=6.1 m", ""}));

    screen.model.sig_figs = 5;
    screen.labels.relabel_features(screen.model);
    EXPECT_EQ(captions(1), (Captions{"4448.2 N", "x=1.524 m"}));
    EXPECT_EQ(screen.label(1, kFeatureSlot).caption, "Feature 1");
    EXPECT_EQ(screen.label(4, kTitleSlot).caption, "Simple Support");
}

TEST(Relabel, KilogramLoadsReturnToBaseUnitsAfterARoundTrip) {
    Screen screen(5);
    screen.model.metric_units = true;
    ASSERT_TRUE(add_point_load(screen.model, 98.0665, 2.5, "m", "kg").ok());
    screen.redraw();
    EXPECT_EQ(screen.label(1, kValueSlot).caption, "10 kg");
    convert_units(screen.model, "met_to_eng");
    screen.labels.relabel_features(screen.model);
    EXPECT_EQ(screen.label(1, kValueSlot).caption, "22 lb.");
    convert_units(screen.model, "eng_to_met");
    screen.labels.relabel_features(screen.model);
    EXPECT_EQ(screen.label(1, kValueSlot).caption, "98.1 N");
}

TEST(Relabel, AnEditedFeatureMovesToItsNewPlaceKeepingItsHeight) {
    Screen screen;
    ASSERT_TRUE(add_distributed_load(screen.model, 0, 120, 1, 1, "in", "pi").ok());
    screen.redraw();
    const auto tops = screen.tops(1);
    screen.model.di_end[1] = 240;
    screen.labels.relabel_feature(screen.model, screen.geometry, 1);
    EXPECT_EQ(screen.tops(1), tops);
    EXPECT_EQ(screen.label(1, kFeatureSlot).left, screen_x(120) - 500);
    EXPECT_EQ(screen.label(1, kPositionSlot).left, screen_x(120) - 2000);
    EXPECT_EQ(screen.label(1, kPositionSlot).caption, "end=1 lb./in., 240 in.");
}

}  // namespace
}  // namespace flexley
