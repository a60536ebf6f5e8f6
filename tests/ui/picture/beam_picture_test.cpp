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

TEST(ScreenGeometry, RoundsEveryMeasureHalvesToEven) {
    struct Row {
        int width, height, top, bottom, left, right, plot, arc;
    };
    // 30/20 + 15 = 16.5 and 20/8 = 2.5 both go to the even neighbour.
    for (const Row row : {Row{19200, 16000, 8000, 8800, 2400, 16800, 3200, 1600},
                          Row{20, 30, 15, 16, 2, 17, 6, 3}}) {
        const ScreenGeometry g = screen_geometry(row.width, row.height);
        EXPECT_EQ((std::vector{g.beam_y_top, g.beam_y_bottom, g.beam_x_left, g.beam_x_right,
                               g.plot_height, g.arc_radius}),
                  (std::vector{row.top, row.bottom, row.left, row.right, row.plot, row.arc}))
            << row.width << " x " << row.height;
    }
}

// The largest load's arrow spans the plot height; a load twice as large halves it and its labels
// move to their restacked tops. Upward loads stand below the beam.
TEST(BeamPicture, LargestPointLoadSetsTheScaleAndANewMaximumRestacksOlderLabels) {
    const struct {
        double magnitude;
        double base;
        std::vector<int> created_tops, restacked_tops;
    } rows[] = {
        {500, kTop, {4000, 4200, 4400, 4600}, {5600, 5800, 6000, 6200}},
        {-500, kBottom, {12025, 12225, 12425, 12625}, {10450, 10650, 10850, 11050}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.magnitude);
        const double direction = row.magnitude > 0 ? 1 : -1;
        Screen screen;
        ASSERT_TRUE(add_point_load(screen.model, row.magnitude, 120, "in", "lb").ok());
        screen.redraw();
        ASSERT_EQ(shafts(screen.picture).size(), 1u);
        EXPECT_DOUBLE_EQ(shafts(screen.picture)[0].length, direction * kPlotHeight);
        EXPECT_DOUBLE_EQ(shafts(screen.picture)[0].base, row.base);
        EXPECT_EQ(screen.tops(1), row.created_tops);
        EXPECT_EQ(screen.label(1, kFeatureSlot).left, screen_x(120) - 500);

        ASSERT_TRUE(add_point_load(screen.model, 1000, 60, "in", "lb").ok());
        screen.redraw();
        const auto arrows = shafts(screen.picture);
        ASSERT_EQ(arrows.size(), 2u);
        EXPECT_DOUBLE_EQ(arrows[0].length, direction * kPlotHeight / 2);
        EXPECT_DOUBLE_EQ(arrows[1].length, kPlotHeight);
        EXPECT_EQ(screen.tops(1), row.restacked_tops);
        EXPECT_EQ(screen.tops(2), (std::vector{4000, 4200, 4400, 4600}));
        EXPECT_EQ(screen.model.pt_drawn, 2);
    }
}

TEST(BeamPicture, TriangularLoadDrawsQuarterPointArrowsUnderASlopingTopLine) {
    Screen screen;
    ASSERT_TRUE(add_distributed_load(screen.model, 0, 240, 0, 10, "in", "pi").ok());
    screen.redraw();
    // The arrow at the thin end has no length and shows nothing.
    const auto arrows = shafts(screen.picture);
    ASSERT_EQ(arrows.size(), 4u);
    for (int k = 1; k <= 4; ++k) {
        EXPECT_DOUBLE_EQ(arrows[k - 1].x, screen_x(60 * k));
        EXPECT_DOUBLE_EQ(arrows[k - 1].length, kPlotHeight / 2 * k / 4);
        EXPECT_DOUBLE_EQ(arrows[k - 1].base, kTop);
    }
    const auto lines = drawing::shapes_of<drawing::Line>(screen.picture);
    ASSERT_EQ(lines.size(), 4u * 4 + 1);
    EXPECT_EQ(lines.back().from, (drawing::Point{screen_x(0), kTop}));
    EXPECT_EQ(lines.back().to, (drawing::Point{screen_x(240), kTop - kPlotHeight / 2}));
    EXPECT_EQ(screen.label(1, kValueSlot).caption, "start=0 lb./in., 0 in.");
    EXPECT_EQ(screen.label(1, kValueSlot).width, 4000);
}

