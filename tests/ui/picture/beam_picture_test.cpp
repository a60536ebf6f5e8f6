// The Loading Screen picture as numbers: layout, arrow scaling, label placement, removal, caption.
#include <gtest/gtest.h>

#include <numbers>
#include <variant>

#include "files/load_file.h"
#include "model/features.h"
#include "ui/picture/loading_screen.h"

namespace flexley {
namespace {

using namespace testing_screen;

// The largest load's arrow spans the plot height, a load half as large half of it; upward
// loads stand below the beam, their labels too.
TEST(BeamPicture, TheLargestPointLoadSetsTheScale) {
    for (const double direction : {1.0, -1.0}) {
        SCOPED_TRACE(direction);
        Screen screen;
        screen.draw_added(add_point_load(screen.model, 500 * direction, 120, "in", "lb"));
        screen.draw_added(add_point_load(screen.model, 1000, 60, "in", "lb"));
        const auto arrows = shafts(screen.picture);
        ASSERT_EQ(arrows.size(), 2u);
        EXPECT_DOUBLE_EQ(arrows[0].length, direction * kPlotHeight / 2);
        EXPECT_DOUBLE_EQ(arrows[0].base, direction > 0 ? kTop : kBottom);
        EXPECT_DOUBLE_EQ(arrows[1].length, kPlotHeight);
        EXPECT_EQ(screen.label(1, kFeatureSlot).top, direction > 0 ? 5600 : 10450);
        EXPECT_EQ(screen.label(2, kFeatureSlot).top, 4000);
    }
}

TEST(BeamPicture, TriangularLoadDrawsQuarterPointArrowsUnderASlopingTopLine) {
    Screen screen;
    screen.draw_added(add_distributed_load(screen.model, 0, 240, 0, 10, "in", "pi"));
    // The arrow at the thin end has no length and shows nothing.
    const auto arrows = shafts(screen.picture);
    ASSERT_EQ(arrows.size(), 4u);
    for (int k = 1; k <= 4; ++k) {
        EXPECT_DOUBLE_EQ(arrows[k - 1].x, screen_x(60 * k));
        EXPECT_DOUBLE_EQ(arrows[k - 1].length, kPlotHeight / 2 * k / 4);
    }
    const auto lines = drawing::shapes_of<drawing::Line>(screen.picture);
    ASSERT_EQ(lines.size(), 4u * 4 + 1);
    EXPECT_EQ(lines.back().from, (drawing::Point{screen_x(0), kTop}));
    EXPECT_EQ(lines.back().to, (drawing::Point{screen_x(240), kTop - kPlotHeight / 2}));
}

TEST(BeamPicture, RemovedFeaturesDrawNothingAndReadBackAsBlankPlaceholders) {
    Screen screen;
    screen.draw_added(add_point_load(screen.model, 1000, 60, "in", "lb"));
    screen.draw_added(add_support(screen.model, 0, "cant", "in", "lb"));
    screen.draw_added(add_point_load(screen.model, 500, 180, "in", "lb"));
    for (const int removed : {1, 2})
        ASSERT_TRUE(remove_feature(screen.model, removed).ok());
    // Only the third feature is left: one full-scale arrow, no triangle, no cantilever arc.
    const auto picture = beam_picture(screen.model, screen.geometry, kPenDraw);
    EXPECT_EQ(drawing::shapes_of<drawing::Line>(picture).size(), 4u);
    EXPECT_TRUE(drawing::shapes_of<drawing::Arc>(picture).empty());
    EXPECT_DOUBLE_EQ(shafts(picture).at(0).length, kPlotHeight);

    Screen reopened;
    const auto read =
        read_load_configuration_text(load_configuration_text(screen.model), reopened.model);
    ASSERT_TRUE(read.status.ok());
    reopened.labels.create_groups_from_file(reopened.model, reopened.geometry, read.label_groups);
    ASSERT_EQ(reopened.labels.group_count(), 3);
    for (const int removed : {1, 2}) {
        EXPECT_EQ(reopened.label(removed, kPositionSlot).name,
                  "blank" + std::to_string(removed) + "4");
        EXPECT_EQ(reopened.label(removed, kPositionSlot).caption, "");
    }
    EXPECT_EQ(reopened.label(3, kPositionSlot).caption, "x=180 in.");
}

TEST(BeamPicture, LengthCaptionFollowsTheUnitSystem) {
    BeamModel model;
    model.beam_length = 36;
    model.positions_in_inches = true;
    EXPECT_EQ(beam_length_caption(model), "Beam Length is 36 in.");
    model.metric_units = true;
    model.beam_length = 5;
    EXPECT_EQ(beam_length_caption(model), "Beam Length is 5 m.");
}

TEST(BeamPicture, EraseKeepsOnlyTheBarDrawnAndPaintsEveryShapeInTheBackground) {
    Screen screen;
    ASSERT_TRUE(add_point_load(screen.model, -100, 30, "in", "lb").ok());
    ASSERT_TRUE(add_distributed_load(screen.model, 0, 100, 2, 1, "in", "pi").ok());
    ASSERT_TRUE(add_moment(screen.model, -700, 120, "in", "pi").ok());
    ASSERT_TRUE(add_support(screen.model, 240, "cant", "in", "lb").ok());
    for (const int pen : {kPenDraw, kPenErase}) {
        const auto picture = beam_picture(screen.model, screen.geometry, pen);
        const auto bar = drawing::shapes_of<drawing::Rectangle>(picture);
        ASSERT_EQ(bar.size(), 1u);
        EXPECT_EQ(bar[0].ink.pen_mode, kPenDraw);
        // Point load 4, distributed load 5 x 4 + 1, moment head 3, triangle 3, cantilever head 3.
        EXPECT_EQ(drawing::shapes_of<drawing::Line>(picture).size(), 34u);
        ASSERT_EQ(drawing::shapes_of<drawing::Arc>(picture).size(), 2u);
        // A clockwise moment turns on the right-hand quarter, its head at the upper end.
        const drawing::Arc moment = drawing::shapes_of<drawing::Arc>(picture)[0];
        EXPECT_NEAR(moment.start_angle, 7 * std::numbers::pi / 4, 1e-8);
        EXPECT_NEAR(moment.end_angle, std::numbers::pi / 4, 1e-8);
        for (std::size_t k = 1; k < picture.shapes.size(); ++k) {
            const drawing::Ink ink =
                std::visit([](const auto& s) { return s.ink; }, picture.shapes[k]);
            EXPECT_EQ(ink.pen_mode, pen) << k;
        }
    }
}

}  // namespace
}  // namespace flexley
