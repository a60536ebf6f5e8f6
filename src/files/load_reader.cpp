// Reading a load configuration file, current or version 1, into the beam model.
#include <algorithm>
#include <array>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "files/load_file.h"
#include "files/text_fields.h"
#include "files/text_file.h"
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

// Reads the lines in the order of the format. Each value is checked before it is stored, so the
// model never holds a count beyond its table, a value that is not finite or a feature-list entry
// that names no table entry; the caller empties the beam after any fault.
class LoadReader {
  public:
    LoadReader(std::string_view text, BeamModel& model, LoadFormat format)
        : lines_(text), m_(model), format_(format) {}

    bool read() {
        return read_counts() && read_scales() && read_settings() &&
               read_concentrated(m_.pt_count, m_.pt_mag, m_.pt_loc) && read_distributed_loads() &&
               read_concentrated(m_.mo_count, m_.mo_mag, m_.mo_loc) && read_supports() &&
               read_feature_list() && lines_.only_blank_lines_left();
    }

    std::vector<LabelGroup> label_groups() const {
        std::vector<LabelGroup> groups;
        for (int n = 1; n <= m_.feature_count; ++n) {
            const bool removed = is_removed(m_, *parse_feature_entry(m_.feature_list[n]));
            groups.push_back(removed ? LabelGroup::placeholder : LabelGroup::feature);
        }
        return groups;
    }

  private:
    bool read_counts() {
        // A drawn counter above its count would deny labels to the next features added; below
        // it, the next redraw would label entries a second time.
        return open_line() && read_count(m_.pt_count, kMaxPointLoads) &&
               read_count(m_.di_count, kMaxDistributedLoads) &&
               read_count(m_.mo_count, kMaxMoments) && read_count(m_.su_count, kMaxSupports) &&
               read_count(m_.pt_drawn, m_.pt_count) && read_count(m_.di_drawn, m_.di_count) &&
               read_count(m_.mo_drawn, m_.mo_count) && read_count(m_.su_drawn, m_.su_count) &&
               read_count(m_.feature_count, kMaxFeatures) && read_empty() && close_line();
    }

    bool read_scales() {
        return open_line() && read_length() && read_double(m_.pt_maxmag) &&
               read_double(m_.pt_scalemag) && read_double(m_.mo_maxmag) &&
               read_double(m_.mo_scalemag) && read_double(m_.di_maxmag) &&
               read_double(m_.di_scalemag) && close_line();
    }

    bool read_settings() {
        const bool read = open_line() && read_single(m_.fibre_distance) &&
                          read_single(m_.moment_of_inertia) && read_single(m_.elastic_modulus) &&
                          read_resolution() && read_boolean(m_.positions_in_inches);
        if (!read) return false;
        if (format_ == LoadFormat::version1) {
            m_.metric_units = false;  // version 1 knew only English units
            return close_line();
        }
        return read_boolean(m_.metric_units) && close_line();
    }

    // Point loads and moments share their line: magnitude, then position.
    template <std::size_t N>
    bool read_concentrated(int count, std::array<double, N>& magnitudes,
                           std::array<double, N>& positions) {
        for (int j = 1; j <= count; ++j) {
            if (!(open_line() && read_double(magnitudes[j]) && read_double(positions[j]) &&
                  close_line())) {
                return false;
            }
        }
        return true;
    }

    bool read_distributed_loads() {
        for (int j = 1; j <= m_.di_count; ++j) {
            if (!(open_line() && read_intensities(j) && read_double(m_.di_start[j]) &&
                  read_double(m_.di_end[j]) && close_line())) {
                return false;
            }
        }
        return true;
    }

    // Version 1 loads were uniform: one intensity serves both ends.
    bool read_intensities(int j) {
        if (format_ == LoadFormat::version1) {
            if (!read_double(m_.di_mag_start[j])) return false;
            m_.di_mag_end[j] = m_.di_mag_start[j];
            return true;
        }
        return read_double(m_.di_mag_start[j]) && read_double(m_.di_mag_end[j]);
    }

    bool read_supports() {
        int cantilevers = 0;
        for (int j = 1; j <= m_.su_count; ++j) {
            if (!(open_line() && read_double(m_.su_loc[j]) && read_support_type(j) &&
                  close_line())) {
                return false;
            }
            if (m_.su_type[j] == "cant" && m_.su_loc[j] >= 0) ++cantilevers;
        }
        // The reaction system has room for the moment unknowns of two fixed ends only.
        return cantilevers <= kMaxCantilevers;
    }

