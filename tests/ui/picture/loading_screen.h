// A Loading Screen laid out on a round work area, with labels measured at a fixed width.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "model/beam_model.h"
#include "model/status.h"
#include "ui/common/picture.h"
#include "ui/loading/beam_picture.h"
#include "ui/loading/label_groups.h"
#include "ui/loading/screen_geometry.h"

namespace flexley::testing_screen {

// 19200 x 16000 gives beam_y_top 8000, beam_y_bottom 8800, beam from x 2400 to 16800,
// plot_height 3200, arc_radius 1600; on a 240 in. beam position p lies at x = 2400 + 60 p.
inline constexpr int kTop = 8000;
inline constexpr int kBottom = 8800;
inline constexpr double kPlotHeight = 3200;

inline double screen_x(double position) {
    return 2400 + 60 * position;
}

// Every character 100 units wide, so captions of more than nine characters outgrow a label
// 1000 wide.
inline TextExtent fixed_width(const std::string& text, bool) {
    return {static_cast<int>(text.size()) * 100, 180};
}

struct Screen {
    BeamModel model;
    ScreenGeometry geometry = screen_geometry(19200, 16000);
    FeatureLabels labels{fixed_width};
    drawing::Picture picture;

    explicit Screen(double length = 240) { model.beam_length = length; }

    void redraw() { picture = redraw_screen(model, geometry, kPenDraw, labels); }

    // Draws a feature just added, as the feature dialogs do.
    void draw_added(const Status& added) {
        ASSERT_TRUE(added.ok()) << added.message();
        redraw();
    }

    const Label& label(int feature_number, int slot) const {
        return labels.group(feature_number).labels[slot];
    }
};

struct Shaft {
    double x;
    double length;  // signed: positive when the arrow comes down onto its base line
    double base;
};

// The vertical lines of a picture: arrow shafts, their tip being the lower end for a downward
// arrow. Arrowheads have no vertical lines except a moment's, which the tests keep apart.
inline std::vector<Shaft> shafts(const drawing::Picture& picture) {
    std::vector<Shaft> found;
    for (const auto& line : drawing::shapes_of<drawing::Line>(picture)) {
        if (line.from.x != line.to.x) continue;
        found.push_back({line.from.x, line.to.y - line.from.y, line.to.y});
    }
    return found;
}

}  // namespace flexley::testing_screen
