// A picture as plain data: lines, rectangles, circles, arcs and texts in drawing units.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "model/units.h"

namespace flexley::drawing {

struct Colour {
    int red = 0;
    int green = 0;
    int blue = 0;
    friend bool operator==(const Colour&, const Colour&) = default;
};

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kRed{255, 0, 0};
inline constexpr Colour kRedBrown{185, 0, 0};

// How a shape is painted: in its colour (kPenDraw), or in the surface's background colour
// (kPenErase), which paints over the same shape drawn before.
struct Ink {
    Colour colour = kBlack;
    int pen_mode = kPenDraw;
    friend bool operator==(const Ink&, const Ink&) = default;
};

// Drawing units, y growing downwards.
struct Point {
    double x = 0.0;
    double y = 0.0;
    friend bool operator==(const Point&, const Point&) = default;
};

// The inside of a rectangle or circle: solid and hatched fills use the shape's ink.
enum class Fill { none, solid, diagonal_cross };

struct Line {
    Point from;
    Point to;
    Ink ink;
};

struct Rectangle {
    Point top_left;
    Point bottom_right;
    Ink ink;
    Fill fill = Fill::none;
};

struct Circle {
    Point centre;
    double radius = 0.0;
    Ink ink;
    Fill fill = Fill::none;
};

// Angles in radians, counter-clockwise as seen on the screen from the positive x axis; the arc
// runs counter-clockwise from start to end, so 7pi/4 to pi/4 is the right-hand quarter.
struct Arc {
    Point centre;
    double radius = 0.0;
    double start_angle = 0.0;
    double end_angle = 0.0;
    Ink ink;
};

struct Font {
    std::string family;
    double point_size = 8.0;
    bool bold = false;
    bool underline = false;
};

// A line of text whose top left corner stands at `position`.
struct Text {
    Point position;
    std::string text;
    Font font;
    Ink ink;
};

using Shape = std::variant<Line, Rectangle, Circle, Arc, Text>;

// Shapes in painting order: a later shape paints over an earlier one.
struct Picture {
    std::vector<Shape> shapes;

    template <typename S>
    void add(S shape) {
        shapes.emplace_back(std::move(shape));
    }
};

// The shapes of one kind, in painting order.
template <typename S>
std::vector<S> shapes_of(const Picture& picture) {
    std::vector<S> found;
    for (const auto& shape : picture.shapes)
        if (const auto* one = std::get_if<S>(&shape)) found.push_back(*one);
    return found;
}

}  // namespace flexley::drawing
