// Reading a load configuration file, current or version 1, into the beam model.
#include <algorithm>
#include <array>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "files/load_file.h"
#include "files/text_fields.h"
#include "files/text_file.h"
#include "model/beam_settings.h"
#include "model/display.h"
#include "model/feature_rules.h"
#include "model/features.h"
#include "model/limits.h"

namespace flexley {
namespace {

// A genuine file of 170 features is a few kilobytes; anything this large is not a load file.
constexpr std::size_t kMaxLoadFileBytes = 1 << 20;

constexpr std::array<std::string_view, 4> kLocationUnits{"", "in", "ft", "m"};
constexpr std::array<std::string_view, 6> kMagnitudeUnits{"", "lb", "N", "kg", "pi", "pf"};

template <std::size_t N>
bool is_one_of(std::string_view text, const std::array<std::string_view, N>& allowed) {
    return std::find(allowed.begin(), allowed.end(), text) != allowed.end();
}

template <std::size_t N>
std::string listed(const std::array<std::string_view, N>& allowed) {
    std::string list;
    for (std::string_view unit : allowed)
        list += (list.empty() ? "\"" : ", \"") + std::string(unit) + "\"";
    return list;
}

std::string_view kind_name(FeatureKind kind) {
    switch (kind) {
        case FeatureKind::point_load:
            return "point load";
        case FeatureKind::distributed_load:
            return "distributed load";
        case FeatureKind::moment:
            return "moment";
        case FeatureKind::support:
            return "support";
    }
    return "";
}

std::string entry_name(FeatureRef feature) {
    return std::string(kind_name(feature.kind)) + " " + std::to_string(feature.index);
}

// Reads the lines in the order of the format. Each value is checked before it is stored, so the
// model never holds a count beyond its table, a value that is not finite, a feature the geometry
// rules refuse or a feature-list entry that names no table entry; the caller empties the beam
// after any fault. A fault leaves its line number and reason in problem().
class LoadReader {
  public:
    LoadReader(std::string_view text, BeamModel& model, LoadFormat format)
        : lines_(text), m_(model), format_(format) {}

    bool read() {
        return read_counts() && read_scales() && read_settings() &&
               read_concentrated(FeatureKind::point_load, m_.pt_count, m_.pt_mag, m_.pt_loc,
                                 check_point_load) &&
               read_distributed_loads() &&
               read_concentrated(FeatureKind::moment, m_.mo_count, m_.mo_mag, m_.mo_loc,
                                 check_moment) &&
               read_supports() && read_feature_list() && every_entry_named() && nothing_follows();
    }

    const std::string& problem() const { return problem_; }

    // The note about a resolution brought into range; empty when the file's value was kept.
    const std::string& resolution_note() const { return resolution_note_; }

    std::vector<LabelGroup> label_groups() const {
        std::vector<LabelGroup> groups;
        for (int n = 1; n <= m_.feature_count; ++n) {
            const bool removed = is_removed(m_, *parse_feature_entry(m_.feature_list[n]));
            groups.push_back(removed ? LabelGroup::placeholder : LabelGroup::feature);
        }
        return groups;
    }

  private:
    bool fail_at(int line, const std::string& reason) {
        problem_ = "Line " + std::to_string(line) + ": " + reason;
        return false;
    }
    bool fail(const std::string& reason) { return fail_at(line_number_, reason); }

    bool read_counts() {
        // A drawn counter above its count would deny labels to the next features added; below
        // it, the next redraw would label entries a second time.
        return open_line("the counts line", 10) &&
               read_count(m_.pt_count, kMaxPointLoads, "the number of point loads") &&
               read_count(m_.di_count, kMaxDistributedLoads, "the number of distributed loads") &&
               read_count(m_.mo_count, kMaxMoments, "the number of moments") &&
               read_count(m_.su_count, kMaxSupports, "the number of supports") &&
               read_count(m_.pt_drawn, m_.pt_count, "the number of point loads drawn") &&
               read_count(m_.di_drawn, m_.di_count, "the number of distributed loads drawn") &&
               read_count(m_.mo_drawn, m_.mo_count, "the number of moments drawn") &&
               read_count(m_.su_drawn, m_.su_count, "the number of supports drawn") &&
               read_count(m_.feature_count, kMaxFeatures, "the number of features") &&
               read_empty("the tenth field of the counts line") && close_line();
    }

