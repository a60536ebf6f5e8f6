// Bending moment and bending stress at every grid point, from the loads and the solved reactions.
//
// M(x) is a cubic polynomial between consecutive points where a load or reaction starts to act.
// The grid is walked in ascending order; whenever a term becomes active, the cubic is rebuilt from
// the closed forms of all active terms, expanded about that grid point, and every point is then
// evaluated on its own by Horner. Nothing is summed from point to point, so rounding does not
// accumulate along the beam, and the work is O(N + features x segments) instead of O(N x features).
#include "analysis/bending_moment.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/grid.h"
#include "analysis/load_integrals.h"
#include "analysis/table_bounds.h"

namespace flexley {

namespace {

enum class TermKind { point_load, load_start, load_end, couple, reaction };

struct Term {
    double at;
    // A couple already acts at its own point, every other term only beyond it: M jumps at a
    // couple's grid point while a point load's kink shows from the next point on.
    bool inclusive;
    TermKind kind;
    int index;
};

constexpr int kMaxTerms = kMaxPointLoads + 2 * kMaxDistributedLoads + kMaxMoments + kMaxSupports;

struct TermList {
    std::array<Term, kMaxTerms> terms;
    int count = 0;

    // A position that is not a number never compares as passed, so its term never acts; leaving
    // it out also keeps the sort's ordering strict.
    void add(double at, bool inclusive, TermKind kind, int index) {
        if (!std::isnan(at)) terms[count++] = Term{at, inclusive, kind, index};
    }
};

bool is_active(const Term& term, double x) {
    return term.inclusive ? term.at <= x : term.at < x;
}

// Sorted this way, a term can only become active once every term before it is.
bool activates_before(const Term& left, const Term& right) {
    if (left.at != right.at) return left.at < right.at;
    return left.inclusive && !right.inclusive;
}

// Terms that cannot change the moment (removed loads, loads of zero length) are left out.
TermList collect_terms(const BeamModel& model) {
    TermList list;
    for (int k = 1; k <= used_entries(model.pt_count, kMaxPointLoads); ++k) {
        if (model.pt_mag[k] != 0.0) list.add(model.pt_loc[k], false, TermKind::point_load, k);
    }
    for (int k = 1; k <= used_entries(model.di_count, kMaxDistributedLoads); ++k) {
        const double a = model.di_start[k];
        const double b = model.di_end[k];
        if (!has_extent(a, b) || (model.di_mag_start[k] == 0.0 && model.di_mag_end[k] == 0.0)) {
            continue;
        }
        list.add(a, false, TermKind::load_start, k);
        // The end term only counts once the start is passed too.
        list.add(b < a ? a : b, false, TermKind::load_end, k);
    }
    for (int k = 1; k <= used_entries(model.mo_count, kMaxMoments); ++k) {
        if (model.mo_mag[k] != 0.0) list.add(model.mo_loc[k], true, TermKind::couple, k);
    }
    for (int j = 1; j <= used_entries(model.reaction_count, kMaxSupports); ++j) {
        list.add(model.reaction_pos[j], false, TermKind::reaction, j);
    }
    std::sort(list.terms.begin(), list.terms.begin() + list.count, activates_before);
    return list;
}

struct Cubic {
    double c0 = 0.0, c1 = 0.0, c2 = 0.0, c3 = 0.0;

    double at(double t) const { return ((c3 * t + c2) * t + c1) * t + c0; }

    // Adds coefficient x (d + t)^power, power 1..3.
    void add_power(double coefficient, double d, int power) {
        if (power == 1) {
            c0 += coefficient * d;
            c1 += coefficient;
        } else if (power == 2) {
            c0 += coefficient * d * d;
            c1 += 2.0 * coefficient * d;
            c2 += coefficient;
        } else {
            c0 += coefficient * d * d * d;
            c1 += 3.0 * coefficient * d * d;
            c2 += 3.0 * coefficient * d;
            c3 += coefficient;
        }
    }
};

// Adds one active term, written as a polynomial in t = x - x0.
void add_term(const BeamModel& model, const Term& term, double x0, Cubic& cubic) {
    const int k = term.index;
    switch (term.kind) {
        case TermKind::point_load:
            cubic.add_power(-model.pt_mag[k], x0 - model.pt_loc[k], 1);
            break;
        case TermKind::load_start: {
            const double a = model.di_start[k];
            const double w1 = model.di_mag_start[k];
            const double s = (model.di_mag_end[k] - w1) / (model.di_end[k] - a);
            cubic.add_power(-w1 / 2.0, x0 - a, 2);
            cubic.add_power(-s / 6.0, x0 - a, 3);
            break;
        }
        case TermKind::load_end: {
            // w1 v^2/2 + s ((x - a) v^2/2 - v^3/3) with x - a = v + (b - a), v = x - b.
            const double a = model.di_start[k];
            const double b = model.di_end[k];
            const double w1 = model.di_mag_start[k];
            const double s = (model.di_mag_end[k] - w1) / (b - a);
            cubic.add_power((w1 + s * (b - a)) / 2.0, x0 - b, 2);
            cubic.add_power(s / 6.0, x0 - b, 3);
            break;
        }
        case TermKind::couple:
            cubic.c0 -= model.mo_mag[k];
            break;
        case TermKind::reaction:
            cubic.add_power(model.reaction[model.cantilever_count + k], x0 - model.reaction_pos[k],
                            1);
            break;
    }
}

Cubic build_cubic(const BeamModel& model, const TermList& list, int active, double x0) {
    Cubic cubic;
    for (int i = 0; i < active; ++i) {
        add_term(model, list.terms[i], x0, cubic);
    }
    // The moment reaction of the fixed support at the left end acts everywhere, x = 0 included.
    if (model.cantilever_count > 0) cubic.c0 -= model.reaction[1];
    return cubic;
}

}  // namespace

void compute_moments(BeamModel& model) {
    const TermList list = collect_terms(model);
    const Grid grid = analysis_grid(model);
    model.max_moment = 0.0;
    int active = 0;
    double x0 = 0.0;
    Cubic cubic;
    for (int i = 0; i <= grid.last; ++i) {
        const double x = grid.x(i);
        int now_active = active;
        while (now_active < list.count && is_active(list.terms[now_active], x)) {
            ++now_active;
        }
        if (i == 0 || now_active != active) {
            active = now_active;
            x0 = x;
            cubic = build_cubic(model, list, active, x0);
        }
        const double m = cubic.at(x - x0);
        model.moment[i] = m;
        if (std::abs(m) > std::abs(model.max_moment)) {
            model.max_moment = m;
            model.max_moment_at = x;
        }
    }
}

void compute_stresses(BeamModel& model) {
    const Grid grid = analysis_grid(model);
    const double c = model.fibre_distance;
    const double inertia = model.moment_of_inertia;
    model.max_stress = 0.0;
    for (int i = 0; i <= grid.last; ++i) {
        const double stress = c * model.moment[i] / inertia;
        model.stress[i] = stress;
        if (std::abs(stress) > model.max_stress) {
            model.max_stress = std::abs(stress);
            model.max_stress_at = grid.spacing * i;
        }
    }
}

}  // namespace flexley
