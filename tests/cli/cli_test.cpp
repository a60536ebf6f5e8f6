// flexley-cli: usage and exit codes, the JSON and CSV shapes, conversion and the report.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/run_cli.h"
#include "files/load_file.h"
#include "model/features.h"

namespace flexley::cli {
namespace {

namespace fs = std::filesystem;

struct Outcome {
    int code;
    std::string out;
    std::string err;
};

Outcome run(const std::vector<std::string>& arguments) {
    std::ostringstream out, err;
    const int code = run_cli(arguments, out, err);
    return {code, out.str(), err.str()};
}

std::string read_file(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

class CliTest : public ::testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "flexley-cli-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        dir_ = pattern;
    }
    void TearDown() override { fs::remove_all(dir_); }

    // A 120 in. English beam on simple supports at both ends with 1000 lb at mid-span.
    std::string simple_beam(bool with_properties = true) {
        BeamModel model;
        model.beam_length = 120;
        model.resolution = 1000;
        if (with_properties) {
            model.moment_of_inertia = 100.0f;
            model.elastic_modulus = 30e6f;
            model.fibre_distance = 4.0f;
        }
        EXPECT_TRUE(add_point_load(model, 1000, 60, "ft", "lb").ok());
        EXPECT_TRUE(add_support(model, 0, "simp", "ft", "lb").ok());
        EXPECT_TRUE(add_support(model, 120, "simp", "ft", "lb").ok());
        return save(model, with_properties ? "simple.lod" : "no-properties.lod");
    }

    std::string save(const BeamModel& model, const std::string& name) {
        const std::string path = (dir_ / name).string();
        EXPECT_TRUE(write_load_configuration(model, path).ok());
        return path;
    }

