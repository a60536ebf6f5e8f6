// The thresholds at which moments and stresses change unit, and the scaling of shown results.
#include "report/unit_choice.h"

#include <cmath>

#include "model/display.h"
#include "model/units.h"

namespace flexley {

UnitChoice moment_unit(double magnitude, bool metric) {
    if (metric) return {1.0, " N-m"};
    if (magnitude < 1000.0) return {1.0, " lb.-in."};
    return {kFootToInch, " lb.-ft."};
}

UnitChoice stress_unit(double magnitude, bool metric) {
    if (metric) {
        if (magnitude < 1000.0) return {1.0, " Pa"};
        if (magnitude < 1000000.0) return {1000.0, " kPa"};
        return {1000000.0, " MPa"};
    }
    if (magnitude < 10000.0) return {1.0, " psi"};
    return {1000.0, " ksi"};
}

namespace {

ScaledValue in_unit(double value, UnitChoice choice) {
    return {value / choice.divisor, choice.unit};
}

}  // namespace

ScaledValue moment_value(double moment, bool metric) {
    return in_unit(moment, moment_unit(std::abs(moment), metric));
}

ScaledValue stress_value(double stress, bool metric) {
    return in_unit(stress, stress_unit(std::abs(stress), metric));
}

double stored_ei(const BeamModel& model) {
    return static_cast<double>(model.elastic_modulus) *
           static_cast<double>(model.moment_of_inertia);
}

ScaledValue deflection_value(double stored, double ei, bool metric) {
    if (metric) return {1000.0 * -stored / ei, " mm"};
    return {-stored / ei, " in."};
}

ScaledValue slope_value(double stored, double ei, double pi) {
    return {stored / ei * 180.0 / pi, " degrees"};
}

ScaledValue position_value(double position, bool metric, bool in_inches) {
    if (metric) return {position, " m"};
    if (in_inches) return {position, " in."};
    return {position / kFootToInch, " ft."};
}

std::string value_text(ScaledValue value, int sig_figs) {
    std::string text = display_number(value.value, sig_figs);
    text += value.unit;
    return text;
}

ScaledValue point_load_shown(double magnitude, bool metric, std::string_view mag_unit) {
    if (!metric) return {magnitude, " lb."};
    if (mag_unit == "N") return {magnitude, " N"};
    return {magnitude * kNewtonToKilogram, " kg"};
}

ScaledValue intensity_shown(double magnitude, bool metric, std::string_view mag_unit) {
    if (!metric) {
        // Intensities are held per inch; one entered per foot is shown per foot again.
        if (mag_unit == "pi") return {magnitude, " lb./in."};
        return {magnitude * kFootToInch, " lb./ft."};
    }
    if (mag_unit == "N") return {magnitude, " N/m"};
    return {magnitude * kNewtonToKilogram, " kg/m"};
}

ScaledValue moment_load_shown(double magnitude, bool metric, std::string_view mag_unit) {
    if (!metric) {
        if (mag_unit == "pi") return {magnitude, " lb.-in."};
        return {magnitude / kFootToInch, " lb.-ft."};
    }
    if (mag_unit == "N") return {magnitude, " N-m"};
    return {magnitude * kNewtonToKilogram, " kg-m"};
}

}  // namespace flexley
