// Where the Loading Screen puts the beam and how large its shapes are, from the screen work area.
#pragma once

namespace flexley {

// Drawing units (1440 to the inch), y growing downwards.
struct ScreenGeometry {
    int work_width = 0;
    int work_height = 0;
    int beam_y_top = 0;     // upper edge of the beam bar
    int beam_y_bottom = 0;  // lower edge of the beam bar
    int beam_x_left = 0;    // the beam's left end, position 0
    int beam_x_right = 0;   // the beam's right end, position beam_length
    int plot_height = 0;    // arrow length of the largest point load
    int arc_radius = 0;     // arc radius of the largest moment and of the cantilever mark

    // The screen x of a position along a beam of the given length.
    double screen_x(double position, double beam_length) const;
    // The beam's centre line, on which moments are marked.
    double centre_y() const;
    // The side of a support triangle, and its height below the beam.
    double support_size() const;
    double support_height() const;
};

// Every value rounded to the nearest integer, halves to even, as the window lays itself out once
// from the work area read at start.
ScreenGeometry screen_geometry(int work_width, int work_height);

}  // namespace flexley
