// Beams the engine cannot solve are refused the same way whether a feature is added or read.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "files/load_file.h"
#include "model/feature_rules.h"
#include "model/features.h"

namespace flexley {
namespace {

// pt, mo: magnitude, position; di: start, end, start and end intensity; su: position.
struct Feature {
    const char* kind;  // "pt", "di", "mo" or "su"
    double a, b = 0, c = 0, d = 0;
    const char* support = "simp";
};

struct Refused {
    const char* name;
    Feature feature;
    const char* message;
    const char* reason;
    int line;  // of the entry in the file
};

// A 240 in. beam with a cantilever at 0 and a simple support at 120: supports on lines 4 and 5.
std::unique_ptr<BeamModel> base_beam() {
    auto m = std::make_unique<BeamModel>();
    m->beam_length = 240;
    EXPECT_TRUE(add_support(*m, 0, "cant", "", "lb").ok());
    EXPECT_TRUE(add_support(*m, 120, "simp", "in", "lb").ok());
    return m;
}

Status add(BeamModel& m, const Feature& row) {
    const std::string kind = row.kind;
    if (kind == "pt") return add_point_load(m, row.a, row.b, "in", "lb");
    if (kind == "mo") return add_moment(m, row.a, row.b, "in", "pi");
    if (kind == "di") return add_distributed_load(m, row.a, row.b, row.c, row.d, "in", "pi");
    return add_support(m, row.a, row.support, "in", "lb");
}

// Puts the feature into the tables as a careless writer would, past every rule.
void force(BeamModel& m, const Feature& row) {
    const std::string kind = row.kind;
    int index = 0;
    if (kind == "pt") {
        index = ++m.pt_count;
        m.pt_mag[index] = row.a;
        m.pt_loc[index] = row.b;
    } else if (kind == "mo") {
        index = ++m.mo_count;
        m.mo_mag[index] = row.a;
        m.mo_loc[index] = row.b;
    } else if (kind == "di") {
        index = ++m.di_count;
        m.di_start[index] = row.a;
        m.di_end[index] = row.b;
        m.di_mag_start[index] = row.c;
        m.di_mag_end[index] = row.d;
    } else {
        index = ++m.su_count;
        m.su_loc[index] = row.a;
        m.su_type[index] = row.support;
    }
    m.feature_list[++m.feature_count] = kind + std::to_string(index);
}

class RefusedGeometry : public ::testing::TestWithParam<Refused> {};

TEST_P(RefusedGeometry, IsRefusedByTheCoreAndByTheReader) {
    const Refused& row = GetParam();
    const std::unique_ptr<BeamModel> model = base_beam();
    const Status added = add(*model, row.feature);
    EXPECT_EQ(added.message(), row.message);
    EXPECT_EQ(added.detail(), row.reason);
    EXPECT_EQ(model->feature_count, 2);

    force(*model, row.feature);
    const std::string text = load_configuration_text(*model);
    const LoadResult read = read_load_configuration_text(text, *model);
    EXPECT_EQ(read.status.message(), kFileAccessError);
    EXPECT_EQ(read.status.detail(), "Line " + std::to_string(row.line) + ": " + row.reason);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rules, RefusedGeometry, ::testing::Values(
    Refused{"load_beyond_the_end", {"pt", 100, 300}, kInvalidLoadLocation,
            "point load position 300 lies outside the beam (0 to 240).", 4},
    Refused{"load_before_the_start", {"pt", 100, -0.01}, kInvalidLoadLocation,
            "point load position -0.01 lies outside the beam (0 to 240).", 4},
    Refused{"moment_beyond_the_end", {"mo", 50, 240.5}, kInvalidMomentLocation,
            "moment position 240.5 lies outside the beam (0 to 240).", 4},
    Refused{"distributed_start_at_the_end", {"di", 240, 240, 1, 1}, kInvalidStartingLocation,
            "distributed load start 240 does not lie from 0 to before the beam's end (240).", 4},
    Refused{"distributed_end_before_start", {"di", 100, 50, 1, 1}, kInvalidEndingLocation,
            "distributed load end 50 does not lie beyond its start (100) and at most at the "
            "beam's end (240).", 4},
    Refused{"distributed_end_beyond_the_beam", {"di", 0, 250, 1, 1}, kInvalidEndingLocation,
            "distributed load end 250 does not lie beyond its start (0) and at most at the "
            "beam's end (240).", 4},
    Refused{"support_beyond_the_end", {"su", 300}, kInvalidSupportLocation,
            "support position 300 lies outside the beam (0 to 240).", 6},
    Refused{"cantilever_mid_span", {"su", 60, 0, 0, 0, "cant"}, kCantileverAtEndsOnly,
            "cantilever support at 60 is not at an end of the beam (0 or 240).", 6},
    Refused{"support_on_a_support", {"su", 120}, kSupportExists,
            "another support already stands at 120.", 6},
    Refused{"unknown_support_kind", {"su", 60, 0, 0, 0, "fixed"}, kUnknownSupportKind,
            "support kind \"fixed\" is neither \"simp\" nor \"cant\".", 6}),
    [](const auto& info) { return info.param.name; });
// clang-format on

}  // namespace
}  // namespace flexley
