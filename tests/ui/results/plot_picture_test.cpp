// The plots as numbers: frames, grid lines, labels and their units, titles, curve points, tips.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/beam_model.h"
#include "ui/results/hover_tip.h"
#include "ui/results/plot_picture.h"

namespace flexley {
namespace {

// 19200 x 16000 units: plots from x 2400 to 16800, half height 1600; zero lines at 2667, 7333
// and 12000.
const ScreenGeometry kGeometry = screen_geometry(19200, 16000);

BeamModel beam(bool metric, double length, int resolution = 10) {
    BeamModel model;
    model.metric_units = metric;
    model.beam_length = length;
    model.resolution = static_cast<float>(resolution);
    model.sig_figs = 4;
    model.elastic_modulus = 2.0f;
    model.moment_of_inertia = 5.0f;
    model.results_valid = true;
    return model;
}

// The grid labels, from the top grid line down (value labels) or from the left (position
// labels): the picture gives each step its value label, then its position label, and the title
// last.
enum class Labels { values, positions };

std::vector<std::string> labels(const drawing::Picture& picture, Labels which) {
    std::vector<std::string> found;
    const auto texts = drawing::shapes_of<drawing::Text>(picture);
    for (std::size_t i = which == Labels::positions ? 1 : 0; i + 1 < texts.size(); i += 2)
        found.push_back(texts[i].text);
    return found;
}

TEST(PlotPicture, FramesGridLinesAndTitlesStandWhereTheWorkAreaPutsThem) {
    const BeamModel model = beam(false, 120);
    const struct {
        PlotKind kind;
        int centre;
        const char* title;
        double title_x;
    } rows[] = {
        {PlotKind::moment, 2667, "MOMENT", 9600 - 19200.0 / 28},
        {PlotKind::stress, 7333, "BENDING STRESS", 9600 - 19200.0 / 18},
        {PlotKind::deflection, 12000, "DEFLECTION", 9600 - 19200.0 / 22},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.title);
        const drawing::Picture picture = plot_picture(model, row.kind, kGeometry, false);
        const auto lines = drawing::shapes_of<drawing::Line>(picture);
        // The zero line, then a horizontal and a vertical grid line per step from the top.
        ASSERT_EQ(lines.size(), 15u);
        EXPECT_EQ(lines[0].from, (drawing::Point{2400, double(row.centre)}));
        EXPECT_EQ(lines[0].to, (drawing::Point{16800, double(row.centre)}));
        for (int i = 0; i < 7; ++i) {
            EXPECT_EQ(lines[1 + 2 * i].to,
                      (drawing::Point{2400, row.centre + (i - 3) * 1600.0 / 3}));
            EXPECT_EQ(lines[1 + 2 * i].ink.colour, kGridBlue);
            EXPECT_EQ(lines[2 + 2 * i].from,
                      (drawing::Point{2400 + 2400.0 * i, row.centre - 1600.0}));
        }
        const auto texts = drawing::shapes_of<drawing::Text>(picture);
        ASSERT_EQ(texts.size(), 15u);
        EXPECT_EQ(texts[0].position, (drawing::Point{1120, row.centre - 1600 - 16000.0 / 65}));
        EXPECT_EQ(texts[0].ink.colour, kGridBlue);
        EXPECT_EQ(texts.back().text, row.title);
        EXPECT_EQ(texts.back().position,
                  (drawing::Point{row.title_x, row.centre - 1600 - 16000.0 / 30}));
        EXPECT_TRUE(texts.back().font.bold && texts.back().font.point_size == 14);
    }
}

// The unit is chosen once from |max| by the reports' rule, whose thresholds the report tests
// cover; the labels run from +|max| on the top line through 0 to -|max|. Deflections: E x I = 10,
// the top line carrying +|max| / EI, times 1000 in millimetres.
TEST(PlotPicture, ValueLabelsFollowTheMaximumInOneUnit) {
    const struct {
        PlotKind kind;
        bool metric;
        double maximum;                   // stored
        std::vector<std::string> labels;  // top line, the one below, the zero line
    } rows[] = {
        {PlotKind::moment, false, 1000, {"83.33 lb.-ft.", "55.56 lb.-ft.", "0 lb.-ft."}},
        {PlotKind::stress, true, 1000, {"1 kPa", "0.6667 kPa", "0 kPa"}},
        {PlotKind::stress, false, 30000, {"30 ksi", "20 ksi", "0 ksi"}},
        {PlotKind::deflection, true, -30, {"3000 mm", "2000 mm", "0 mm"}},
        {PlotKind::moment, true, 0, {"0 N-m", "0 N-m", "0 N-m"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.labels.front());
        BeamModel model = beam(row.metric, 120);
        model.max_moment = model.max_stress = model.max_deflection = row.maximum;
        const auto shown = labels(plot_picture(model, row.kind, kGeometry, false), Labels::values);
        ASSERT_EQ(shown.size(), 7u);
        EXPECT_EQ((std::vector<std::string>{shown[0], shown[1], shown[3]}), row.labels);
        EXPECT_EQ(shown[6], row.maximum == 0 ? row.labels[0] : "-" + row.labels[0]);
    }
}

TEST(PlotCurve, RunsThroughEveryCalculatedPointAndAgreesWithTheGridLabels) {
    BeamModel model = beam(true, 10, 10);
    model.max_deflection = 4.0;
    for (int k = 0; k <= 10; ++k)
        model.deflection[static_cast<std::size_t>(k)] = 0.4 * k - 2.0;
    model.deflection[3] = -4.0;
    const PlotCurve curve = plot_curve(model, PlotKind::deflection, kGeometry);
    ASSERT_EQ(curve.point_count(), 11);
    EXPECT_EQ(curve.point(0).x, 2400);
    EXPECT_EQ(curve.point(10).x, 16800);
    // The stored -|max| is the largest deflection upwards: on the top grid line, labelled
    // +|max| / EI.
    EXPECT_DOUBLE_EQ(curve.point(3).y, 12000 - 1600);
    EXPECT_EQ(
        labels(plot_picture(model, PlotKind::deflection, kGeometry, false), Labels::values).front(),
        "400 mm");
    EXPECT_DOUBLE_EQ(curve.point(0).y, 12000 - 800);
    EXPECT_DOUBLE_EQ(curve.point(10).y, 12000 + 800);
    // Position labels read sixths of the beam.
    EXPECT_EQ(
        labels(plot_picture(model, PlotKind::deflection, kGeometry, false), Labels::positions),
        (std::vector<std::string>{"0 m", "1.667 m", "3.333 m", "5 m", "6.667 m", "8.333 m",
                                  "10 m"}));

    model.max_moment = 0.0;
    EXPECT_EQ(plot_curve(model, PlotKind::moment, kGeometry).point_count(), 0);
}

TEST(HoverTip, NamesTheNearestPointInThePlotsUnits) {
    BeamModel model = beam(false, 120, 10);
    model.max_moment = 12000.0;
    model.moment[4] = 6000.0;
    model.max_deflection = 40.0;
    model.deflection[10] = 20.0;  // E x I = 10
    const struct {
        const char* name;
        drawing::Point at;
        std::optional<std::string> tip;
    } rows[] = {
        {"moment_near_point_4", {2400 + 4 * 1440 + 500, 2667}, "x = 4 ft.\nMoment = 500 lb.-ft."},
        {"deflection_at_the_end", {16800, 12000 + 1600}, "x = 10 ft.\nDeflection = -2 in."},
        {"between_plots", {9600, 2667 + 1601}, std::nullopt},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(hover_tip(model, kGeometry, row.at), row.tip);
    }
}

}  // namespace
}  // namespace flexley