    bool read_scales() {
        return open_line("the beam length line", 7) && read_length() &&
               read_double(m_.pt_maxmag, "the largest point load") &&
               read_double(m_.pt_scalemag, "the point load scale") &&
               read_double(m_.mo_maxmag, "the largest moment") &&
               read_double(m_.mo_scalemag, "the moment scale") &&
               read_double(m_.di_maxmag, "the largest distributed load") &&
               read_double(m_.di_scalemag, "the distributed load scale") && close_line();
    }

    bool read_settings() {
        const bool version1 = format_ == LoadFormat::version1;
        const bool read = open_line("the section properties line", version1 ? 5 : 6) &&
                          read_single(m_.fibre_distance, "the fibre distance") &&
                          read_single(m_.moment_of_inertia, "the moment of inertia") &&
                          read_single(m_.elastic_modulus, "the modulus of elasticity") &&
                          read_resolution() &&
                          read_boolean(m_.positions_in_inches, "the positions-in-inches flag");
        if (!read) return false;
        if (version1) {
            m_.metric_units = false;  // version 1 knew only English units
            return close_line();
        }
        return read_boolean(m_.metric_units, "the metric units flag") && close_line();
    }

    // Point loads and moments share their line: magnitude, then position.
    template <std::size_t N>
    bool read_concentrated(FeatureKind kind, int count, std::array<double, N>& magnitudes,
                           std::array<double, N>& positions,
                           Status (*check)(const BeamModel&, double, double)) {
        for (int j = 1; j <= count; ++j) {
            const bool read = open_entry({kind, j}, 2) &&
                              read_double(magnitudes[j], of("magnitude")) &&
                              read_double(positions[j], of("position")) && close_line();
            if (!read || !obeys_rules({kind, j}, check(m_, magnitudes[j], positions[j]))) {
                return false;
            }
        }
        return true;
    }

    bool read_distributed_loads() {
        for (int j = 1; j <= m_.di_count; ++j) {
            const bool read = open_entry({FeatureKind::distributed_load, j},
                                         format_ == LoadFormat::version1 ? 3 : 4) &&
                              read_intensities(j) && read_double(m_.di_start[j], of("start")) &&
                              read_double(m_.di_end[j], of("end")) && close_line();
            if (!read ||
                !obeys_rules({FeatureKind::distributed_load, j},
                             check_distributed_load(m_, m_.di_start[j], m_.di_end[j],
                                                    m_.di_mag_start[j], m_.di_mag_end[j]))) {
                return false;
            }
        }
        return true;
    }

    // Version 1 loads were uniform: one intensity serves both ends.
    bool read_intensities(int j) {
        if (format_ == LoadFormat::version1) {
            if (!read_double(m_.di_mag_start[j], of("intensity"))) return false;
            m_.di_mag_end[j] = m_.di_mag_start[j];
            return true;
        }
        return read_double(m_.di_mag_start[j], of("start intensity")) &&
               read_double(m_.di_mag_end[j], of("end intensity"));
    }

    // The support table grows as it is read, so that each support is checked against those
    // before it, and a fault is reported on the line of the second of two supports.
    bool read_supports() {
        const int count = m_.su_count;
        for (int j = 1; j <= count; ++j) {
            m_.su_count = static_cast<int16_t>(j);
            const bool read = open_entry({FeatureKind::support, j}, 2) &&
                              read_double(m_.su_loc[j], of("position")) &&
                              read_string(m_.su_type[j], of("kind")) && close_line();
            if (!read || !obeys_rules({FeatureKind::support, j},
                                      check_support(m_, m_.su_loc[j], m_.su_type[j], j))) {
                return false;
            }
        }
        return true;
    }

    // A removed feature (zero magnitude, negative support position) occupies nothing and acts on
    // nothing, so only a support's kind is still checked.
    bool obeys_rules(FeatureRef feature, const Status& rules) {
        if (rules.ok() || (is_removed(m_, feature) && rules.message() != kUnknownSupportKind)) {
            return true;
        }
        return fail(rules.detail());
    }