TEST(BeamPicture, RemovedFeaturesDrawNothingAndKeepTheirBlankLabelPlaces) {
    Screen screen;
    ASSERT_TRUE(add_point_load(screen.model, 1000, 60, "in", "lb").ok());
    screen.redraw();
    ASSERT_TRUE(add_support(screen.model, 0, "cant", "in", "lb").ok());
    screen.redraw();
    ASSERT_TRUE(add_point_load(screen.model, 500, 180, "in", "lb").ok());
    screen.redraw();

    for (const int removed : {1, 2}) {
        screen.labels.blank_group(removed);
        ASSERT_TRUE(remove_feature(screen.model, removed).ok());
    }
    screen.labels.restack_labels(screen.model, screen.geometry, screen.model.feature_count + 1);
    screen.redraw();
    // Only the third feature is left: one full-scale arrow, no triangle, no cantilever arc.
    EXPECT_EQ(drawing::shapes_of<drawing::Line>(screen.picture).size(), 4u);
    EXPECT_TRUE(drawing::shapes_of<drawing::Arc>(screen.picture).empty());
    EXPECT_DOUBLE_EQ(shafts(screen.picture).at(0).length, kPlotHeight);
    for (const auto& label : screen.labels.group(1).labels)
        EXPECT_EQ(label.caption, "");
    EXPECT_EQ(screen.label(3, kFeatureSlot).caption, "Feature 3");

    // Read back from a file, the removed features keep their numbers with blank placeholders.
    Screen reopened;
    const auto read =
        read_load_configuration_text(load_configuration_text(screen.model), reopened.model);
    ASSERT_TRUE(read.status.ok());
    reopened.labels.create_groups_from_file(reopened.model, reopened.geometry, read.label_groups);
    ASSERT_EQ(reopened.labels.group_count(), 3);
    for (const int removed : {1, 2}) {
        EXPECT_FALSE(reopened.labels.group(removed).kind);
        EXPECT_EQ(reopened.label(removed, kPositionSlot).name,
                  "blank" + std::to_string(removed) + "4");
        EXPECT_EQ(reopened.label(removed, kPositionSlot).caption, "");
    }
    EXPECT_EQ(reopened.label(3, kPositionSlot).name, "loadlab22");
    EXPECT_EQ(reopened.label(3, kPositionSlot).caption, "x=180 in.");
}

TEST(BeamPicture, LengthCaptionFollowsTheUnitSystemBelowTheBeam) {
    struct Row {
        bool metric;
        bool in_inches;
        double length;
        const char* caption;
    };
    for (const Row row : {Row{false, false, 240, "Beam Length is 20 ft."},
                          Row{false, true, 36, "Beam Length is 36 in."},
                          Row{true, false, 5, "Beam Length is 5 m."}}) {
        Screen screen(row.length);
        screen.model.metric_units = row.metric;
        screen.model.positions_in_inches = row.in_inches;
        screen.redraw();
        const auto texts = drawing::shapes_of<drawing::Text>(screen.picture);
        ASSERT_EQ(texts.size(), 1u);
        EXPECT_EQ(texts[0].text, row.caption);
        EXPECT_EQ(texts[0].position, (drawing::Point{9600 - 1280, 14000}));
        EXPECT_EQ(texts[0].font.point_size, 14);
        EXPECT_TRUE(texts[0].font.bold);
    }
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
        EXPECT_EQ(bar[0].fill, drawing::Fill::diagonal_cross);
        // Point load 4, distributed load 5 x 4 + 1, moment head 3, triangle 3, cantilever head 3.
        EXPECT_EQ(drawing::shapes_of<drawing::Line>(picture).size(), 34u);
        ASSERT_EQ(drawing::shapes_of<drawing::Arc>(picture).size(), 2u);
        ASSERT_EQ(drawing::shapes_of<drawing::Circle>(picture).size(), 1u);
        for (std::size_t k = 1; k < picture.shapes.size(); ++k) {
            const drawing::Ink ink =
                std::visit([](const auto& s) { return s.ink; }, picture.shapes[k]);
            EXPECT_EQ(ink.pen_mode, pen) << k;
        }
    }
    // A clockwise moment turns on the right-hand quarter, its head at the upper end.
    const auto picture = beam_picture(screen.model, screen.geometry, kPenDraw);
    const auto arc = drawing::shapes_of<drawing::Arc>(picture)[0];
    EXPECT_DOUBLE_EQ(arc.radius, 1600);
    EXPECT_NEAR(arc.start_angle, 7 * std::numbers::pi / 4, 1e-8);
    EXPECT_NEAR(arc.end_angle, std::numbers::pi / 4, 1e-8);
}

}  // namespace
}  // namespace flexley