    fs::path dir_;
};

TEST_F(CliTest, UsageErrorsPrintUsageAndExitOne) {
    const std::string file = simple_beam();
    const std::vector<std::vector<std::string>> command_lines = {
        {},
        {"bogus", file},
        {"analyze"},
        {"analyze", file, file},
        {"analyze", file, "--resolution", "9"},
        {"analyze", file, "--resolution", "200001"},
        {"analyze", file, "--resolution", "100.5"},
        {"report", file, "--integration", "simpson"},
        {"analyze", file, "--at"},
        {"analyze", file, "--at", "middle"},
        {"table", file, "--json"},
        {"convert", file},
        {"convert", file, "out.lod", "--metric", "--english"},
        {"report", file, "--sig-figs", "0"},
        {"report", file, "--sig-figs", "16"},
        {"report", file, "--unit", "cm"},
        {"report", file, "--metric"},
    };
    for (const auto& arguments : command_lines) {
        const auto outcome = run(arguments);
        EXPECT_EQ(outcome.code, kExitUsage) << ::testing::PrintToString(arguments);
        EXPECT_NE(outcome.err.find("usage:"), std::string::npos);
        EXPECT_EQ(outcome.out, "");
    }
}

TEST_F(CliTest, FileAndPreconditionFailuresHaveTheirOwnExitCodes) {
    struct Case {
        std::vector<std::string> arguments;
        int code;
        std::string err;
    };
    const std::string missing = (dir_ / "missing.lod").string();
    const std::string no_properties = simple_beam(false);
    const std::vector<Case> cases = {
        // The message the program shows, then where and why.
        {{"analyze", missing}, kExitFileError, "File access error\nThe file does not exist.\n"},
        {{"table", dir_.string()},
         kExitFileError,
         "File access error\nIt is a folder, not a file.\n"},
        {{"analyze", no_properties},
         kExitRefused,
         "Enter beam properties before calculating deflection.\n"},
        {{"report", no_properties},
         kExitRefused,
         "Enter beam properties before calculating deflection.\n"},
        {{"analyze", simple_beam(), "--at", "121"}, kExitUsage, "Invalid location.\n"},
        {{"report", simple_beam(), "--point", "10.5"}, kExitUsage, "Invalid location.\n"},
        {{"convert", simple_beam(), (dir_ / "no-such-dir" / "out").string()}, kExitFileError, ""},
    };
    for (const auto& c : cases) {
        const auto outcome = run(c.arguments);
        EXPECT_EQ(outcome.code, c.code) << ::testing::PrintToString(c.arguments);
        if (!c.err.empty()) {
            EXPECT_EQ(outcome.err, c.err);
        }
    }
}

TEST_F(CliTest, JsonGivesReactionsMaximaAndPointsInBaseUnits) {
    const auto outcome = run({"analyze", simple_beam(), "--json", "--at", "60", "--at", "0.06"});
    ASSERT_EQ(outcome.code, kExitSuccess) << outcome.err;
    const auto json = nlohmann::json::parse(outcome.out);

    EXPECT_EQ(json["units"], "english");
    EXPECT_EQ(json["beam_length"], 120.0);
    EXPECT_EQ(json["resolution"], 1000.0);
    ASSERT_EQ(json["reactions"].size(), 2u);
    for (int j = 0; j < 2; ++j) {
        const auto& reaction = json["reactions"][j];
        EXPECT_EQ(reaction["feature"], j + 2);
        EXPECT_EQ(reaction["kind"], "simp");
        EXPECT_NEAR(reaction["force"].get<double>(), 500.0, 1e-9);
        EXPECT_TRUE(reaction["moment"].is_null());
    }
    EXPECT_EQ(json["reactions"][1]["position"], 120.0);

    const double ei = 30e6 * 100.0;
    const double centre_deflection = -1000.0 * 120 * 120 * 120 / (48 * ei);
    EXPECT_NEAR(json["max"]["moment"]["value"].get<double>(), 30000.0, 1e-6);
    EXPECT_NEAR(json["max"]["moment"]["at"].get<double>(), 60.0, 0.12);
    EXPECT_NEAR(json["max"]["deflection"]["value"].get<double>(), centre_deflection,
                1e-4 * std::fabs(centre_deflection));
    // Radians; the slopes at both ends are equally large, and the one at x = 0 comes first.
    EXPECT_LT(json["max"]["slope"]["value"].get<double>(), 0.0);
    EXPECT_EQ(json["max"]["slope"]["at"].get<double>(), 0.0);
    EXPECT_EQ(json["integration"], "exact");
    EXPECT_EQ(json["converged"], true);

    ASSERT_EQ(json["at"].size(), 2u);
    EXPECT_EQ(json["at"][0]["x"], 60.0);
    EXPECT_EQ(json["at"][0]["deflection"], json["max"]["deflection"]["value"]);
    // 0.06 in. is half a grid interval: the even point, x = 0, is taken.
    EXPECT_EQ(json["at"][1]["moment"], 0.0);
}

TEST_F(CliTest, JsonGivesTheMomentReactionOfAFixedSupport) {
    const auto outcome =
        run({"analyze", std::string(FLEXLEY_EXAMPLES_DIR) + "/cantilever-distributed-load.lod",
             "--json", "--resolution", "100"});
    ASSERT_EQ(outcome.code, kExitSuccess) << outcome.err;
    const auto json = nlohmann::json::parse(outcome.out);
    EXPECT_EQ(json["resolution"], 100.0);
    ASSERT_EQ(json["reactions"].size(), 1u);
    EXPECT_EQ(json["reactions"][0]["kind"], "cant");
    EXPECT_NEAR(json["reactions"][0]["force"].get<double>(), 5000.0, 1e-9);
    EXPECT_NEAR(json["reactions"][0]["moment"].get<double>(), 300000.0, 1e-6);
}

TEST_F(CliTest, SummaryShowsReactionsAndMaximaAsTheProgramDoes) {
    const auto outcome = run({"analyze", simple_beam()});
    ASSERT_EQ(outcome.code, kExitSuccess) << outcome.err;
    EXPECT_NE(outcome.out.find("Feature 2, simple support at x=0 ft.: 500 lb."), std::string::npos)
        << outcome.out;
    EXPECT_NE(outcome.out.find("Bending moment  2500 lb.-ft. at x=5 ft."), std::string::npos)
        << outcome.out;
}

TEST_F(CliTest, TableHasOneLinePerGridPoint) {
    const auto outcome = run({"table", simple_beam(), "--resolution", "10"});
    ASSERT_EQ(outcome.code, kExitSuccess) << outcome.err;
    std::istringstream lines(outcome.out);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "x,moment,stress,slope,deflection");
    std::vector<std::string> rows;
    while (std::getline(lines, line))
        rows.push_back(line);
    ASSERT_EQ(rows.size(), 11u);
    EXPECT_EQ(rows[5].substr(0, 9), "60,30000,");
    EXPECT_EQ(rows[10].substr(0, 6), "120,0,");
}

