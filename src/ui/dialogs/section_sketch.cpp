// The calculator's sketch of the chosen cross-section, its dimensions named as the boxes are.
#include "ui/dialogs/section_sketch.h"

namespace flexley {
namespace {

using drawing::Point;

constexpr drawing::Ink kOutline{drawing::kBlack};
constexpr drawing::Ink kHatch{drawing::Colour{128, 128, 128}};
// Paints the surface's own background, so a hollow shows through the hatching.
constexpr drawing::Ink kHollow{drawing::kBlack, kPenErase};
const drawing::Font kCaptionFont{"Arial", 8.0, false, false};

// Every caption starts at this x, right of the outlines; leaders run to just before it.
constexpr double kCaptionLeft = 1900.0;
constexpr double kLeaderEnd = 1860.0;
constexpr double kCaptionHalfHeight = 100.0;
constexpr double kTick = 60.0;

// A dimension line with a slanted tick at each end, drafting style.
void add_dimension(drawing::Picture& sketch, Point from, Point to) {
    sketch.add(drawing::Line{from, to, kOutline});
    for (const Point end : {from, to}) {
        sketch.add(drawing::Line{
            {end.x - kTick, end.y + kTick}, {end.x + kTick, end.y - kTick}, kOutline});
    }
}

// A caption to the right, joined by a leader from `from` along its height.
void add_caption(drawing::Picture& sketch, Point from, const char* caption) {
    sketch.add(drawing::Line{from, {kLeaderEnd, from.y}, kOutline});
    sketch.add(drawing::Text{
        {kCaptionLeft, from.y - kCaptionHalfHeight}, caption, kCaptionFont, kOutline});
}

void add_round(drawing::Picture& sketch, bool tube) {
    const Point centre{850.0, 1150.0};
    constexpr double kOuter = 750.0;
    constexpr double kInner = 450.0;
    sketch.add(drawing::Circle{centre, kOuter, kHatch, drawing::Fill::diagonal_cross});
    sketch.add(drawing::Circle{centre, kOuter, kOutline});
    const double left = centre.x - kOuter;
    const double right = centre.x + kOuter;
    constexpr double kDimensionY = 2250.0;
    for (const double x : {left, right}) {
        sketch.add(drawing::Line{{x, centre.y}, {x, kDimensionY + 2 * kTick}, kOutline});
    }
    add_dimension(sketch, {left, kDimensionY}, {right, kDimensionY});
    add_caption(sketch, {right, kDimensionY}, kOuterDiameterCaption);
    if (!tube) return;
    sketch.add(drawing::Circle{centre, kInner, kHollow, drawing::Fill::solid});
    sketch.add(drawing::Circle{centre, kInner, kOutline});
    add_dimension(sketch, {centre.x - kInner, centre.y}, {centre.x + kInner, centre.y});
    add_caption(sketch, {centre.x + kInner, centre.y}, kInnerDiameterCaption);
}

void add_rectangular(drawing::Picture& sketch, bool tube) {
    constexpr double kLeft = 300.0, kRight = 1400.0, kTop = 300.0, kBottom = 2200.0;
    constexpr double kWall = 200.0;
    sketch.add(drawing::Rectangle{
        {kLeft, kTop}, {kRight, kBottom}, kHatch, drawing::Fill::diagonal_cross});
    sketch.add(drawing::Rectangle{{kLeft, kTop}, {kRight, kBottom}, kOutline});

    constexpr double kHeightX = 1650.0;
    for (const double y : {kTop, kBottom}) {
        sketch.add(drawing::Line{{kRight, y}, {kHeightX + 2 * kTick, y}, kOutline});
    }
    add_dimension(sketch, {kHeightX, kTop}, {kHeightX, kBottom});
    add_caption(sketch, {kHeightX, (kTop + kBottom) / 2.0}, kHeightCaption);

    constexpr double kWidthY = 2450.0;
    for (const double x : {kLeft, kRight}) {
        sketch.add(drawing::Line{{x, kBottom}, {x, kWidthY + 2 * kTick}, kOutline});
    }
    add_dimension(sketch, {kLeft, kWidthY}, {kRight, kWidthY});
    add_caption(sketch, {kRight, kWidthY}, kWidthCaption);
    if (!tube) return;

    const Point hollow_top_left{kLeft + kWall, kTop + kWall};
    const Point hollow_bottom_right{kRight - kWall, kBottom - kWall};
    sketch.add(
        drawing::Rectangle{hollow_top_left, hollow_bottom_right, kHollow, drawing::Fill::solid});
    sketch.add(drawing::Rectangle{hollow_top_left, hollow_bottom_right, kOutline});
    // The wall is measured across the top flange; its leader rises above the height dimension
    // so that no two lines cross.
    const double wall_x = (kLeft + kRight) / 2.0;
    constexpr double kLeaderY = 120.0;
    add_dimension(sketch, {wall_x, kTop}, {wall_x, kTop + kWall});
    sketch.add(drawing::Line{{wall_x, kTop}, {wall_x, kLeaderY}, kOutline});
    add_caption(sketch, {wall_x, kLeaderY}, kWallCaption);
}

}  // namespace

drawing::Picture section_sketch(CrossSection shape, bool tube) {
    drawing::Picture sketch;
    if (shape == CrossSection::round) {
        add_round(sketch, tube);
    } else {
        add_rectangular(sketch, tube);
    }
    return sketch;
}

}  // namespace flexley
