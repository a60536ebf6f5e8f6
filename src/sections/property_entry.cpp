// The beam properties dialog's units for I, E and c, and the reading of what the user typed there.
#include "sections/property_entry.h"

#include <cfloat>
#include <optional>
#include <string>

#include "model/typed_number.h"

namespace flexley {
namespace {

constexpr double kMillimetreFourthPerMetreFourth = 1e12;
constexpr double kPascalPerGigapascal = 1e9;
constexpr double kMillimetrePerMetre = 1e3;

std::string property_name(SectionProperty property) {
    switch (property) {
        case SectionProperty::moment_of_inertia:
            return "the moment of inertia (I)";
        case SectionProperty::elastic_modulus:
            return "the modulus of elasticity (E)";
        case SectionProperty::fibre_distance:
            return "the distance to the farthest fiber (c)";
    }
    return {};
}

}  // namespace

// Each direction divides or multiplies by a power of ten exactly as written, never by its
// reciprocal, so a typed 8000000 mm^4 becomes 8E-06 m^4 and not a neighbour of it.
double shown_section_value(SectionProperty property, double model_value, bool metric_units) {
    if (!metric_units) return model_value;
    switch (property) {
        case SectionProperty::moment_of_inertia:
            return model_value * kMillimetreFourthPerMetreFourth;
        case SectionProperty::elastic_modulus:
            return model_value / kPascalPerGigapascal;
        case SectionProperty::fibre_distance:
            return model_value * kMillimetrePerMetre;
    }
    return model_value;
}

double model_section_value(SectionProperty property, double shown_value, bool metric_units) {
    if (!metric_units) return shown_value;
    switch (property) {
        case SectionProperty::moment_of_inertia:
            return shown_value / kMillimetreFourthPerMetreFourth;
        case SectionProperty::elastic_modulus:
            return shown_value * kPascalPerGigapascal;
        case SectionProperty::fibre_distance:
            return shown_value / kMillimetrePerMetre;
    }
    return shown_value;
}

double default_shown_elastic_modulus(bool metric_units) {
    return metric_units ? 210.0 : 30000000.0;
}

SectionEntry section_entry(SectionProperty property, std::string_view typed, bool metric_units) {
    const std::optional<double> shown = typed_number(typed);
    if (!shown || *shown < 0.0) {
        return {
            Status::failure("Enter a number of zero or more for " + property_name(property) + "."),
            0.0};
    }
    const double value = model_section_value(property, *shown, metric_units);
    if (value > FLT_MAX) {
        return {Status::failure("The value of " + property_name(property) + " is too large."), 0.0};
    }
    return {Status::success(), value};
}

}  // namespace flexley