TEST_F(CliTest, ConvertWritesTheSameBytesBackAndCompletesTheName) {
    const std::string file = simple_beam();
    const auto same = run({"convert", file, (dir_ / "copy").string()});
    ASSERT_EQ(same.code, kExitSuccess) << same.err;
    EXPECT_EQ(read_file(dir_ / "copy.lod"), read_file(file));

    const auto metric = run({"convert", file, (dir_ / "metric.lod").string(), "--metric"});
    ASSERT_EQ(metric.code, kExitSuccess) << metric.err;
    BeamModel model;
    ASSERT_TRUE(read_load_configuration((dir_ / "metric.lod").string(), model).status.ok());
    EXPECT_TRUE(model.metric_units);
    EXPECT_DOUBLE_EQ(model.beam_length, 120 * 0.0254);
}

TEST_F(CliTest, ConvertMigratesAVersion1File) {
    const std::string old_file = (dir_ / "old.lod").string();
    std::ofstream(old_file, std::ios::binary)
        << "0,1,0,2,0,1,0,2,3,\r\n120,0,0,0,0,12,0\r\n2,10,29000000,10000,#FALSE#\r\n"
           "12,0,120\r\n0,\"simp\"\r\n120,\"simp\"\r\n\"di1\",\"in\",\"pi\"\r\n"
           "\"su1\",\"in\",\"lb\"\r\n\"su2\",\"in\",\"lb\"\r\n";
    const auto outcome = run({"convert", old_file, (dir_ / "new.lod").string(), "--v1"});
    ASSERT_EQ(outcome.code, kExitSuccess) << outcome.err;
    const std::string text = read_file(dir_ / "new.lod");
    EXPECT_NE(text.find("2,10,29000000,10000,#FALSE#,#FALSE#\r\n12,12,0,120\r\n"),
              std::string::npos)
        << text;
}

TEST_F(CliTest, ReportPrintsEverySectionAndThePointAsTyped) {
    const auto outcome =
        run({"report", simple_beam(), "--title", "Shop beam", "--point", "5", "--sig-figs", "4"});
    ASSERT_EQ(outcome.code, kExitSuccess) << outcome.err;
    for (const char* expected :
         {"    Shop beam\n", "    BEAM PROPERTIES\n", "    LOAD CONFIGURATION\n",
          "        Simple support; 0 ft., Reaction=500 lb.\n", "    MAXIMUM VALUES\n",
          "    VALUES AT A POINT (X=5 ft.)\n", "        Bending Moment=2500 lb.-ft.\n"}) {
        EXPECT_NE(outcome.out.find(expected), std::string::npos) << expected << outcome.out;
    }
    const auto inches =
        run({"report", simple_beam(), "--point", "60", "--unit", "in", "--no-reactions"});
    ASSERT_EQ(inches.code, kExitSuccess) << inches.err;
    EXPECT_NE(inches.out.find("    VALUES AT A POINT (X=60 in.)\n"), std::string::npos);
    EXPECT_NE(inches.out.find("        Simple support; 0 ft.\n"), std::string::npos);
}

// The installed program itself: exit codes reach the shell and messages go to stderr.
TEST_F(CliTest, ProgramReportsThroughExitCodeAndStandardError) {
    const std::string err_file = (dir_ / "err.txt").string();
    auto exit_code = [&](const std::string& arguments) {
        const int status = std::system(
            (std::string(FLEXLEY_CLI_PATH) + " " + arguments + " >/dev/null 2>" + err_file)
                .c_str());
        return WEXITSTATUS(status);
    };
    EXPECT_EQ(exit_code("analyze " + (dir_ / "missing.lod").string()), kExitFileError);
    EXPECT_EQ(read_file(err_file), "File access error\nThe file does not exist.\n");
    EXPECT_EQ(exit_code("frobnicate"), kExitUsage);
    EXPECT_EQ(exit_code("analyze " + simple_beam()), kExitSuccess);
}

// A beam so heavy that rounding alone keeps the shooting from converging: without anyone to ask,
// the command goes on for 1000 passes, stops after 1100 and says so in its exit code.
TEST_F(CliTest, AnUnconvergedDeflectionIsReportedAsSuch) {
    BeamModel model;
    model.beam_length = 12000;
    model.moment_of_inertia = 100.0f;
    model.elastic_modulus = 30e6f;
    model.fibre_distance = 4.0f;
    EXPECT_TRUE(add_point_load(model, 1e7, 4000, "ft", "lb").ok());
    EXPECT_TRUE(add_point_load(model, 1e7, 9000, "ft", "lb").ok());
    EXPECT_TRUE(add_support(model, 0, "simp", "ft", "lb").ok());
    EXPECT_TRUE(add_support(model, 12000, "simp", "ft", "lb").ok());
    const std::string file = save(model, "heavy.lod");
    EXPECT_EQ(run({"analyze", file}).code, kExitSuccess);
    const auto outcome = run({"analyze", file, "--integration", "trapezoid", "--json"});
    EXPECT_EQ(outcome.code, kExitNotConverged);
    EXPECT_NE(outcome.err.find("not converged after 1000 passes; continuing\n"
                               "warning: stopped the deflection iteration after 1100 passes"),
              std::string::npos)
        << outcome.err;
    EXPECT_NE(outcome.err.find("warning: The deflection calculation was stopped"),
              std::string::npos);
    const auto json = nlohmann::json::parse(outcome.out);
    EXPECT_EQ(json["integration"], "trapezoid");
    EXPECT_EQ(json["converged"], false);
    EXPECT_EQ(json["reactions"].size(), 2u);
}