    bool read_feature_list() {
        for (int n = 1; n <= m_.feature_count; ++n) {
            if (!(open_line("feature " + std::to_string(n), 3) && read_feature_entry(n) &&
                  read_unit(m_.loc_unit[n], kLocationUnits, of("position unit")) &&
                  read_unit(m_.mag_unit[n], kMagnitudeUnits, of("magnitude unit")) &&
                  close_line())) {
                return false;
            }
        }
        return true;
    }

    bool read_feature_entry(int n) {
        std::string entry;
        if (!read_string(entry, of("entry"))) return false;
        const std::optional<FeatureRef> feature = parse_feature_entry(entry);
        const std::string quoted_entry = "\"" + entry + "\"";
        if (!feature) {
            return fail(of("entry") + ", " + quoted_entry +
                        ", is not a kind code (pt, di, mo, su) followed by a table index.");
        }
        const int count = table_count(m_, feature->kind);
        if (feature->index > count) {
            return fail(of("entry") + ", " + quoted_entry + ", names " + entry_name(*feature) +
                        ", but the file holds " + std::to_string(count) + ".");
        }
        if (const int first = feature_number_of(m_, *feature); first != 0) {
            return fail(of("entry") + ", " + quoted_entry + ", names " + entry_name(*feature) +
                        ", which feature " + std::to_string(first) + " already names.");
        }
        m_.feature_list[n] = std::move(entry);
        return true;
    }

    // A table entry that no feature names acts on the beam but can never be edited or removed.
    bool every_entry_named() {
        int line = 3;
        for (auto kind : {FeatureKind::point_load, FeatureKind::distributed_load,
                          FeatureKind::moment, FeatureKind::support}) {
            for (int j = 1; j <= table_count(m_, kind); ++j) {
                ++line;
                if (feature_number_of(m_, {kind, j}) == 0) {
                    return fail_at(line, entry_name({kind, j}) + " is named by no feature.");
                }
            }
        }
        return true;
    }

    bool nothing_follows() {
        if (lines_.only_blank_lines_left()) return true;
        return fail_at(line_number_ + 1, "text follows the last feature.");
    }

    template <std::size_t N>
    bool read_unit(std::string& target, const std::array<std::string_view, N>& allowed,
                   const std::string& name) {
        std::string unit;
        if (!read_string(unit, name)) return false;
        if (!is_one_of(unit, allowed)) {
            return fail(name + ", \"" + unit + "\", is not one of " + listed(allowed) + ".");
        }
        target = std::move(unit);
        return true;
    }

    // "the position of support 2": a field of the entry on the current line.
    std::string of(std::string_view field) const {
        return "the " + std::string(field) + " of " + what_;
    }

    bool open_entry(FeatureRef feature, std::size_t fields) {
        return open_line(entry_name(feature), fields);
    }

    // `what` names the line in reasons; a valid line has exactly `fields` fields.
    bool open_line(std::string what, std::size_t fields) {
        ++line_number_;
        what_ = std::move(what);
        expected_fields_ = fields;
        const std::optional<std::string_view> line = lines_.next_line();
        if (!line) return fail("the file ends where " + what_ + " was expected.");
        std::optional<std::vector<Field>> split = split_fields(*line);
        if (!split) {
            return fail(what_ +
                        " has a quoted text without its closing quote, or with more "
                        "text after it before the next comma.");
        }
        fields_ = std::move(*split);
        next_field_ = 0;
        return true;
    }

    // Every field of the line must have been taken: a longer line is a different layout.
    bool close_line() {
        if (next_field_ == fields_.size()) return true;
        return fail(what_ + " has " + std::to_string(fields_.size()) + " fields instead of " +
                    std::to_string(expected_fields_) + ".");
    }

    std::optional<Field> take(const std::string& name) {
        if (next_field_ >= fields_.size()) {
            fail(name + " is missing.");
            return std::nullopt;
        }
        return fields_[next_field_++];
    }

