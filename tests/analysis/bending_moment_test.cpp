// The fast segment-wise moment evaluation against the direct term-by-term form.
#include "analysis/bending_moment.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "analysis/run.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

// M(x) summed over every load and reaction: a point load or support acts only beyond its
// position, a couple from its position on.
double direct_moment(const BeamModel& model, double x) {
    double m = model.cantilever_count > 0 ? -model.reaction[1] : 0.0;
    for (int k = 1; k <= model.pt_count; ++k) {
        if (model.pt_loc[k] < x) m -= model.pt_mag[k] * (x - model.pt_loc[k]);
    }
    for (int k = 1; k <= model.di_count; ++k) {
        const double a = model.di_start[k];
        const double b = model.di_end[k];
        if (!(a < x) || b == a) continue;
        const double w1 = model.di_mag_start[k];
        const double s = (model.di_mag_end[k] - w1) / (b - a);
        const double u = x - a;
        const double v = x - b;
        m -= w1 * u * u / 2.0 + s * u * u * u / 6.0;
        if (v > 0.0) m += w1 * v * v / 2.0 + s * (u * v * v / 2.0 - v * v * v / 3.0);
    }
    for (int k = 1; k <= model.mo_count; ++k) {
        if (model.mo_loc[k] <= x) m -= model.mo_mag[k];
    }
    for (int j = 1; j <= model.reaction_count; ++j) {
        const double past = x - model.reaction_pos[j];
        if (past > 0.0) m += past * model.reaction[model.cantilever_count + j];
    }
    return m;
}

TEST(ComputeMoments, AgreesWithDirectEvaluation) {
    const std::string beams[] = {
        // Every load kind, one distributed load given end first, loads at both ends, overhangs.
        "simp@30.3 simp@201.7 pt:750@0 pt:-420@118.9 di:3.5:11@12.5:97.25 di:-2:6@150:240 "
        "di:2:9@180:60 mo:8000@61.1 mo:-2500@240",
        // Two fixed ends, and every term exactly on a grid point, where point loads and supports
        // act only from the next point on and couples already at their own.
        "cant@#0 simp@#7001 cant@#10000 pt:500@#2500 pt:300@#7001 di:5:1@#1000:#4000 "
        "mo:4000@#5000 mo:-1500@#1",
        // A fractional resolution on a coarse grid, several terms starting between two points.
        "N:10.5 cant@0 pt:100@13 pt:100@14 di:50:70@30:31 di:0:8@40:230 mo:1000@#5",
    };
    for (const std::string& description : beams) {
        SCOPED_TRACE(description);
        BeamModel model = beam(description);
        ASSERT_TRUE(run_calculation(model, {}).ok());
        std::vector<double> direct;
        for (float i = 0.0f; i <= model.resolution; i += 1.0f) {
            direct.push_back(direct_moment(model, i * (kLength / model.resolution)));
        }
        const double largest = largest_magnitude(direct, static_cast<int>(direct.size()) - 1);
        for (std::size_t i = 0; i < direct.size(); ++i) {
            ASSERT_NEAR(model.moment[i], direct[i], 1e-9 * largest) << "grid point " << i;
        }
        EXPECT_NEAR(std::abs(model.max_moment), largest, 1e-9 * largest);
    }
}

}  // namespace
}  // namespace flexley
