// Label groups: reaction texts on the supports, relabelling after a unit switch.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "analysis/reaction_text.h"
#include "analysis/run.h"
#include "model/features.h"
#include "model/units.h"
#include "ui/picture/loading_screen.h"

namespace flexley {
namespace {

using namespace testing_screen;

// Two fixed supports give each a force and a moment, the longest text a support carries.
TEST(ReactionTexts, StandCentredOnTheFourthLabelOfEachSupportUntilResultsGoStale) {
    Screen screen;
    screen.model.moment_of_inertia = 100;
    screen.model.elastic_modulus = 29e6f;
    screen.model.fibre_distance = 5;
    screen.draw_added(add_support(screen.model, 0, "cant", "in", "lb"));
    screen.draw_added(add_point_load(screen.model, 1000, 120, "in", "lb"));
    screen.draw_added(add_support(screen.model, 240, "cant", "in", "lb"));
    ASSERT_TRUE(run_calculation(screen.model, [] { return false; }).ok());
    screen.labels.show_reaction_texts(show_reactions(screen.model));

    for (const auto& [number, text] :
         {std::pair{1, "500 lb., 30000 lb.-in."}, std::pair{3, "500 lb., -30000 lb.-in."}}) {
        const Label& label = screen.label(number, kPositionSlot);
        EXPECT_EQ(label.caption, text);
        // Widened about the support so the text is never clipped.
        EXPECT_GE(label.width, static_cast<int>(label.caption.size()) * 100);
        EXPECT_EQ(label.left + label.width / 2, screen.label(number, kFeatureSlot).left + 500);
    }
    // The load's own position label is no reaction label.
    EXPECT_EQ(screen.label(2, kPositionSlot).caption, "x=120 in.");

    screen.labels.blank_reaction_texts();
    EXPECT_EQ(screen.label(3, kPositionSlot).caption, "");
    EXPECT_EQ(screen.label(3, kPositionSlot).width, 1300);
}

TEST(Relabel, ValueAndPositionLabelsFollowAUnitSwitch) {
    Screen screen;
    screen.draw_added(add_point_load(screen.model, 1000, 60, "ft", "lb"));
    screen.draw_added(add_distributed_load(screen.model, 0, 120, 1, 2, "in", "pf"));
    screen.draw_added(add_moment(screen.model, -1200, 180, "in", "pf"));
    screen.draw_added(add_support(screen.model, 240, "simp", "ft", "lb"));
    auto captions = [&](int number) {
        return std::pair{screen.label(number, kValueSlot).caption,
                         screen.label(number, kPositionSlot).caption};
    };
    using Captions = std::pair<std::string, std::string>;
    convert_units(screen.model, "eng_to_met");
    screen.labels.relabel_features(screen.model);
    EXPECT_EQ(captions(1), (Captions{"4450 N", "x=1.52 m"}));
    EXPECT_EQ(captions(2), (Captions{"start=175 N/m, 0 m", "end=350 N/m, 3.05 m"}));
    EXPECT_EQ(captions(3), (Captions{"136 N-m", "x=4.57 m"}));
    EXPECT_EQ(captions(4), (Captions{"x=6.1 m", ""}));
}

}  // namespace
}  // namespace flexley
