// Beams and file texts shared by the load file tests, and the checks a read model must pass.
#include "sample_beams.h"

#include <algorithm>
#include <cmath>
#include <vector>

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

// Every number the file stores, for the finiteness check.
std::vector<double> stored_numbers(const BeamModel& m) {
    std::vector<double> v{m.beam_length,       m.pt_maxmag,       m.pt_scalemag, m.mo_maxmag,
                          m.mo_scalemag,       m.di_maxmag,       m.di_scalemag, m.fibre_distance,
                          m.moment_of_inertia, m.elastic_modulus, m.resolution};
    for (int j = 1; j <= m.pt_count; ++j)
        v.insert(v.end(), {m.pt_mag[j], m.pt_loc[j]});
    for (int j = 1; j <= m.di_count; ++j) {
        v.insert(v.end(), {m.di_mag_start[j], m.di_mag_end[j], m.di_start[j], m.di_end[j]});
    }
    for (int j = 1; j <= m.mo_count; ++j)
        v.insert(v.end(), {m.mo_mag[j], m.mo_loc[j]});
    for (int j = 1; j <= m.su_count; ++j)
        v.push_back(m.su_loc[j]);
    return v;
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

std::string validity_problem(const BeamModel& m) {
    const bool counts_fit = m.pt_count >= 0 && m.pt_count <= kMaxPointLoads && m.di_count >= 0 &&
                            m.di_count <= kMaxDistributedLoads && m.mo_count >= 0 &&
                            m.mo_count <= kMaxMoments && m.su_count >= 0 &&
                            m.su_count <= kMaxSupports && m.feature_count >= 0 &&
                            m.feature_count <= kMaxFeatures;
    if (!counts_fit) return "count outside its table";
    if (m.pt_drawn < 0 || m.pt_drawn > m.pt_count || m.di_drawn < 0 || m.di_drawn > m.di_count ||
        m.mo_drawn < 0 || m.mo_drawn > m.mo_count || m.su_drawn < 0 || m.su_drawn > m.su_count) {
        return "drawn counter outside its count";
    }
    for (int n = 1; n <= m.feature_count; ++n) {
        if (!lookup_feature(m, n)) return "feature " + std::to_string(n) + " names no table entry";
    }
    const std::vector<double> numbers = stored_numbers(m);
    if (!std::all_of(numbers.begin(), numbers.end(), [](double x) { return std::isfinite(x); })) {
        return "a number is not finite";
    }
    if (!resolution_in_range(m.resolution)) return "resolution out of range";
    if (!(m.beam_length > 0)) return "beam length not positive";
    return {};
}

std::string cleared_problem(const BeamModel& m) {
    const bool counts = m.pt_count == 0 && m.di_count == 0 && m.mo_count == 0 && m.su_count == 0 &&
                        m.feature_count == 0 && m.pt_drawn == 0 && m.di_drawn == 0 &&
                        m.mo_drawn == 0 && m.su_drawn == 0;
    const bool scales = m.pt_maxmag == 0 && m.pt_scalemag == 0 && m.mo_maxmag == 0 &&
                        m.mo_scalemag == 0 && m.di_maxmag == 0 && m.di_scalemag == 0;
    const bool settings = m.resolution == kDefaultResolution && m.moment_of_inertia == 0 &&
                          m.elastic_modulus == 0 && m.fibre_distance == 0;
    if (!counts || !scales || !settings) return "beam not cleared";
    for (int n = 1; n <= kMaxFeatures; ++n) {
        if (!m.feature_list[n].empty() || !m.loc_unit[n].empty() || !m.mag_unit[n].empty()) {
            return "feature list not cleared";
        }
    }
    return {};
}

}  // namespace flexley
