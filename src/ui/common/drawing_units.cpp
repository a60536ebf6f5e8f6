// Drawing units to pixels, and the screen work area in drawing units.
#include "ui/common/drawing_units.h"

#include <QPaintDevice>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace flexley {

DrawingUnitMapping::DrawingUnitMapping(double dots_per_inch) : dots_per_inch_(dots_per_inch) {}

DrawingUnitMapping DrawingUnitMapping::for_device(const QPaintDevice& device) {
    return DrawingUnitMapping(device.logicalDpiX());
}

double DrawingUnitMapping::to_pixels(double units) const {
    return units * dots_per_inch_ / kDrawingUnitsPerInch;
}

QPointF DrawingUnitMapping::to_pixels(double x, double y) const {
    return {to_pixels(x), to_pixels(y)};
}

QRect DrawingUnitMapping::to_pixel_rect(int left, int top, int width, int height) const {
    // Both edges are rounded, so labels laid out edge to edge stay edge to edge in pixels.
    const int x0 = static_cast<int>(std::lround(to_pixels(left)));
    const int y0 = static_cast<int>(std::lround(to_pixels(top)));
    const int x1 = static_cast<int>(std::lround(to_pixels(left + width)));
    const int y1 = static_cast<int>(std::lround(to_pixels(top + height)));
    return {x0, y0, std::max(1, x1 - x0), std::max(1, y1 - y0)};
}

double DrawingUnitMapping::to_units(double pixels) const {
    return pixels * kDrawingUnitsPerInch / dots_per_inch_;
}

WorkArea work_area_in_units(int width_pixels, int height_pixels, double dots_per_inch) {
    const DrawingUnitMapping mapping(dots_per_inch);
    return {static_cast<int>(std::nearbyint(mapping.to_units(width_pixels))),
            static_cast<int>(std::nearbyint(mapping.to_units(height_pixels)))};
}

WorkArea work_area_of(const QScreen& screen) {
    const QRect available = screen.availableGeometry();
    return work_area_in_units(available.width(), available.height(), screen.logicalDotsPerInchX());
}

}  // namespace flexley
