// Paints a picture onto any QPainter: a widget's backing image, a test image, a printer page.
#pragma once

#include <QColor>

#include "ui/common/drawing_units.h"
#include "ui/common/picture.h"

class QPainter;

namespace flexley {

// One screen pixel at the usual 96 dots per inch: lines keep that weight on every surface, so a
// printed page looks like the screen rather than hair-thin.
inline constexpr double kLineWidthUnits = 15.0;

// Paints every shape as vector graphics through the mapping; erasing shapes are painted in
// `background`. The painter's state is restored afterwards.
void paint_picture(QPainter& painter, const drawing::Picture& picture,
                   const DrawingUnitMapping& mapping, const QColor& background);

}  // namespace flexley
