// The beam properties dialog's units for I, E and c, and the reading of what the user typed there.
#pragma once

#include <string_view>

#include "model/status.h"

namespace flexley {

enum class SectionProperty { moment_of_inertia, elastic_modulus, fibre_distance };

// English values are shown as the model holds them (in^4, psi, in). Metric ones are shown in
// mm^4, GPa and mm, since values in m^4 and Pa would be unreadably small or large.
double shown_section_value(SectionProperty property, double model_value, bool metric_units);
double model_section_value(SectionProperty property, double shown_value, bool metric_units);

// The modulus a beam gets when the dialog opens without one, as shown: steel, 30000000 psi or
// 210 GPa, so a student can calculate before looking E up.
double default_shown_elastic_modulus(bool metric_units);

struct SectionEntry {
    Status status = Status::success();
    double model_value = 0.0;
};

// The model value of a typed display value. Refused, naming the property, for an empty text, one
// that is not a number, a negative value (a section property cannot be negative) and a value too
// large for the single precision the model keeps.
SectionEntry section_entry(SectionProperty property, std::string_view typed, bool metric_units);

}  // namespace flexley
