// The sample beams: exact load-file form, and the hand-calculated answers the README promises.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "analysis/run.h"
#include "files/load_file.h"

namespace flexley {
namespace {

struct ExampleCase {
    std::string file;
    std::vector<double> reactions;  // cantilever moments first, then one force per support
    double max_moment;
    double max_stress;
    double max_deflection;  // physical size, whatever the sign
    double tolerance;       // relative; the grid does not always hit the peak exactly
};

void PrintTo(const ExampleCase& row, std::ostream* out) {
    *out << row.file;
}

std::string file_text(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void expect_near(double actual, double expected, double tolerance, const char* what) {
    EXPECT_NEAR(actual, expected, tolerance * std::abs(expected)) << what;
}

class SectionExamples : public testing::TestWithParam<ExampleCase> {};

TEST_P(SectionExamples, ReadBackInTheWritersExactForm) {
    const std::string path = std::string(FLEXLEY_EXAMPLES_DIR) + "/" + GetParam().file;
    BeamModel model;
    ASSERT_TRUE(read_load_configuration(path, model).status.ok()) << path;
    EXPECT_EQ(load_configuration_text(model), file_text(path));
}

TEST_P(SectionExamples, GiveTheHandCalculatedAnswers) {
    const ExampleCase& row = GetParam();
    BeamModel model;
    ASSERT_TRUE(read_load_configuration(std::string(FLEXLEY_EXAMPLES_DIR) + "/" + row.file, model)
                    .status.ok());
    ASSERT_TRUE(run_calculation(model, [] { return false; }).ok());

    const int unknowns = model.reaction_count + model.cantilever_count;
    ASSERT_EQ(unknowns, static_cast<int>(row.reactions.size()));
    for (int k = 1; k <= unknowns; ++k) {
        expect_near(model.reaction[k], row.reactions[k - 1], 1e-9, "reaction");
    }
    expect_near(model.max_moment, row.max_moment, row.tolerance, "moment");
    expect_near(model.max_stress, row.max_stress, row.tolerance, "stress");
    const double stiffness = double{model.elastic_modulus} * double{model.moment_of_inertia};
    expect_near(std::abs(model.max_deflection) / stiffness, row.max_deflection, row.tolerance,
                "deflection");
}

constexpr double kSteel = 29e6;

// Closed forms: PL/4 and PL^3/48EI; wL^2/2 and wL^4/8EI; 3PL/16 and PL^3/(48 sqrt(5) EI);
// 0.1wl^2 and 0.00688wl^4/EI over three equal spans; a 6 m metric beam by statics.
INSTANTIATE_TEST_SUITE_P(
    Samples, SectionExamples,
    testing::Values(ExampleCase{"simply-supported-point-load.lod",
                                {2500, 2500},
                                300000,
                                300000 * 6.1 / 204,
                                5000 * std::pow(240.0, 3) / (48 * kSteel * 204),
                                1e-6},
                    ExampleCase{"cantilever-distributed-load.lod",
                                {300000, 5000},
                                -300000,
                                300000 * 4.0 / 110,
                                500.0 / 12 * std::pow(120.0, 4) / (8 * kSteel * 110),
                                1e-6},
                    ExampleCase{"propped-cantilever-point-load.lod",
                                {432000, 5500, 2500},
                                -432000,
                                432000 * 7.85 / 301,
                                8000 * std::pow(288.0, 3) / (48 * std::sqrt(5.0) * kSteel * 301),
                                1e-6},
                    ExampleCase{"continuous-beam-three-spans.lod",
                                {4800, 13200, 13200, 4800},
                                -172800,
                                172800 * 6.1 / 204,
                                0.00688 * 1000.0 / 12 * std::pow(144.0, 4) / (kSteel * 204),
                                1e-3},
                    ExampleCase{"metric-ipe300-combined-loads.lod",
                                {130000.0 / 3, 110000.0 / 3},
                                605000.0 / 9,
                                605000.0 / 9 * 0.15 / 8.356e-5,
                                0.0140,
                                1e-3}),
    [](const testing::TestParamInfo<ExampleCase>& info) {
        std::string name;
        for (char ch : info.param.file.substr(0, info.param.file.find('.'))) {
            if (ch != '-') name += ch;
        }
        return name;
    });

}  // namespace
}  // namespace flexley
