// Assembles the text report in its fixed order: header, chosen sections, closing date line.
#include "report/report.h"

#include "analysis/results_state.h"
#include "model/display.h"
#include "model/units.h"
#include "report/layout.h"
#include "report/load_configuration.h"
#include "report/maximum_values.h"
#include "report/point_values.h"

namespace flexley {

namespace {

using Lines = std::vector<std::string>;

std::string item(std::string_view text) {
    return kItemIndent + std::string(text);
}

void append_header(Lines& lines, const std::string& title) {
    lines.emplace_back();
    lines.emplace_back();
    lines.push_back(section_rule(114));
    lines.push_back(std::string(43, ' ') + "FLEXLEY V2.2 REPORT");
    lines.push_back(section_rule(114));
    lines.emplace_back();
    lines.push_back(kSectionIndent + title);
    lines.emplace_back();
    lines.push_back(section_rule(114));
}

void append_beam_properties(Lines& lines, const BeamModel& model) {
    open_section(lines, "BEAM PROPERTIES", 31);
    lines.emplace_back();
    const int figs = model.sig_figs;
    const double inertia = model.moment_of_inertia;
    const double modulus = model.elastic_modulus;
    const double fibre = model.fibre_distance;
    if (model.metric_units) {
        // The metric length is shown exactly as entered, whatever the display precision.
        lines.push_back(item("Beam Length = ") + number_text(model.beam_length) + " m");
        lines.push_back(item("Moment of Inertia = ") + display_number(inertia * 1e12, figs) +
                        " mm^4");
        lines.push_back(item("Modulus of Elasticity = ") + display_number(modulus / 1e6, figs) +
                        " MPa");
        lines.push_back(item("Distance From Neutral Axis to Furthest Fiber = ") +
                        display_number(fibre * 1e3, figs) + " mm");
        return;
    }
    lines.push_back(item("Beam Length = ") + display_number(model.beam_length / kFootToInch, figs) +
                    " ft.");
    lines.push_back(item("Moment of Inertia = ") + display_number(inertia, figs) + " in^4");
    lines.push_back(item("Modulus of Elasticity = ") + display_number(modulus, figs) + " psi");
    lines.push_back(item("Distance From Neutral Axis to Furthest Fiber = ") +
                    display_number(fibre, figs) + " in.");
}

void append_maximum_values(Lines& lines, const BeamModel& model) {
    open_section(lines, "MAXIMUM VALUES", 29);
    lines.emplace_back();
    const auto texts = maximum_value_texts(model).texts;
    lines.push_back(item("Maximum Bending Moment = ") + texts.moment + " at x=" + texts.moment_at);
    lines.push_back(item("Maximum Bending Stress = ") + texts.stress + " at x=" + texts.stress_at);
    lines.push_back(item("Maximum Deflection = ") + texts.deflection +
                    " at x=" + texts.deflection_at);
    lines.push_back(item("Maximum Slope = ") + texts.slope + " at x=" + texts.slope_at);
}

const char* typed_unit(bool metric, bool in_feet) {
    if (metric) return " m)";
    return in_feet ? " ft.)" : " in.)";
}

void append_point_values(Lines& lines, const BeamModel& model, const ReportOptions& options) {
    open_section(lines,
                 "VALUES AT A POINT (X=" + options.point_text +
                     typed_unit(model.metric_units, options.point_in_feet),
                 46);
    lines.emplace_back();
    const auto texts = point_value_texts(model, options.point_position);
    lines.push_back(item("Bending Moment=") + texts.moment);
    lines.push_back(item("Bending Stress=") + texts.stress);
    lines.push_back(item("Deflection=") + texts.deflection);
    lines.push_back(item("Slope=") + texts.slope);
}

}  // namespace

std::vector<std::string> report_lines(const BeamModel& model, const ReportOptions& options,
                                      std::string_view date_text) {
    Lines lines;
    // Results of an earlier beam are never printed: without a run since the last change the
    // report leaves out the reactions and the result sections.
    const bool results = results_available(model);
    const bool maximum_values = options.maximum_values && results;
    const bool point_values = options.point_values && results;
    const bool any_section =
        options.beam_properties || options.load_text || maximum_values || point_values;
    if (!any_section && options.title.empty()) return lines;
    append_header(lines, options.title);
    if (options.beam_properties) append_beam_properties(lines, model);
    if (options.load_text) {
        append_load_configuration(lines, model, options.support_reactions && results);
    }
    if (maximum_values) append_maximum_values(lines, model);
    if (point_values) append_point_values(lines, model, options);
    lines.emplace_back();
    lines.emplace_back();
    lines.emplace_back(date_text);
    return lines;
}

}  // namespace flexley
