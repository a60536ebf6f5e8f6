// The support reaction system: ordering the active supports and assembling their linear system.
#include "analysis/reaction_system.h"

#include <utility>

#include "analysis/load_integrals.h"
#include "analysis/table_bounds.h"
#include "model/features.h"

namespace flexley {

namespace {

// <u>^3 / 6: the deflection integral of a unit force at distance u behind the point.
double cubic_past(double u) {
    return u > 0.0 ? u * u * u / 6.0 : 0.0;
}

void swap_supports(BeamModel& model, int i, int j) {
    std::swap(model.reaction_pos[i], model.reaction_pos[j]);
    std::swap(model.reaction_feature[i], model.reaction_feature[j]);
}

// Statically determinate part plus zero deflection at supports 3..n relative to the line through
// supports 1 and 2.
void assemble_simple(const BeamModel& model, ReactionSystem& system) {
    const int n = model.reaction_count;
    const auto& x = model.reaction_pos;
    for (int k = 1; k <= n; ++k) {
        system.a[1][k] = 1.0;
        system.a[2][k] = x[k] - x[1];
    }
    for (int j = 3; j <= n; ++j) {
        const double t = (x[j] - x[1]) / (x[2] - x[1]);
        for (int k = 1; k <= n; ++k) {
            system.a[j][k] = cubic_past(x[j] - x[k]) + cubic_past(x[1] - x[k]) * (t - 1.0) -
                             cubic_past(x[2] - x[k]) * t;
        }
    }
}

// Unknowns Mc_1, R_1..R_n: zero deflection at every support but the fixed one at x = 0.
void assemble_one_cantilever(const BeamModel& model, ReactionSystem& system) {
    const int n = model.reaction_count;
    const auto& x = model.reaction_pos;
    system.a[2][1] = 1.0;
    for (int k = 1; k <= n; ++k) {
        system.a[1][k + 1] = 1.0;
        system.a[2][k + 1] = x[k];
    }
    for (int r = 3; r <= n + 1; ++r) {
        const int s = r - 1;
        system.a[r][1] = -x[s] * x[s] / 2.0;
        for (int k = 1; k <= n; ++k) {
            system.a[r][k + 1] = cubic_past(x[s] - x[k]);
        }
    }
}

// Unknowns Mc_1, Mc_2, R_1..R_n: zero slope at x = L, zero deflection at supports 2..n.
void assemble_two_cantilevers(const BeamModel& model, ReactionSystem& system) {
    const int n = model.reaction_count;
    const auto& x = model.reaction_pos;
    const double length = model.beam_length;
    system.a[2][1] = 1.0;
    system.a[2][2] = 1.0;
    system.a[3][1] = -length;
    for (int k = 1; k <= n; ++k) {
        system.a[1][k + 2] = 1.0;
        system.a[2][k + 2] = x[k];
        system.a[3][k + 2] = (length - x[k]) * (length - x[k]) / 2.0;
    }
    for (int r = 4; r <= n + 2; ++r) {
        const int s = r - 2;
        system.a[r][1] = -x[s] * x[s] / 2.0;
        for (int k = 1; k <= n; ++k) {
            system.a[r][k + 2] = cubic_past(x[s] - x[k]);
        }
    }
}

void assemble_right_hand_side(BeamModel& model, const Table<double, kMaxSupports>& f) {
    const int n = model.reaction_count;
    const int m = model.cantilever_count;
    auto& b = model.reaction;
    b[1] = total_load(model);
    b[2] = load_moment_about(model, model.reaction_pos[1]);
    if (m == 0) {
        const auto& x = model.reaction_pos;
        for (int j = 3; j <= n; ++j) {
            const double t = (x[j] - x[1]) / (x[2] - x[1]);
            b[j] = f[1] - f[j] - (f[1] - f[2]) * t;
        }
        return;
    }
    if (m == 2) b[3] = -load_slope_integral(model, model.beam_length);
    for (int r = m + 2; r <= n + m; ++r) {
        b[r] = -f[r - m];
    }
}

}  // namespace

void collect_supports(BeamModel& model) {
    int n = 0;
    int m = 0;
    for (int f = 1; f <= used_entries(model.feature_count, kMaxFeatures) && n < kMaxSupports; ++f) {
        const auto feature = lookup_feature(model, f);
        if (!feature || feature->kind != FeatureKind::support) continue;
        const int k = feature->index;
        if (k > kMaxSupports || model.su_loc[k] < 0.0) continue;
        ++n;
        model.reaction_pos[n] = model.su_loc[k];
        model.reaction_feature[n] = static_cast<int16_t>(f);
        if (model.su_type[k] == "cant") {
            ++m;
            if (m == 1) {
                for (int i = n; i > 1; --i) {
                    swap_supports(model, i, i - 1);
                }
            }
        } else if (m == 2) {
            swap_supports(model, n, n - 1);
        }
    }
    // With two fixed supports the system needs the one at x = 0 first, whichever was added first.
    if (m == 2 && model.reaction_pos[1] != 0.0) swap_supports(model, 1, n);
    model.reaction_count = static_cast<int16_t>(n);
    model.cantilever_count = static_cast<int16_t>(m);
}

void assemble_reaction_system(BeamModel& model, ReactionSystem& system) {
    const int n = model.reaction_count;
    const int m = model.cantilever_count;
    system.order = n + m;
    for (auto& row : system.a) {
        row.fill(0.0);
    }

    Table<double, kMaxSupports> f{};
    for (int j = 1; j <= n; ++j) {
        f[j] = load_deflection_integral(model, model.reaction_pos[j]);
    }

    if (m == 0) {
        assemble_simple(model, system);
    } else if (m == 1) {
        assemble_one_cantilever(model, system);
    } else {
        assemble_two_cantilevers(model, system);
    }
    assemble_right_hand_side(model, f);
}

}  // namespace flexley
