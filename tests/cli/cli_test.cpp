// flexley-cli: usage and exit codes, the JSON and CSV shapes, conversion and the report.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/run_cli.h"
#include "files/load_file.h"
#include "model/beam_settings.h"
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

    // An English beam of the given length in inches on simple supports at both ends, with point
    // loads {lb, in.} and I, E and c unless bare; entered in feet, saved as name.
    std::string beam(const std::string& name, double length, float resolution,
                     const std::vector<std::pair<double, double>>& loads, bool bare = false) {
        BeamModel model;
        model.beam_length = length;
        model.resolution = resolution;
        if (!bare) set_section_properties(model, 100, 30e6, 4);
        for (const auto& [load, at] : loads)
            EXPECT_TRUE(add_point_load(model, load, at, "ft", "lb").ok());
        EXPECT_TRUE(add_support(model, 0, "simp", "ft", "lb").ok());
        EXPECT_TRUE(add_support(model, length, "simp", "ft", "lb").ok());
        const std::string path = (dir_ / name).string();
        EXPECT_TRUE(write_load_configuration(model, path).ok());
        return path;
    }

    // A 10 ft beam with 1000 lb at mid-span.
    std::string simple_beam() { return beam("simple.lod", 120, 1000, {{1000, 60}}); }

    fs::path dir_;
};

TEST_F(CliTest, UsageErrorsPrintUsageAndExitOne) {
    const std::string file = simple_beam();
    const std::vector<std::vector<std::string>> command_lines = {
        {},
        {"bogus", file},
        {"analyze"},
        {"analyze", file, file},
        {"analyze", file, "--resolution", "100.5"},
        {"report", file, "--integration", "simpson"},
        {"table", file, "--json"},
        {"convert", file, "out.lod", "--metric", "--english"},
        {"report", file, "--sig-figs", "16"},
    };
    for (const auto& arguments : command_lines) {
        const auto outcome = run(arguments);
        EXPECT_EQ(outcome.code, kExitUsage) << ::testing::PrintToString(arguments);
        EXPECT_NE(outcome.err.find("usage:"), std::string::npos);
        EXPECT_EQ(outcome.out, "");
    }
}

TEST_F(CliTest, FileAndPreconditionFailuresHaveTheirOwnExitCodes) {
    const std::string file = simple_beam();
    const std::string missing = (dir_ / "missing.lod").string();
    const std::string bare = beam("bare.lod", 120, 1000, {}, true);
    // The message the program shows, then where and why.
    const std::string access = "File access error\n";
    const std::tuple<std::vector<std::string>, int, std::string> cases[] = {
        {{"analyze", missing}, kExitFileError, access + "The file does not exist.\n"},
        {{"table", dir_.string()}, kExitFileError, access + "It is a folder, not a file.\n"},
        {{"report", bare}, kExitRefused, "Enter beam properties before calculating deflection.\n"},
        {{"analyze", file, "--at", "121"}, kExitUsage, "Invalid location.\n"},
        {{"report", file, "--point", "10.5"}, kExitUsage, "Invalid location.\n"},
        {{"convert", file, (dir_ / "no-such-dir" / "out").string()}, kExitFileError, ""},
    };
    for (const auto& [arguments, code, err] : cases) {
        const auto outcome = run(arguments);
        EXPECT_EQ(outcome.code, code) << ::testing::PrintToString(arguments);
        if (!err.empty()) {
            EXPECT_EQ(outcome.err, err);
        }
    }
}

TEST_F(CliTest, AnalyzeShowsASummaryOrJsonInBaseUnits) {
    const auto summary = run({"analyze", simple_beam()});
    EXPECT_NE(summary.out.find("Feature 2, simple support at x=0 ft.: 500 lb."), std::string::npos)
        << summary.out;
    EXPECT_NE(summary.out.find("Bending moment  2500 lb.-ft. at x=5 ft."), std::string::npos);

    const auto outcome = run({"analyze", simple_beam(), "--json", "--at", "60", "--at", "0.06"});
    ASSERT_EQ(outcome.code, kExitSuccess) << outcome.err;
    const auto json = nlohmann::json::parse(outcome.out);
    EXPECT_EQ(json["units"], "english");
    EXPECT_EQ(json["integration"], "exact");
    EXPECT_EQ(json["converged"], true);
    const auto& reaction = json["reactions"].at(1);
    EXPECT_EQ(reaction["feature"], 3);
    EXPECT_EQ(reaction["kind"], "simp");
    EXPECT_NEAR(reaction["force"].get<double>(), 500.0, 1e-9);
    EXPECT_TRUE(reaction["moment"].is_null());
    // Moments in lb-in, not the lb-ft the summary shows; slopes in radians, not degrees.
    EXPECT_NEAR(json["max"]["moment"]["value"].get<double>(), 30000.0, 1e-6);
    EXPECT_NEAR(json["max"]["slope"]["value"].get<double>(), -1000.0 * 120 * 120 / (16 * 3e9),
                1e-6);
    // 60 in. is mid-span, where the beam deflects most; 0.06 in. is half a grid interval, and the
    // even point, x = 0, is taken.
    EXPECT_EQ(json["at"][0]["deflection"], json["max"]["deflection"]["value"]);
    EXPECT_EQ(json["at"][1]["moment"], 0.0);
}