    bool read_support_type(int j) {
        std::string type;
        if (!read_string(type) || (type != "simp" && type != "cant")) return false;
        m_.su_type[j] = std::move(type);
        return true;
    }

    bool read_feature_list() {
        for (int n = 1; n <= m_.feature_count; ++n) {
            if (!(open_line() && read_feature_entry(n) &&
                  read_unit(m_.loc_unit[n], kLocationUnits) &&
                  read_unit(m_.mag_unit[n], kMagnitudeUnits) && close_line())) {
                return false;
            }
        }
        return true;
    }

    bool read_feature_entry(int n) {
        std::string entry;
        if (!read_string(entry)) return false;
        const std::optional<FeatureRef> feature = parse_feature_entry(entry);
        if (!feature || feature->index > table_count(m_, feature->kind)) return false;
        m_.feature_list[n] = std::move(entry);
        return true;
    }

    template <std::size_t N>
    bool read_unit(std::string& target, const std::array<std::string_view, N>& allowed) {
        std::string unit;
        if (!read_string(unit) || !is_one_of(unit, allowed)) return false;
        target = std::move(unit);
        return true;
    }

    bool open_line() {
        const std::optional<std::string_view> line = lines_.next_line();
        if (!line) return false;
        std::optional<std::vector<Field>> fields = split_fields(*line);
        if (!fields) return false;
        fields_ = std::move(*fields);
        next_field_ = 0;
        return true;
    }

    // Every field of the line must have been taken: a longer line is a different layout.
    bool close_line() const { return next_field_ == fields_.size(); }

    std::optional<Field> take() {
        if (next_field_ >= fields_.size()) return std::nullopt;
        return fields_[next_field_++];
    }

    bool read_empty() {
        const std::optional<Field> field = take();
        return field && !field->quoted && field->text.empty();
    }

    bool read_double(double& target) {
        const std::optional<Field> field = take();
        const std::optional<double> value = field ? parse_number(*field) : std::nullopt;
        if (!value) return false;
        target = *value;
        return true;
    }

    bool read_single(float& target) {
        double value = 0.0;
        if (!read_double(value) || std::fabs(value) > FLT_MAX) return false;
        target = static_cast<float>(value);
        return true;
    }

    bool read_count(int16_t& target, int max) {
        double value = 0.0;
        if (!read_double(value) || value < 0 || value > max || std::floor(value) != value) {
            return false;
        }
        target = static_cast<int16_t>(value);
        return true;
    }

    // Every position is scaled by the length when drawn and analysed.
    bool read_length() {
        double value = 0.0;
        if (!read_double(value) || value <= 0) return false;
        m_.beam_length = value;
        return true;
    }

    // The result arrays are sized for the accepted range; the engine must never run outside it.
    bool read_resolution() {
        float value = 0.0f;
        if (!read_single(value) || !resolution_in_range(value)) return false;
        m_.resolution = value;
        return true;
    }

    bool read_boolean(bool& target) {
        const std::optional<Field> field = take();
        const std::optional<bool> value = field ? parse_boolean(*field) : std::nullopt;
        if (!value) return false;
        target = *value;
        return true;
    }

    bool read_string(std::string& target) {
        const std::optional<Field> field = take();
        const std::optional<std::string_view> value = field ? parse_string(*field) : std::nullopt;
        if (!value) return false;
        target = std::string(*value);
        return true;
    }

    LineCursor lines_;
    BeamModel& m_;
    LoadFormat format_;
    std::vector<Field> fields_;
    std::size_t next_field_ = 0;
};

LoadResult failed(BeamModel& model) {
    clear_beam(model);
    return {Status::failure(kFileAccessError), {}};
}

}  // namespace

LoadResult read_load_configuration_text(std::string_view text, BeamModel& model,
                                        LoadFormat format) {
    clear_beam(model);
    LoadReader reader(text, model, format);
    if (!reader.read()) return failed(model);
    return {Status::success(), reader.label_groups()};
}

LoadResult read_load_configuration(const std::string& path, BeamModel& model, LoadFormat format) {
    const std::optional<std::string> text = read_text_file(path, kMaxLoadFileBytes);
    if (!text) return failed(model);
    return read_load_configuration_text(*text, model, format);
}

}  // namespace flexley