// An older file's fractional resolution is brought to a whole number, with a note, not refused.
TEST_F(CliTest, AFractionalResolutionFromAFileIsRoundedWithANote) {
    std::string text = read_file(simple_beam());
    const auto at = text.find(",1000,#");  // the resolution, before the inch flag
    ASSERT_NE(at, std::string::npos);
    text.replace(at, 6, ",1000.4,");
    const std::string file = (dir_ / "fraction.lod").string();
    std::ofstream(file, std::ios::binary) << text;
    const auto outcome = run({"analyze", file, "--json"});
    EXPECT_EQ(outcome.code, kExitSuccess) << outcome.err;
    EXPECT_NE(outcome.err.find("warning: The file's resolution of 1000.4 was changed to 1000"),
              std::string::npos)
        << outcome.err;
    EXPECT_EQ(nlohmann::json::parse(outcome.out)["resolution"], 1000.0);
}

// The sample beams give the reactions and maxima their README works out by hand: {force, moment}
// per support, then {value, position} of the largest moment and deflection (downward negative),
// to the README's three figures.
TEST(CliExamples, GiveTheHandCalculatedResults) {
    using Reactions = std::vector<std::pair<double, double>>;
    using Maximum = std::pair<double, double>;
    struct Case {
        const char* file;
        Reactions reactions;
        Maximum moment, deflection;
    };
    const Case cases[] = {
        {"simply-supported-point-load.lod", {{2500, 0}, {2500, 0}}, {300000, 120}, {-0.243, 120}},
        {"cantilever-distributed-load.lod", {{5000, 300000}}, {-300000, 0}, {-0.339, 120}},
        {"propped-cantilever-point-load.lod",
         {{5500, 432000}, {2500, 0}},
         {-432000, 0},
         {-0.204, 159.2}},
        {"continuous-beam-three-spans.lod",
         {{4800, 0}, {13200, 0}, {13200, 0}, {4800, 0}},
         {-172800, 144},
         {-0.0418, 63.6}},
        {"metric-ipe300-combined-loads.lod",
         {{130000.0 / 3, 0}, {110000.0 / 3, 0}},
         {67222, 2.333},
         {-0.0140, 2.91}},
    };
    for (const auto& [file, reactions, moment, deflection] : cases) {
        const auto outcome =
            run({"analyze", std::string(FLEXLEY_EXAMPLES_DIR) + "/" + file, "--json"});
        ASSERT_EQ(outcome.code, kExitSuccess) << file << outcome.err;
        const auto json = nlohmann::json::parse(outcome.out)["reactions"];
        ASSERT_EQ(json.size(), reactions.size()) << file;
        for (std::size_t j = 0; j < reactions.size(); ++j) {
            const auto [force, moment] = reactions[j];
            EXPECT_NEAR(json[j]["force"].get<double>(), force, 1e-9 * force) << file;
            EXPECT_NEAR(json[j]["moment"].is_null() ? 0.0 : json[j]["moment"].get<double>(), moment,
                        1e-9 * moment)
                << file;
        }
        const auto maxima = nlohmann::json::parse(outcome.out)["max"];
        const double length = nlohmann::json::parse(outcome.out)["beam_length"].get<double>();
        for (const auto& [name, expected] :
             {std::pair{"moment", moment}, {"deflection", deflection}}) {
            EXPECT_NEAR(maxima[name]["value"].get<double>(), expected.first,
                        5e-3 * std::abs(expected.first))
                << file << " " << name;
            EXPECT_NEAR(maxima[name]["at"].get<double>(), expected.second, 5e-3 * length)
                << file << " " << name;
        }
    }
}

}  // namespace
}  // namespace flexley::cli