    // The field's text as the file spells it, for reasons.
    static std::string spelled(const Field& field) {
        return field.quoted ? "\"" + std::string(field.text) + "\"" : std::string(field.text);
    }

    bool read_empty(const std::string& name) {
        const std::optional<Field> field = take(name);
        if (!field) return false;
        if (field->quoted || !field->text.empty()) {
            return fail(name + ", " + spelled(*field) + ", must be empty.");
        }
        return true;
    }

    bool read_double(double& target, const std::string& name) {
        const std::optional<Field> field = take(name);
        if (!field) return false;
        const std::optional<double> value = parse_number(*field);
        if (!value) return fail(name + ", " + spelled(*field) + ", is not a number.");
        target = *value;
        return true;
    }

    bool read_single(float& target, const std::string& name) {
        double value = 0.0;
        if (!read_double(value, name)) return false;
        if (std::fabs(value) > FLT_MAX) {
            return fail(name + ", " + number_text(value) + ", is too large for single precision.");
        }
        target = static_cast<float>(value);
        return true;
    }

    bool read_count(int16_t& target, int max, const std::string& name) {
        double value = 0.0;
        if (!read_double(value, name)) return false;
        if (value < 0 || value > max || std::floor(value) != value) {
            return fail(name + ", " + number_text(value) + ", is not a whole number from 0 to " +
                        std::to_string(max) + ".");
        }
        target = static_cast<int16_t>(value);
        return true;
    }

    // Every position is scaled by the length when drawn and analysed.
    bool read_length() {
        double value = 0.0;
        if (!read_double(value, "the beam length")) return false;
        if (value <= 0) return fail("the beam length, " + number_text(value) + ", is not above 0.");
        m_.beam_length = value;
        return true;
    }

    // The result arrays are sized for the accepted range and the grid counts whole intervals;
    // older files can hold other values, which are brought to the nearest allowed one.
    bool read_resolution() {
        float value = 0.0f;
        if (!read_single(value, "the resolution")) return false;
        m_.resolution = nearest_allowed_resolution(value);
        if (m_.resolution != value) {
            resolution_note_ = "The file's resolution of " + number_text(value, 7) +
                               " was changed to " + number_text(m_.resolution, 7) +
                               ", the nearest whole number from 10 to 200,000.";
        }
        return true;
    }

    bool read_boolean(bool& target, const std::string& name) {
        const std::optional<Field> field = take(name);
        if (!field) return false;
        const std::optional<bool> value = parse_boolean(*field);
        if (!value) return fail(name + ", " + spelled(*field) + ", is neither #TRUE# nor #FALSE#.");
        target = *value;
        return true;
    }

    bool read_string(std::string& target, const std::string& name) {
        const std::optional<Field> field = take(name);
        if (!field) return false;
        const std::optional<std::string_view> value = parse_string(*field);
        if (!value) return fail(name + ", " + spelled(*field) + ", is not a quoted text.");
        target = std::string(*value);
        return true;
    }

    LineCursor lines_;
    BeamModel& m_;
    LoadFormat format_;
    int line_number_ = 0;
    std::string what_;
    std::size_t expected_fields_ = 0;
    std::vector<Field> fields_;
    std::size_t next_field_ = 0;
    std::string problem_;
    std::string resolution_note_;
};

LoadResult failed(BeamModel& model, std::string detail) {
    clear_beam(model);
    return {Status::failure(kFileAccessError).with_detail(std::move(detail)), {}};
}

}  // namespace

LoadResult read_load_configuration_text(std::string_view text, BeamModel& model,
                                        LoadFormat format) {
    clear_beam(model);
    LoadReader reader(text, model, format);
    if (!reader.read()) return failed(model, reader.problem());
    if (!reader.resolution_note().empty()) {
        return {Status::warning(reader.resolution_note()), reader.label_groups()};
    }
    return {Status::success(), reader.label_groups()};
}

LoadResult read_load_configuration(const std::string& path, BeamModel& model, LoadFormat format) {
    const TextRead file = read_text_file(path, kMaxLoadFileBytes);
    if (!file.ok()) return failed(model, file.problem);
    return read_load_configuration_text(file.text, model, format);
}

}  // namespace flexley
