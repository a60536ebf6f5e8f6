// Beams and file texts shared by the load file tests, and the checks a read model must pass.
#include "sample_beams.h"

#include <cmath>

#include "model/features.h"
#include "model/limits.h"

namespace flexley {
namespace {

void mark_all_drawn(BeamModel& m) {
    m.pt_drawn = m.pt_count;
    m.di_drawn = m.di_count;
    m.mo_drawn = m.mo_count;
    m.su_drawn = m.su_count;
}

template <typename T>
std::string differs(const char* name, int index, const T& a, const T& b) {
    if (a == b) return {};
    return std::string(name) + "[" + std::to_string(index) + "] differs";
}

int count_of(const BeamModel& m, FeatureKind kind) {
    switch (kind) {
        case FeatureKind::point_load:
            return m.pt_count;
        case FeatureKind::distributed_load:
            return m.di_count;
        case FeatureKind::moment:
            return m.mo_count;
        case FeatureKind::support:
            return m.su_count;
    }
    return 0;
}

std::string scalar_difference(const BeamModel& a, const BeamModel& b) {
    const std::pair<const char*, bool> checks[] = {
        {"pt_count", a.pt_count == b.pt_count},
        {"di_count", a.di_count == b.di_count},
        {"mo_count", a.mo_count == b.mo_count},
        {"su_count", a.su_count == b.su_count},
        {"drawn counters", a.pt_drawn == b.pt_drawn && a.di_drawn == b.di_drawn &&
                               a.mo_drawn == b.mo_drawn && a.su_drawn == b.su_drawn},
        {"feature_count", a.feature_count == b.feature_count},
        {"beam_length", a.beam_length == b.beam_length},
        {"scale values", a.pt_maxmag == b.pt_maxmag && a.pt_scalemag == b.pt_scalemag &&
                             a.mo_maxmag == b.mo_maxmag && a.mo_scalemag == b.mo_scalemag &&
                             a.di_maxmag == b.di_maxmag && a.di_scalemag == b.di_scalemag},
        {"section properties", a.fibre_distance == b.fibre_distance &&
                                   a.moment_of_inertia == b.moment_of_inertia &&
                                   a.elastic_modulus == b.elastic_modulus},
        {"resolution", a.resolution == b.resolution},
        {"unit flags",
         a.positions_in_inches == b.positions_in_inches && a.metric_units == b.metric_units},
    };
    for (const auto& [name, same] : checks) {
        if (!same) return std::string(name) + " differs";
    }
    return {};
}

std::string table_difference(const BeamModel& a, const BeamModel& b) {
    std::string d;
    for (int j = 1; j <= a.pt_count && d.empty(); ++j) {
        d = differs("pt_mag", j, a.pt_mag[j], b.pt_mag[j]) +
            differs("pt_loc", j, a.pt_loc[j], b.pt_loc[j]);
    }
    for (int j = 1; j <= a.di_count && d.empty(); ++j) {
        d = differs("di_mag_start", j, a.di_mag_start[j], b.di_mag_start[j]) +
            differs("di_mag_end", j, a.di_mag_end[j], b.di_mag_end[j]) +
            differs("di_start", j, a.di_start[j], b.di_start[j]) +
            differs("di_end", j, a.di_end[j], b.di_end[j]);
    }
    for (int j = 1; j <= a.mo_count && d.empty(); ++j) {
        d = differs("mo_mag", j, a.mo_mag[j], b.mo_mag[j]) +
            differs("mo_loc", j, a.mo_loc[j], b.mo_loc[j]);
    }
    for (int j = 1; j <= a.su_count && d.empty(); ++j) {
        d = differs("su_loc", j, a.su_loc[j], b.su_loc[j]) +
            differs("su_type", j, a.su_type[j], b.su_type[j]);
    }
    for (int n = 1; n <= a.feature_count && d.empty(); ++n) {
        d = differs("feature_list", n, a.feature_list[n], b.feature_list[n]) +
            differs("loc_unit", n, a.loc_unit[n], b.loc_unit[n]) +
            differs("mag_unit", n, a.mag_unit[n], b.mag_unit[n]);
    }
    return d;
}

bool all_finite(const BeamModel& m) {
    bool finite = std::isfinite(m.beam_length) && std::isfinite(m.pt_maxmag) &&
                  std::isfinite(m.pt_scalemag) && std::isfinite(m.mo_maxmag) &&
                  std::isfinite(m.mo_scalemag) && std::isfinite(m.di_maxmag) &&
                  std::isfinite(m.di_scalemag) && std::isfinite(m.fibre_distance) &&
                  std::isfinite(m.moment_of_inertia) && std::isfinite(m.elastic_modulus);
    for (int j = 1; j <= m.pt_count; ++j) {
        finite = finite && std::isfinite(m.pt_mag[j]) && std::isfinite(m.pt_loc[j]);
    }
    for (int j = 1; j <= m.di_count; ++j) {
        finite = finite && std::isfinite(m.di_mag_start[j]) && std::isfinite(m.di_mag_end[j]) &&
                 std::isfinite(m.di_start[j]) && std::isfinite(m.di_end[j]);
    }
    for (int j = 1; j <= m.mo_count; ++j) {
        finite = finite && std::isfinite(m.mo_mag[j]) && std::isfinite(m.mo_loc[j]);
    }
    for (int j = 1; j <= m.su_count; ++j)
        finite = finite && std::isfinite(m.su_loc[j]);
    return finite;
}

bool tables_empty(const BeamModel& m) {
    bool empty = true;
    for (int j = 1; j <= kMaxPointLoads; ++j) {
        empty = empty && m.pt_mag[j] == 0 && m.pt_loc[j] == 0 && m.mo_mag[j] == 0 &&
                m.mo_loc[j] == 0 && m.di_mag_start[j] == 0 && m.di_mag_end[j] == 0 &&
                m.di_start[j] == 0 && m.di_end[j] == 0;
    }
    for (int j = 1; j <= kMaxSupports; ++j)
        empty = empty && m.su_loc[j] == 0 && m.su_type[j].empty();
    for (int n = 1; n <= kMaxFeatures; ++n) {
        empty =
            empty && m.feature_list[n].empty() && m.loc_unit[n].empty() && m.mag_unit[n].empty();
    }
    return empty;
}

}  // namespace

const char* const kWorkedExampleText =
    "1,0,0,2,1,0,0,2,3,\r\n"
    "5,2000,0,0,0,0,0\r\n"
    "0,0,0,10000,#TRUE#,#TRUE#\r\n"
    "2000,2\r\n"
    "0,\"simp\"\r\n"
    "5,\"simp\"\r\n"
    "\"pt1\",\"m\",\"N\"\r\n"
    "\"su1\",\"\",\"\"\r\n"
    "\"su2\",\"\",\"\"\r\n";

const char* const kVersion1Text =
    "2,1,0,1,2,1,0,1,4,\r\n"
    "120,500,0,0,0,12,0\r\n"
    "6,100,29000000,10000,#FALSE#\r\n"
    "0,30\r\n"
    "500,60\r\n"
    "12,0,120\r\n"
    "0,\"simp\"\r\n"
    "\"pt1\",\"ft\",\"lb\"\r\n"
    "\"pt2\",\"ft\",\"lb\"\r\n"
    "\"di1\",\"ft\",\"pf\"\r\n"
    "\"su1\",\"ft\",\"lb\"\r\n";

std::unique_ptr<BeamModel> worked_example_beam() {
    auto m = std::make_unique<BeamModel>();
    m->metric_units = true;
    m->beam_length = 5;
    m->positions_in_inches = true;
    add_point_load(*m, 2000, 2, "m", "N");
    add_support(*m, 0, "simp", "", "");
    add_support(*m, 5, "simp", "", "");
    mark_all_drawn(*m);
    return m;
}

std::unique_ptr<BeamModel> english_beam() {
    auto m = std::make_unique<BeamModel>();
    m->beam_length = 240;
    m->resolution = 20000;
    m->moment_of_inertia = 340.5f;
    m->elastic_modulus = 29000000;
    m->fibre_distance = 6.25f;
    add_point_load(*m, 1000, 60, "ft", "lb");
    add_point_load(*m, -250.5, 120.25, "in", "lb");
    add_distributed_load(*m, 0, 120, 10, 30, "ft", "pf");
    add_distributed_load(*m, 120, 240, -5.5, -5.5, "in", "pi");
    add_moment(*m, 1200, 180, "ft", "pf");
    add_moment(*m, -300, 30, "in", "pi");
    add_support(*m, 0, "cant", "", "lb");
    add_support(*m, 240, "simp", "ft", "lb");
    add_support(*m, 100, "simp", "in", "lb");
    for (int number : {2, 4, 6, 9})
        remove_feature(*m, number);
    mark_all_drawn(*m);
    return m;
}

std::unique_ptr<BeamModel> metric_beam() {
    auto m = std::make_unique<BeamModel>();
    m->metric_units = true;
    m->beam_length = 5;
    m->positions_in_inches = true;
    m->moment_of_inertia = 8.5e-5f;
    m->elastic_modulus = 2.1e11f;
    m->fibre_distance = 0.15f;
    add_point_load(*m, 2000, 2.5, "m", "N");
    add_point_load(*m, 98.0665, 1, "m", "kg");
    add_point_load(*m, 1.5e-7, 4.75, "m", "N");
    add_distributed_load(*m, 0, 2, 1500, 0, "m", "N");
    add_distributed_load(*m, 3, 4, 0, -200, "m", "kg");
    add_moment(*m, 500, 4, "m", "N");
    add_support(*m, 0, "simp", "", "");
    add_support(*m, 5, "simp", "", "");
    add_support(*m, 3, "simp", "", "");
    for (int number : {1, 9})
        remove_feature(*m, number);
    mark_all_drawn(*m);
    return m;
}

std::string file_fields_difference(const BeamModel& a, const BeamModel& b) {
    std::string difference = scalar_difference(a, b);
    return difference.empty() ? table_difference(a, b) : difference;
}

std::string validity_problem(const BeamModel& m) {
    if (m.pt_count < 0 || m.pt_count > kMaxPointLoads || m.di_count < 0 ||
        m.di_count > kMaxDistributedLoads || m.mo_count < 0 || m.mo_count > kMaxMoments ||
        m.su_count < 0 || m.su_count > kMaxSupports || m.feature_count < 0 ||
        m.feature_count > kMaxFeatures) {
        return "count outside its table";
    }
    if (m.pt_drawn < 0 || m.pt_drawn > m.pt_count || m.di_drawn < 0 || m.di_drawn > m.di_count ||
        m.mo_drawn < 0 || m.mo_drawn > m.mo_count || m.su_drawn < 0 || m.su_drawn > m.su_count) {
        return "drawn counter outside its count";
    }
    for (int n = 1; n <= m.feature_count; ++n) {
        const auto feature = parse_feature_entry(m.feature_list[n]);
        if (!feature || feature->index > count_of(m, feature->kind)) {
            return "feature " + std::to_string(n) + " names no table entry";
        }
    }
    if (!all_finite(m)) return "a number is not finite";
    if (!resolution_in_range(m.resolution)) return "resolution out of range";
    if (!(m.beam_length > 0)) return "beam length not positive";
    return {};
}

std::string cleared_problem(const BeamModel& m) {
    if (m.pt_count || m.di_count || m.mo_count || m.su_count || m.feature_count) {
        return "counts not cleared";
    }
    if (m.pt_drawn || m.di_drawn || m.mo_drawn || m.su_drawn) return "drawn counters not cleared";
    if (m.pt_maxmag || m.pt_scalemag || m.mo_maxmag || m.mo_scalemag || m.di_maxmag ||
        m.di_scalemag) {
        return "scale values not cleared";
    }
    if (m.resolution != kDefaultResolution || m.moment_of_inertia || m.elastic_modulus ||
        m.fibre_distance) {
        return "settings not cleared";
    }
    if (!tables_empty(m)) return "tables not cleared";
    return {};
}

}  // namespace flexley
