// The standard section chooser's values: a listed section's I and c shown in the beam's units.
#pragma once

#include <string>
#include <string_view>

namespace flexley {

// The chooser shows every value with this many significant figures while it is open.
inline constexpr int kChooserSigFigs = 6;

// A listed section's I and c are in in^4 and in (flag "E") or in 10^6 mm^4 and mm (flag "M");
// the chooser shows them in the same two forms, so a metric I stays in 10^6 mm^4.
double english_to_chooser_metric_i(double inch4);
double english_to_chooser_metric_c(double inch);
double chooser_metric_to_english_i(double mega_mm4);
double chooser_metric_to_english_c(double mm);

struct AxisTexts {
    std::string moment_of_inertia;
    std::string fibre_distance;
};

// What the chooser shows for one axis of a section whose unit flag is `unit_flag`. A section in
// another unit system is converted and rounded to `sig_figs`; any other section shows the file's
// own text, digits and all. A value that must be converted but is not a number shows empty.
AxisTexts shown_axis_values(std::string_view moment_of_inertia, std::string_view fibre_distance,
                            std::string_view unit_flag, bool metric_units, int sig_figs);

// The text the beam properties dialog's I box receives from the chooser's shown I: that box takes
// metric I in mm^4, so a metric value is multiplied by 10^6; an English one is copied as it is.
// An empty shown I (nothing selected) stays empty.
std::string properties_moment_of_inertia(std::string_view shown, bool metric_units);

}  // namespace flexley
