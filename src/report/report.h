// The text report: the chosen sections of the beam, its loads and its results as printed lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/beam_model.h"

namespace flexley {

inline constexpr const char* kInvalidReportLocation = "Invalid value in 'Location' text box.";

// What the report dialog chose to print.
struct ReportOptions {
    std::string title{};
    bool beam_properties = false;
    bool load_text = false;
    bool support_reactions = false;  // only on the support lines of the load configuration
    bool maximum_values = false;
    bool point_values = false;
    std::string point_text{};     // the position as typed, printed unchanged in the heading
    double point_position = 0.0;  // the same position in base units, checked by the caller
    bool point_in_feet = true;    // the "ft." choice of an English model
};

// The report's lines without line breaks. The header and the closing date line come only when
// a section is chosen or the title is not empty; otherwise the report has no lines at all.
// Reactions, maximum values and values at a point come only from results of the beam as it is.
std::vector<std::string> report_lines(const BeamModel& model, const ReportOptions& options,
                                      std::string_view date_text);

}  // namespace flexley
