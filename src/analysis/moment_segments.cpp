// The bending moment as a cubic polynomial on each run of grid points between two points where a
// load or reaction starts to act.
//
// Whenever a term becomes active the cubic is rebuilt from the closed forms of all active terms,
// expanded about that grid point, so every point can be evaluated on its own: nothing is carried
// from point to point and rounding does not accumulate along the beam.
#include "analysis/moment_segments.h"

#include <algorithm>
#include <cmath>

#include "analysis/load_integrals.h"
#include "analysis/table_bounds.h"
#include "model/grid.h"

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
    int first_active = 0;  // the first grid index at which the term acts
};

struct TermList {
    std::array<Term, kMaxMomentTerms> terms;
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
        if (model.mo_mag[k] != 0.0 && model.mo_loc[k] < model.beam_length) {
            list.add(model.mo_loc[k], true, TermKind::couple, k);
        }
    }
    for (int j = 1; j <= used_entries(model.reaction_count, kMaxSupports); ++j) {
        list.add(model.reaction_pos[j], false, TermKind::reaction, j);
    }
    std::sort(list.terms.begin(), list.terms.begin() + list.count, activates_before);
    return list;
}

// The first grid index at which the term acts (last + 1 when it never does), found from its
// position and confirmed with the same comparison a point-by-point walk would make.
int first_active_index(const Term& term, const Grid& grid) {
    const double estimate = std::floor(term.at / grid.spacing);
    int i = static_cast<int>(std::clamp(estimate, 0.0, static_cast<double>(grid.last + 1)));
    while (i > 0 && is_active(term, grid.x(i - 1)))
        --i;
    while (i <= grid.last && !is_active(term, grid.x(i)))
        ++i;
    return i;
}

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

void Cubic::add_power(double coefficient, double d, int power) {
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

MomentSegments moment_segments(const BeamModel& model) {
    TermList list = collect_terms(model);
    const Grid grid = analysis_grid(model);
    for (int t = 0; t < list.count; ++t) {
        list.terms[t].first_active = first_active_index(list.terms[t], grid);
    }
    MomentSegments segments;
    int active = 0;
    int first = 0;
    while (first <= grid.last) {
        while (active < list.count && list.terms[active].first_active <= first)
            ++active;
        const int next = active < list.count ? list.terms[active].first_active : grid.last + 1;
        const double x0 = grid.x(first);
        segments.items[segments.count++] =
            MomentSegment{first, next - 1, x0, build_cubic(model, list, active, x0)};
        first = next;
    }
    return segments;
}

}  // namespace flexley
