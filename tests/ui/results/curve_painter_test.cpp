// The per-column stroke union paints the same pixels as one line per calculated point.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPen>
#include <cmath>
#include <numbers>

#include "model/beam_model.h"
#include "ui/results/curve_painter.h"
#include "ui/results/plot_picture.h"

namespace flexley {
namespace {

// A moment curve with everything a column can hold: a slow wave crossing zero, a stretch where
// neighbouring points alternate in sign, stretches of zeros (strokes of no length) alone and
// among other strokes, and a spike a single point wide.
BeamModel wavy_beam(int resolution) {
    BeamModel model;
    model.beam_length = 240.0;
    model.resolution = static_cast<float>(resolution);
    double largest = 0.0;
    for (int k = 0; k <= resolution; ++k) {
        const double t = static_cast<double>(k) / resolution;
        double v = std::sin(5 * std::numbers::pi * t) + 0.2 * std::sin(301 * t);
        if (t > 0.4 && t < 0.45) v = (k % 2 == 0 ? 0.6 : -0.7) * std::cos(40 * t);
        if ((t > 0.6 && t < 0.62) || (t > 0.7 && t < 0.75 && k % 7 == 0)) v = 0.0;
        if (k == resolution / 3) v = 1.8;
        model.moment[static_cast<std::size_t>(k)] = v;
        largest = std::max(largest, std::abs(v));
    }
    model.max_moment = largest;
    model.results_valid = true;
    return model;
}

// How the curve's strokes sit across: at their place in their column, or exactly where they fall.
enum class Across { in_column, exact };

// The curve as the plain loop draws it: one line per point or per polyline segment, those of no
// length left out as the painter leaves them out.
void paint_every_stroke(QPainter& painter, const PlotCurve& curve,
                        const DrawingUnitMapping& mapping, bool outline_only, Across across) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(Qt::black, curve_pen_width(mapping, outline_only)));
    const DeviceColumns columns(painter, mapping);
    const auto point = [&](int k) {
        return across == Across::exact ? mapping.to_pixels(curve.x(k), curve.y(k))
                                       : columns.stroke_point(curve.x(k), curve.y(k));
    };
    const double zero = mapping.to_pixels(curve.centre);
    for (int k = 0; k <= curve.last; ++k) {
        const QPointF end = point(k);
        if (!outline_only) {
            draw_segment(painter, QLineF(end.x(), zero, end.x(), end.y()));
        } else if (k > 0) {
            draw_segment(painter, QLineF(point(k - 1), end));
        }
    }
}

QImage blank_image(double ratio) {
    QImage image(QSize(1920, 1080) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

struct SamenessRow {
    const char* name;
    int resolution;
    bool outline_only;
    double ratio;
    Across reference;
};

class CurveSameness : public ::testing::TestWithParam<SamenessRow> {};

TEST_P(CurveSameness, TheColumnUnionPaintsEveryStrokesPixels) {
    const SamenessRow& row = GetParam();
    const BeamModel model = wavy_beam(row.resolution);
    const ScreenGeometry geometry = screen_geometry(28800, 16200);  // 1920 x 1080 at 96 dpi
    const PlotCurve curve = plot_curve(model, PlotKind::moment, geometry);
    ASSERT_EQ(curve.point_count(), row.resolution + 1);

    QImage unioned = blank_image(row.ratio);
    QImage every = blank_image(row.ratio);
    const DrawingUnitMapping mapping = DrawingUnitMapping::for_device(unioned);
    {
        QPainter painter(&unioned);
        paint_curve(painter, curve, mapping, row.outline_only);
    }
    {
        QPainter painter(&every);
        paint_every_stroke(painter, curve, mapping, row.outline_only, row.reference);
    }
    // Compared pixel for pixel, and not blank.
    EXPECT_TRUE(unioned == every);
    EXPECT_FALSE(unioned == blank_image(row.ratio));
}

// At one device pixel per logical pixel a stroke already fills the column it falls in, so the
// union matches strokes drawn exactly where they fall. At other ratios a stroke spans columns
// by its exact place, and every stroke stands at its place in its column in both pictures.
INSTANTIATE_TEST_SUITE_P(
    Rows, CurveSameness,
    ::testing::Values(SamenessRow{"strokes_10", 10, false, 1.0, Across::exact},
                      SamenessRow{"strokes_200000", 200000, false, 1.0, Across::exact},
                      SamenessRow{"strokes_10000_hidpi", 10000, false, 2.0, Across::in_column},
                      SamenessRow{"strokes_200000_fractional", 200000, false, 1.25,
                                  Across::in_column},
                      SamenessRow{"outline_10", 10, true, 1.0, Across::in_column},
                      SamenessRow{"outline_200000_hidpi", 200000, true, 2.0, Across::in_column}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace flexley