TEST_F(CliTest, TableHasOneLinePerGridPoint) {
    const auto outcome = run({"table", simple_beam(), "--resolution", "10"});
    ASSERT_EQ(outcome.code, kExitSuccess) << outcome.err;
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 12);
    EXPECT_EQ(outcome.out.rfind("x,moment,stress,slope,deflection\n", 0), 0u) << outcome.out;
    EXPECT_NE(outcome.out.find("\n60,30000,"), std::string::npos) << outcome.out;
}

TEST_F(CliTest, ConvertWritesTheSameBytesOrMetricOrTheCurrentFormat) {
    const std::string file = simple_beam();
    ASSERT_EQ(run({"convert", file, (dir_ / "copy").string()}).code, kExitSuccess);
    EXPECT_EQ(read_file(dir_ / "copy.lod"), read_file(file));

    ASSERT_EQ(run({"convert", file, (dir_ / "metric.lod").string(), "--metric"}).code,
              kExitSuccess);
    BeamModel model;
    ASSERT_TRUE(read_load_configuration((dir_ / "metric.lod").string(), model).status.ok());
    EXPECT_TRUE(model.metric_units);  // the conversion itself is the model's own test

    const std::string old_file = (dir_ / "old.lod").string();
    std::ofstream(old_file, std::ios::binary)
        << "0,1,0,2,0,1,0,2,3,\r\n120,0,0,0,0,12,0\r\n2,10,29000000,10000,#FALSE#\r\n"
           "12,0,120\r\n0,\"simp\"\r\n120,\"simp\"\r\n\"di1\",\"in\",\"pi\"\r\n"
           "\"su1\",\"in\",\"lb\"\r\n\"su2\",\"in\",\"lb\"\r\n";
    ASSERT_EQ(run({"convert", old_file, (dir_ / "new.lod").string(), "--v1"}).code, kExitSuccess);
    const std::string text = read_file(dir_ / "new.lod");
    EXPECT_NE(text.find("2,10,29000000,10000,#FALSE#,#FALSE#\r\n12,12,0,120\r\n"),
              std::string::npos)
        << text;
}

// The sections themselves are the report's own tests: here the options reach it.
TEST_F(CliTest, ReportTakesTheTitlePointFiguresAndSections) {
    const std::string file = simple_beam();
    const auto feet = run({"report", file, "--title", "Shop", "--point", "5", "--sig-figs", "2"});
    for (const char* expected : {"    Shop\n", "    VALUES AT A POINT (X=5 ft.)\n",
                                 "        Bending Moment=2500 lb.-ft.\n", "Reaction=500 lb.\n"}) {
        EXPECT_NE(feet.out.find(expected), std::string::npos) << expected << feet.out;
    }
    const auto inches = run({"report", file, "--point", "60", "--unit", "in", "--no-reactions"});
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
    EXPECT_EQ(exit_code("analyze " + simple_beam()), kExitSuccess);
}

// A beam so heavy that rounding alone keeps the shooting from converging: without anyone to ask,
// the command goes on for 1000 passes, stops after 1100 and says so in its exit code.
TEST_F(CliTest, AnUnconvergedDeflectionIsReportedAsSuch) {
    const std::string file = beam("heavy.lod", 12000, 10000, {{1e7, 4000}, {1e7, 9000}});
    EXPECT_EQ(run({"analyze", file}).code, kExitSuccess);
    const auto outcome = run({"analyze", file, "--integration", "trapezoid", "--json"});
    EXPECT_EQ(outcome.code, kExitNotConverged);
    EXPECT_NE(outcome.err.find("not converged after 1000 passes; continuing\n"
                               "warning: stopped the deflection iteration after 1100 passes"),
              std::string::npos)
        << outcome.err;
    EXPECT_NE(outcome.err.find("warning: The deflection calculation was stopped"),
              std::string::npos);
    EXPECT_EQ(nlohmann::json::parse(outcome.out)["converged"], false);
}

// The sample beams give the largest moment their README works out by hand, to its three figures,
// and the fixed support's moment reaction where there is one; the engine's numbers are the
// analysis tests' concern.
TEST(CliExamples, GiveTheHandCalculatedResults) {
    const std::tuple<const char*, double, double> cases[] = {
        {"simply-supported-point-load.lod", 300000, 0},
        {"cantilever-distributed-load.lod", -300000, 300000},
        {"propped-cantilever-point-load.lod", -432000, 432000},
        {"continuous-beam-three-spans.lod", -172800, 0},
        {"metric-ipe300-combined-loads.lod", 67222, 0},
    };
    for (const auto& [file, moment, fixed_moment] : cases) {
        const auto outcome =
            run({"analyze", std::string(FLEXLEY_EXAMPLES_DIR) + "/" + file, "--json"});
        ASSERT_EQ(outcome.code, kExitSuccess) << file << outcome.err;
        const auto json = nlohmann::json::parse(outcome.out);
        EXPECT_NEAR(json["max"]["moment"]["value"].get<double>(), moment, 5e-3 * std::abs(moment))
            << file;
        const auto& reaction = json["reactions"][0]["moment"];
        EXPECT_NEAR(reaction.is_null() ? 0.0 : reaction.get<double>(), fixed_moment, 1e-6) << file;
    }
}

}  // namespace
}  // namespace flexley::cli
