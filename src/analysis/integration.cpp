// Slope and deflection (both times E x I) by trapezoidal integration of the moment array.
#include "analysis/integration.h"

#include <cmath>

#include "model/grid.h"

namespace flexley {

namespace {

constexpr int kPassesPerQuestion = 100;

// Steps along the grid: d(slope)/dx = moment, d(deflection)/dx = -slope. Each new value updates
// the signed maxima, slope first, at position index x beam_length / N.
class Integrator {
  public:
    explicit Integrator(BeamModel& model)
        : model_(model), grid_(analysis_grid(model)), half_h_(grid_.spacing / 2.0) {}

    const Grid& grid() const { return grid_; }

    void forward(int from, int to) {
        auto& slope = model_.slope;
        auto& deflection = model_.deflection;
        const auto& moment = model_.moment;
        for (int k = from; k <= to; ++k) {
            slope[k] = slope[k - 1] + (moment[k - 1] + moment[k]) * half_h_;
            track(model_.max_slope, model_.max_slope_at, slope[k], k);
            deflection[k] = deflection[k - 1] - (slope[k - 1] + slope[k]) * half_h_;
            track(model_.max_deflection, model_.max_deflection_at, deflection[k], k);
        }
    }

    void backward(int from, int to) {
        auto& slope = model_.slope;
        auto& deflection = model_.deflection;
        const auto& moment = model_.moment;
        for (int k = from; k >= to; --k) {
            slope[k - 1] = slope[k] - (moment[k - 1] + moment[k]) * half_h_;
            track(model_.max_slope, model_.max_slope_at, slope[k - 1], k - 1);
            deflection[k - 1] = deflection[k] + (slope[k - 1] + slope[k]) * half_h_;
            track(model_.max_deflection, model_.max_deflection_at, deflection[k - 1], k - 1);
        }
    }

  private:
    void track(double& maximum, double& position, double value, int index) const {
        if (std::abs(value) > std::abs(maximum)) {
            maximum = value;
            position = index * model_.beam_length / grid_.intervals;
        }
    }

    BeamModel& model_;
    Grid grid_;
    double half_h_;
};

}  // namespace

void integrate_from_cantilever(BeamModel& model, double x0) {
    Integrator integrator(model);
    const Grid& grid = integrator.grid();
    const int p = nearest_index(x0 / model.beam_length * grid.intervals);
    model.max_slope = 0.0;
    model.max_deflection = 0.0;
    model.slope[p] = 0.0;
    model.deflection[p] = 0.0;
    integrator.backward(p, 1);
    integrator.forward(p + 1, grid.last);
}

bool integrate_between_supports(BeamModel& model, double p1, double p2,
                                const ContinueQuestion& continue_iterating) {
    Integrator integrator(model);
    const Grid& grid = integrator.grid();
    const double a = p1 < p2 ? p1 : p2;
    const double b = p1 < p2 ? p2 : p1;
    const int ia = nearest_index(a * grid.intervals / model.beam_length);
    const int ib = nearest_index(b * grid.intervals / model.beam_length);
    model.slope[ia] = 0.0;
    model.deflection[ia] = 0.0;
    int passes = 0;
    while (true) {
        ++passes;
        model.max_slope = 0.0;
        model.max_deflection = 0.0;
        integrator.forward(ia + 1, ib);
        const double miss = model.deflection[ib];
        // An absolute tolerance, in the E x I scaled units of the stored deflection. On a light
        // beam the first pass, from a zero slope, already meets it with every deflection wrong, so
        // the starting slope is always corrected once before the test is trusted.
        if (passes > 1 && -1.0 < miss && miss < 1.0) break;
        // Adding a constant slope c lowers the deflection at b by c x (b - a), exactly.
        if (miss != 0.0) model.slope[ia] += miss / (b - a);
        if (passes == kPassesPerQuestion) {
            if (!continue_iterating || !continue_iterating()) return false;
            passes = 0;
        }
    }
    integrator.backward(ia, 1);
    integrator.forward(ib + 1, grid.last);
    return true;
}

}  // namespace flexley
