// BeamModel: the one description of the beam being analysed and of its last analysis results.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/limits.h"

namespace flexley {

// Feature tables are indexed from 1, as feature numbers and table indices are shown to the user;
// slot 0 of every table is unused.
// Exact: closed-form integrals of the piecewise polynomial moment, at every grid point.
// Trapezoid: the moment array integrated twice by the trapezoidal rule, shooting between simple
// supports.
enum class IntegrationMethod { exact, trapezoid };

template <typename T, int Capacity>
using Table = std::array<T, Capacity + 1>;

struct BeamModel {
    BeamModel();

    // Beam and settings.
    bool metric_units = false;
    double beam_length = 0.0;
    bool positions_in_inches = false;
    float resolution = kDefaultResolution;
    int16_t sig_figs = 3;
    float moment_of_inertia = 0.0f;
    float elastic_modulus = 0.0f;
    float fibre_distance = 0.0f;
    // Every change of the beam makes the results stale (false); a completed run makes them valid.
    // A run whose deflection iteration was stopped unconverged leaves them partial instead: the
    // reactions, moments and stresses are complete, slope and deflection are those reached.
    bool results_valid = false;
    bool results_partial = false;
    // How slope and deflection are found; a setting of the program, not saved with the beam.
    IntegrationMethod integration_method = IntegrationMethod::exact;

    // Point loads.
    int16_t pt_count = 0;
    Table<double, kMaxPointLoads> pt_mag{};
    Table<double, kMaxPointLoads> pt_loc{};

    // Linearly varying distributed loads.
    int16_t di_count = 0;
    Table<double, kMaxDistributedLoads> di_start{};
    Table<double, kMaxDistributedLoads> di_end{};
    Table<double, kMaxDistributedLoads> di_mag_start{};
    Table<double, kMaxDistributedLoads> di_mag_end{};

    // Concentrated moments.
    int16_t mo_count = 0;
    Table<double, kMaxMoments> mo_mag{};
    Table<double, kMaxMoments> mo_loc{};

    // Supports; a removed support has position -1, kinds are "simp" and "cant".
    int16_t su_count = 0;
    Table<double, kMaxSupports> su_loc{};
    Table<std::string, kMaxSupports> su_type{};

    // Loading Screen drawing state, kept here because the load file saves it.
    int16_t pt_drawn = 0;
    int16_t di_drawn = 0;
    int16_t mo_drawn = 0;
    int16_t su_drawn = 0;
    double pt_maxmag = 0.0;
    double pt_scalemag = 0.0;
    double mo_maxmag = 0.0;
    double mo_scalemag = 0.0;
    double di_maxmag = 0.0;
    double di_scalemag = 0.0;

    // Feature list: entry n ("pt3", "su12") is the feature the user knows as number n.
    int16_t feature_count = 0;
    Table<std::string, kMaxFeatures> feature_list{};
    Table<std::string, kMaxFeatures> loc_unit{};
    Table<std::string, kMaxFeatures> mag_unit{};

    // Results over grid points 0..N. Slope and deflection hold E x I times the physical values.
    std::vector<double> moment;
    std::vector<double> stress;
    std::vector<double> slope;
    std::vector<double> deflection;
    double max_moment = 0.0;
    double max_moment_at = 0.0;
    double max_stress = 0.0;
    double max_stress_at = 0.0;
    double max_deflection = 0.0;
    double max_deflection_at = 0.0;
    double max_slope = 0.0;
    double max_slope_at = 0.0;

    // Reactions in system order: the first cantilever support first, the second one last.
    // reaction holds the cantilever moment reactions first, then one force per active support.
    int16_t reaction_count = 0;
    int16_t cantilever_count = 0;
    Table<double, kMaxSupports> reaction_pos{};
    Table<int16_t, kMaxSupports> reaction_feature{};
    Table<double, kMaxUnknowns> reaction{};

    // The load file the beam was last saved to or opened from.
    std::string current_file;
    std::string current_dir;
};

}  // namespace flexley
