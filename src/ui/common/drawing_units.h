// Drawing units (1440 to the inch) and the one mapping that turns them into a surface's pixels.
#pragma once

#include <QPointF>
#include <QRect>

class QPaintDevice;
class QScreen;

namespace flexley {

inline constexpr double kDrawingUnitsPerInch = 1440.0;

// Maps drawing units to the logical pixels of one surface. Logical pixels, because Qt scales them
// to device pixels itself on high-DPI screens and images; a printer reports its own resolution.
class DrawingUnitMapping {
  public:
    explicit DrawingUnitMapping(double dots_per_inch);
    // The mapping of a widget, image or printer page, from its logical resolution.
    static DrawingUnitMapping for_device(const QPaintDevice& device);

    double dots_per_inch() const { return dots_per_inch_; }
    double to_pixels(double units) const;
    QPointF to_pixels(double x, double y) const;
    // A rectangle given in whole drawing units, as widgets want it: edges rounded, never empty.
    QRect to_pixel_rect(int left, int top, int width, int height) const;
    double to_units(double pixels) const;

  private:
    double dots_per_inch_;
};

// The screen work area (the screen less task bars and docks) in whole drawing units.
struct WorkArea {
    int work_width = 0;
    int work_height = 0;
};

// A work area of logical pixels at the given resolution, rounded halves to even.
WorkArea work_area_in_units(int width_pixels, int height_pixels, double dots_per_inch);

// The work area of a screen: its available geometry at its logical resolution.
WorkArea work_area_of(const QScreen& screen);

}  // namespace flexley
