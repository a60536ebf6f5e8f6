// Crout LU decomposition with implicit partial pivoting, and the solve that uses it.
#include "analysis/lu_decomposition.h"

#include <cmath>
#include <utility>

#include "analysis/run.h"

namespace flexley {

namespace {

// Implicit pivoting compares candidates as if every row had been scaled to a largest entry of 1.
bool set_row_scales(ReactionSystem& system) {
    for (int i = 1; i <= system.order; ++i) {
        double big = 0.0;
        for (int j = 1; j <= system.order; ++j) {
            if (std::abs(system.a[i][j]) > big) big = std::abs(system.a[i][j]);
        }
        if (big == 0.0) return false;
        system.scale[i] = 1.0 / big;
    }
    return true;
}

// Reduces column j and returns the row of its pivot; a later row wins a tie.
int reduce_column(ReactionSystem& system, int j) {
    auto& a = system.a;
    for (int i = 1; i < j; ++i) {
        double sum = a[i][j];
        for (int k = 1; k < i; ++k) {
            sum -= a[i][k] * a[k][j];
        }
        a[i][j] = sum;
    }
    double big = 0.0;
    int imax = j;
    for (int i = j; i <= system.order; ++i) {
        double sum = a[i][j];
        for (int k = 1; k < j; ++k) {
            sum -= a[i][k] * a[k][j];
        }
        a[i][j] = sum;
        const double merit = system.scale[i] * std::abs(sum);
        if (merit >= big) {
            big = merit;
            imax = i;
        }
    }
    return imax;
}

}  // namespace

Status lu_decompose(ReactionSystem& system) {
    if (!set_row_scales(system)) return Status::failure(kSingularMatrix);
    auto& a = system.a;
    const int q = system.order;
    for (int j = 1; j <= q; ++j) {
        const int imax = reduce_column(system, j);
        if (imax != j) {
            for (int k = 1; k <= q; ++k) {
                std::swap(a[imax][k], a[j][k]);
            }
            system.scale[imax] = system.scale[j];
        }
        system.pivot[j] = imax;
        // An exact zero only: a tiny pivot is kept, so a nearly singular beam still gives numbers.
        if (a[j][j] == 0.0) return Status::failure(kSingularMatrix);
        for (int i = j + 1; i <= q; ++i) {
            a[i][j] /= a[j][j];
        }
    }
    return Status::success();
}

void lu_solve(const ReactionSystem& system, Table<double, kMaxUnknowns>& b) {
    const auto& a = system.a;
    const int q = system.order;
    for (int i = 1; i <= q; ++i) {
        const int p = system.pivot[i];
        double sum = b[p];
        b[p] = b[i];
        for (int k = 1; k < i; ++k) {
            sum -= a[i][k] * b[k];
        }
        b[i] = sum;
    }
    for (int i = q; i >= 1; --i) {
        double sum = b[i];
        for (int k = i + 1; k <= q; ++k) {
            sum -= a[i][k] * b[k];
        }
        b[i] = sum / a[i][i];
    }
}

}  // namespace flexley
