// Painting pictures into the view's backing image: a few tolerant pixels, before and after a
// resize.
#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

#include "ui/common/picture_painter.h"
#include "ui/common/picture_view.h"

namespace flexley {
namespace {

using drawing::Ink;

// At 96 dots per inch 15 drawing units make one pixel: this picture spans 100 x 100 pixels.
drawing::Picture sample_picture() {
    drawing::Picture picture;
    picture.add(drawing::Line{{150, 150}, {1350, 150}, Ink{drawing::kRed}});
    picture.add(drawing::Circle{{750, 750}, 150, Ink{drawing::kRed}, drawing::Fill::solid});
    picture.add(drawing::Rectangle{{150, 900}, {1350, 1350}, Ink{}, drawing::Fill::diagonal_cross});
    // Drawn, then erased: nothing of it may remain.
    picture.add(drawing::Line{{150, 450}, {1350, 450}, Ink{drawing::kBlack}});
    picture.add(drawing::Line{{150, 450}, {1350, 450}, Ink{drawing::kBlack, kPenErase}});
    return picture;
}

bool near(QColor actual, QColor expected) {
    return std::max({std::abs(actual.red() - expected.red()),
                     std::abs(actual.green() - expected.green()),
                     std::abs(actual.blue() - expected.blue())}) <= 60;
}

// The colour at a point given in logical pixels, whatever the image's pixel ratio.
QColor at(const QImage& image, double x, double y) {
    const double ratio = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
}

void expect_sample(const QImage& image, double scale = 1) {
    EXPECT_TRUE(near(at(image, 50 * scale, 10 * scale), Qt::red));
    EXPECT_TRUE(near(at(image, 50 * scale, 50 * scale), Qt::red));
    // The erased line.
    for (int x = 20; x <= 80; x += 10)
        EXPECT_TRUE(near(at(image, x * scale, 30 * scale), Qt::white)) << x;
    // The hatch leaves both ink and paper inside the bar.
    int dark = 0;
    for (int x = 20; x < 80; ++x)
        dark += at(image, x * scale, 75 * scale).lightness() < 128;
    EXPECT_GT(dark, 5);
    EXPECT_LT(dark, 60 - 5);
}

TEST(PictureView, BackingImageFollowsSizeAndShowsTheSamePictureAfterAResize) {
    PictureView view;
    QPalette palette = view.palette();
    palette.setColor(view.backgroundRole(), Qt::white);
    view.setPalette(palette);
    view.resize(100, 100);
    // The same picture at the widget's own resolution, whatever the offscreen screen reports.
    const double scale = view.mapping().dots_per_inch() / 96;
    view.show_picture(sample_picture());
    expect_sample(view.backing_image(), scale);

    view.resize(300, 200);
    EXPECT_EQ(view.backing_image().size(), QSize(300, 200) * view.devicePixelRatioF());
    expect_sample(view.backing_image(), scale);

    // A whole redraw starts from a clean image: nothing of the previous picture remains.
    view.show_picture(drawing::Picture{});
    QImage blank = view.backing_image();
    blank.fill(Qt::white);
    EXPECT_EQ(view.backing_image(), blank);
}

}  // namespace
}  // namespace flexley
