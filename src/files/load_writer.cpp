// Writing a beam as a load configuration file.
#include <initializer_list>
#include <string>
#include <string_view>

#include "files/load_file.h"
#include "files/text_fields.h"
#include "files/text_file.h"
#include "model/display.h"

namespace flexley {
namespace {

// Doubles keep 15 significant digits; the single-precision fields carry no more than 7.
std::string double_text(double value) {
    return number_text(value, 15);
}
std::string single_text(float value) {
    return number_text(value, 7);
}

// One line: the fields joined by commas, then the line end.
void write_line(std::string& out, std::initializer_list<std::string_view> fields) {
    bool first = true;
    for (std::string_view field : fields) {
        if (!first) out += ',';
        first = false;
        out += field;
    }
    out += kLineEnd;
}

void write_header(const BeamModel& m, std::string& out) {
    // The tenth field of the counts line is always empty: the line ends in a comma.
    write_line(out,
               {std::to_string(m.pt_count), std::to_string(m.di_count), std::to_string(m.mo_count),
                std::to_string(m.su_count), std::to_string(m.pt_drawn), std::to_string(m.di_drawn),
                std::to_string(m.mo_drawn), std::to_string(m.su_drawn),
                std::to_string(m.feature_count), ""});
    write_line(out,
               {double_text(m.beam_length), double_text(m.pt_maxmag), double_text(m.pt_scalemag),
                double_text(m.mo_maxmag), double_text(m.mo_scalemag), double_text(m.di_maxmag),
                double_text(m.di_scalemag)});
    write_line(out, {single_text(m.fibre_distance), single_text(m.moment_of_inertia),
                     single_text(m.elastic_modulus), single_text(m.resolution),
                     boolean_text(m.positions_in_inches), boolean_text(m.metric_units)});
}

void write_tables(const BeamModel& m, std::string& out) {
    for (int j = 1; j <= m.pt_count; ++j) {
        write_line(out, {double_text(m.pt_mag[j]), double_text(m.pt_loc[j])});
    }
    for (int j = 1; j <= m.di_count; ++j) {
        write_line(out, {double_text(m.di_mag_start[j]), double_text(m.di_mag_end[j]),
                         double_text(m.di_start[j]), double_text(m.di_end[j])});
    }
    for (int j = 1; j <= m.mo_count; ++j) {
        write_line(out, {double_text(m.mo_mag[j]), double_text(m.mo_loc[j])});
    }
    for (int j = 1; j <= m.su_count; ++j) {
        write_line(out, {double_text(m.su_loc[j]), quoted(m.su_type[j])});
    }
    for (int n = 1; n <= m.feature_count; ++n) {
        write_line(out, {quoted(m.feature_list[n]), quoted(m.loc_unit[n]), quoted(m.mag_unit[n])});
    }
}

}  // namespace

std::string load_configuration_text(const BeamModel& model) {
    std::string out;
    write_header(model, out);
    write_tables(model, out);
    return out;
}

Status write_load_configuration(const BeamModel& model, const std::string& path) {
    return replace_file(path, load_configuration_text(model));
}

}  // namespace flexley
